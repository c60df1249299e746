#include "batch/batch_panel.h"

namespace arbolith {

BatchPanel::BatchPanel(MainForm& mainForm) : form(mainForm) {
    batch_in.SetText(kNoInputSelected);
    batch_out.SetText(kNoOutputSelected);
    for (Control* control :
         std::initializer_list<Control*>{&editBatBtn, &viewBatBtn, &Append_Make_Btn, &editSeqBtn,
                                         &Del_Seq_Btn, &PlotNum_btn, &StartBtn_Bat})
        control->SetEnabled(false);
    for (Control* control :
         std::initializer_list<Control*>{&chkBorder, &Label9, &plotn, &ok_btn, &can_btn})
        control->SetVisible(false);
    ok_btn.SetDefault(true);
}

}  // namespace arbolith
