#include "model_bridge/run_and_wait.h"

namespace arbolith {

void RunAndWait(Application& application, const std::string& fileName, StartMode mode) {
    ProgramStart start;
    start.program = application.PathOf(fileName);
    start.folder = application.Folder();
    start.mode = static_cast<int>(mode);
    auto& host = application.GetHost();
    if (const auto process = host.Start(start))
        host.WaitForEnd(*process, [&application] { return application.HasEnded(); });
    application.UnwindIfEnded();
}

}  // namespace arbolith
