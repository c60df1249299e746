#include "model_bridge/run_and_wait.h"

#include "platform/runtime_error.h"

#include <filesystem>

namespace arbolith {

namespace {

constexpr const char* kEditor = "notepad";

void WaitForEnd(Application& application, Process& process) {
    application.GetHost().WaitForEnd(process, [&application] { return application.HasEnded(); });
}

// The editor of the application folder goes before one of the system.
std::unique_ptr<Process> LaunchEditor(Application& application, const std::string& path) {
    ProgramStart start;
    std::error_code ignored;
    const auto own = application.PathOf(kEditor);
    start.program = std::filesystem::exists(own, ignored) ? own : kEditor;
    start.arguments = {path};
    start.mode = static_cast<int>(StartMode::kNormal);
    auto process = application.GetHost().Start(start);
    if (process == nullptr) throw RuntimeError(ErrorNumber::kFileNotFound);
    return process;
}

}  // namespace

void RunAndWait(Application& application, const std::string& fileName, StartMode mode) {
    ProgramStart start;
    start.program = application.PathOf(fileName);
    start.folder = application.Folder();
    start.mode = static_cast<int>(mode);
    if (const auto process = application.GetHost().Start(start)) WaitForEnd(application, *process);
    application.UnwindIfEnded();
}

void EditAndWait(Application& application, const std::string& path) {
    const auto process = LaunchEditor(application, path);
    WaitForEnd(application, *process);
    application.UnwindIfEnded();
}

void StartEditor(Application& application, const std::string& path) {
    LaunchEditor(application, path);
}

}  // namespace arbolith
