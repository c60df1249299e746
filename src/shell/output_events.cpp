// The events of the Output window: control, event, and what runs.
#include "shell/events.h"

namespace arbolith {

namespace {

// Saving, the graphs and the definitions: their work isn't in the program yet.
void DisableWhatIsToCome(OutputForm& form) {
    for (Control* control : std::initializer_list<Control*>{
             &form.Save_Mnu, &form.Definitions_Mnu, &form.grphDiameter, &form.grphBa,
             &form.grphHeight, &form.grphFrequency, &form.grphVolume, &form.graphMai,
             &form.grphCumVol, &form.grphCumMai, &form.btnGrphCol, &form.btnGrphCust})
        control->SetEnabled(false);
}

}  // namespace

void WireOutput(Application& application, Output& output, Resize& resize) {
    auto& form = output.form;
    form.Select_All_Mnu.onClick = [&output] { output.SelectAll(); };
    form.Copy_Mnu.onClick = [&output] { output.Copy_Mnu_Click(); };
    form.Close_Window_Mnu.onClick = [&form] { form.Hide(); };
    form.Close_Program_Mnu.onClick = [&application] { application.End(); };
    form.onResize = [&form, &resize] { resize.ResizeForm(form); };
    DisableWhatIsToCome(form);
}

}  // namespace arbolith
