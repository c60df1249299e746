// Starting programs with posix_spawn; the end of one is told by a process descriptor.
#include "platform/process.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

// This header of the C library forgets to say that it is C.
extern "C" {
#include <sys/pidfd.h>
}

extern char** environ;

namespace arbolith {

namespace {

// Programs that were let go. The system keeps an entry for each one that has ended until it is
// asked for; that is done when the next program is started.
std::vector<pid_t>& LetGo() {
    static std::vector<pid_t> ids;
    return ids;
}

void ForgetEnded() {
    std::erase_if(LetGo(), [](pid_t id) { return waitpid(id, nullptr, WNOHANG) != 0; });
}

class PosixProcess : public Process {
public:
    PosixProcess(pid_t id, int descriptor) : id_(id), descriptor_(descriptor) {}
    ~PosixProcess() override {
        close(descriptor_);
        if (!HasEnded()) LetGo().push_back(id_);
    }
    PosixProcess(const PosixProcess&) = delete;
    PosixProcess& operator=(const PosixProcess&) = delete;

    bool HasEnded() final {
        if (ended_) return true;
        int status = 0;
        const pid_t reaped = waitpid(id_, &status, WNOHANG);
        ended_ = reaped == id_ || (reaped == -1 && errno == ECHILD);
        return ended_;
    }
    int EndDescriptor() const override { return descriptor_; }

private:
    pid_t id_;
    int descriptor_;
    bool ended_ = false;
};

bool IsWindowsProgram(const std::string& path) {
    std::array<char, 2> mark{};
    std::FILE* file = std::fopen(path.c_str(), "rbe");
    if (file == nullptr) return false;
    const auto count = std::fread(mark.data(), 1, mark.size(), file);
    std::fclose(file);
    return count == mark.size() && mark[0] == 'M' && mark[1] == 'Z';
}

std::optional<std::string> FindOnSearchPath(const std::string& name) {
    const char* searchPath = std::getenv("PATH");
    std::string rest = searchPath == nullptr ? "" : searchPath;
    while (!rest.empty()) {
        const auto end = rest.find(':');
        const auto candidate = rest.substr(0, end) + "/" + name;
        if (access(candidate.c_str(), X_OK) == 0) return candidate;
        rest = end == std::string::npos ? "" : rest.substr(end + 1);
    }
    return std::nullopt;
}

std::optional<std::string> PathOfProgram(const std::string& program) {
    return program.find('/') == std::string::npos ? FindOnSearchPath(program) : program;
}

// The command with its arguments, with wine in front of a Windows program; empty where the program,
// or the wine for it, isn't there.
std::vector<std::string> CommandOf(const ProgramStart& start) {
    std::vector<std::string> command;
    const auto program = PathOfProgram(start.program);
    if (!program) return command;
    if (IsWindowsProgram(*program)) {
        const auto wine = FindOnSearchPath("wine");
        if (!wine) return command;
        command.push_back(*wine);
    }
    command.push_back(*program);
    command.insert(command.end(), start.arguments.begin(), start.arguments.end());
    return command;
}

// The environment of this program but for the search path, which becomes the folder where there is
// one. Wine needs the usual one as well to find its own parts.
std::vector<std::string> EnvironmentOf(const ProgramStart& start, bool keepsSearchPath) {
    std::vector<std::string> variables;
    std::string searchPath = "PATH=" + start.folder;
    for (char** variable = environ; *variable != nullptr; ++variable) {
        const std::string text = *variable;
        if (start.folder.empty() || !text.starts_with("PATH=")) {
            variables.push_back(text);
        } else if (keepsSearchPath) {
            searchPath += ":" + text.substr(5);
        }
    }
    if (!start.folder.empty()) variables.push_back(searchPath);
    return variables;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (auto& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

// The file actions of a spawn: silent standard streams and the working directory.
class SpawnActions {
public:
    explicit SpawnActions(const std::string& folder) {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        if (!folder.empty()) posix_spawn_file_actions_addchdir_np(&actions_, folder.c_str());
    }
    ~SpawnActions() { posix_spawn_file_actions_destroy(&actions_); }
    SpawnActions(const SpawnActions&) = delete;
    SpawnActions& operator=(const SpawnActions&) = delete;

    const posix_spawn_file_actions_t* Get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_;
};

}  // namespace

std::string ProgramStart::FileName() const {
    return std::filesystem::path(program).filename().string();
}

std::unique_ptr<Process> StartProcess(const ProgramStart& start) {
    ForgetEnded();
    auto command = CommandOf(start);
    if (command.empty()) return nullptr;
    const bool throughWine = command.size() > start.arguments.size() + 1;
    auto environment = EnvironmentOf(start, throughWine);
    const SpawnActions actions(start.folder);
    pid_t id = 0;
    if (posix_spawn(&id, command.front().c_str(), actions.Get(), nullptr, Pointers(command).data(),
                    Pointers(environment).data()) != 0)
        return nullptr;
    const int descriptor = pidfd_open(id, 0);
    if (descriptor == -1) {
        // No way to watch it (a system without process descriptors): see it to its end here.
        waitpid(id, nullptr, 0);
        return nullptr;
    }
    return std::make_unique<PosixProcess>(id, descriptor);
}

}  // namespace arbolith
