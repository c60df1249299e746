// The events of the File menu, of the way back to the single run, and of the close box.
#include "saved_runs/file_menu.h"
#include "shell/events.h"
#include "shell/program_end.h"

namespace arbolith {

void WireFileMenu(SavedRuns& saved) {
    auto& form = saved.run.form;
    form.File_Mnu.onClick = [&saved] { OpenFileMenu(saved); };
    form.New_Mnu.onClick = [&saved] { NewInput(saved); };
    form.Open_Mnu.onClick = [&saved] { OpenFile(saved); };
    form.Save_Mnu.onClick = [&saved] { SaveFile(saved); };
    form.SaveAs_Mnu.onClick = [&saved] { SaveFileAs(saved); };
    form.Close_Mnu.onClick = form.Exit_Program.onClick = [&saved] { saved.run.application.End(); };
    form.Single_Mnu.onClick = [&saved] { ShowSingleRun(saved); };
    form.onClose = [&saved] { CloseMainForm(saved); };
}

}  // namespace arbolith
