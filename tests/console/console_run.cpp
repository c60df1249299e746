#include "console/console_run.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace arbolith {

namespace {

// The file actions of the program's start.
class Streams {
public:
    Streams(const std::string& folder, int output, int errors) {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions_, errors, STDERR_FILENO);
        posix_spawn_file_actions_addchdir_np(&actions_, folder.c_str());
    }
    ~Streams() { posix_spawn_file_actions_destroy(&actions_); }
    Streams(const Streams&) = delete;
    Streams& operator=(const Streams&) = delete;

    const posix_spawn_file_actions_t* Get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_{};
};

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (auto& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

pid_t Spawn(const std::vector<std::string>& words, const std::string& folder,
            const std::string& scratch, int output, int errors) {
    std::vector<std::string> command = {CONSOLE_PROGRAM};
    command.insert(command.end(), words.begin(), words.end());
    std::vector<std::string> variables = {"TMPDIR=" + scratch, "TERM=xterm"};
    for (const char* kept : {"PATH", "LD_LIBRARY_PATH", "GCOV_PREFIX"})
        if (const char* value = std::getenv(kept))
            variables.push_back(std::string(kept) + "=" + value);
    const Streams streams(folder, output, errors);
    pid_t process = 0;
    if (posix_spawn(&process, CONSOLE_PROGRAM, streams.Get(), nullptr, Pointers(command).data(),
                    Pointers(variables).data()) != 0)
        throw std::runtime_error("the console program can't be started");
    return process;
}

int Create(const std::string& path) {
    return open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
}

int StatusOf(pid_t process) {
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

}  // namespace

std::string StandLines::Text() const {
    std::string text = "banner\r\n";
    for (const auto* line :
         {&system, &regeneration, &species, &site, &stocking, &rotation, &treatments})
        text += *line + "\r\n";
    return text;
}

ConsoleTest::ConsoleTest() {
    std::filesystem::create_symlink(SOFTWOOD_PROGRAM, models.PathOf("SWQVL.exe"));
    std::filesystem::create_symlink(HARDWOOD_PROGRAM, models.PathOf("HWQVL.exe"));
}

Ended ConsoleTest::Run(const std::vector<std::string>& words, int output, int errors) const {
    const int ownOutput = Create(scratch.PathOf(".output"));
    const int ownErrors = Create(scratch.PathOf(".errors"));
    auto all = words;
    all.insert(all.end(), {"--folder", models.Path()});
    const pid_t process = Spawn(all, work.Path(), temporary, output == -1 ? ownOutput : output,
                                errors == -1 ? ownErrors : errors);
    close(ownOutput);
    close(ownErrors);
    const int status = StatusOf(process);
    return {status, scratch.Read(".output"), scratch.Read(".errors")};
}

pid_t ConsoleTest::Start(const std::vector<std::string>& words, const std::string& name) const {
    const int output = Create(scratch.PathOf("." + name + "-output"));
    const int errors = Create(scratch.PathOf("." + name + "-errors"));
    auto all = words;
    all.insert(all.end(), {"--folder", models.Path()});
    const pid_t process = Spawn(all, work.Path(), temporary, output, errors);
    close(output);
    close(errors);
    return process;
}

Ended ConsoleTest::WaitFor(pid_t process, const std::string& name) const {
    const int status = StatusOf(process);
    return {status, scratch.Read("." + name + "-output"), scratch.Read("." + name + "-errors")};
}

void ConsoleTest::ReplaceModels(const std::string& commands) const {
    for (const char* name : {"SWQVL.exe", "HWQVL.exe"}) {
        std::filesystem::remove(models.PathOf(name));
        models.WriteProgram(name, commands);
    }
}

bool ConsoleTest::LeftNothingBehind() const {
    for (const auto& entry : std::filesystem::directory_iterator(scratch.Path()))
        if (!entry.path().filename().string().starts_with('.')) return false;
    return true;
}

std::string LineOf(const std::string& text, std::size_t number) {
    std::size_t begin = 0;
    for (; number > 0 && begin != std::string::npos; --number) {
        begin = text.find("\r\n", begin);
        if (begin != std::string::npos) begin += 2;
    }
    return begin == std::string::npos ? "" : text.substr(begin, text.find("\r\n", begin) - begin);
}

std::string BatchText(const std::vector<std::string>& sequences, const std::string& output) {
    std::string text;
    for (int line = 0; line <= 10; ++line) text += "#\r\n";
    text += "output " + output + "\r\nautorun false\r\n";
    text += "sequences:\r\n";
    for (const auto& sequence : sequences) text += sequence + "\r\n";
    return text;
}

std::string SequenceLine(const std::string& plot, const std::string& wood) {
    return plot + "\t" + wood + "\tY\tY\t" + (wood == "S" ? "WP\t8" : "SM\t4") +
           "\t0.0\t1\t0.0\t0.0\t100\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t100\t";
}

}  // namespace arbolith
