#include "results/output.h"

#include "forms/application.h"
#include "platform/text.h"

namespace arbolith {

OutputForm::OutputForm(Application& application)
    : Form(application, "Output", "Output", {9135, 7065}), CDL(application) {
    Open_Mnu.SetEnabled(false);  // a saved table can't be loaded back
}

Output::Output(Application& application) : form(application), application_(application) {}

void Output::SetReportTexts(const std::string& ytbh, const std::string& runLine) {
    OutputYTBH = ytbh;
    OutputRunLine = runLine;
}

void Output::EnableGraphs() {
    for (Button* button : {&form.grphCumVol, &form.grphCumMai, &form.graphMai})
        button->SetEnabled(true);
}

void Output::Copy_Mnu_Click() {
    const auto clip = form.Table.Clip();
    if (clip.empty()) application_.ShowBox("Please select something on table before copying");
    application_.GetHost().SetClipboardText(std::string(Trimmed(clip)));
}

void Output::SelectAll() {
    auto& table = form.Table;
    table.SetRow(1);
    table.SetCol(1);
    table.SetColSel(table.Cols() - 1);
    table.SetRowSel(table.Rows() - 1);
    Copy_Mnu_Click();
}

}  // namespace arbolith
