#include "bench/bare_exchange.h"

#include <cstdio>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace arbolith::bench {

namespace {

void WriteFile(const std::string& path, const std::string& text) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) throw std::runtime_error("can't write " + path);
    std::fwrite(text.data(), 1, text.size(), file);
    std::fclose(file);
}

std::size_t ReadFile(const std::string& path) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) throw std::runtime_error("can't read " + path);
    std::vector<char> buffer(64 * 1024);
    std::size_t size = 0;
    while (const auto count = std::fread(buffer.data(), 1, buffer.size(), file)) size += count;
    std::fclose(file);
    return size;
}

}  // namespace

void RunBareModel(const std::string& folder, const std::string& model) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addchdir_np(&actions, folder.c_str());
    std::string program = folder + "/" + model;
    char* arguments[] = {program.data(), nullptr};
    pid_t id = 0;
    const int failed = posix_spawn(&id, program.c_str(), &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    if (failed != 0) throw std::runtime_error("can't start " + program);
    waitpid(id, nullptr, 0);
}

std::size_t ExchangeBare(const std::string& folder, const std::string& model,
                         const std::string& standLine) {
    WriteFile(folder + "/_PATHINF.TMP", folder + "/_INPUT.TMP\r\n" + folder + "/_OUTPUT.TMP\r\n");
    WriteFile(folder + "/_INPUT.TMP", standLine + "\r\n");
    RunBareModel(folder, model);
    return ReadFile(folder + "/_OUTPUT.TMP");
}

}  // namespace arbolith::bench
