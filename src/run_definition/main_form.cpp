#include "run_definition/main_form.h"

namespace arbolith {

MainForm::MainForm(Application& application)
    : Form(application, "QvlySwd", "Arbolith", {14400, 9240}), CDL(application) {
    Batch.SetVisible(false);
    Append_Btn.SetVisible(false);
    CancelAppend.SetVisible(false);
    tf_textbox.SetVisible(false);
    tf_textbox.SetText("enter density");
    Single_Mnu.SetChecked(true);
}

}  // namespace arbolith
