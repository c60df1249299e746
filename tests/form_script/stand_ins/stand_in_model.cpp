// A model program that does as it is told, for scenarios of what models can do wrong. It keeps to
// the contract of a model: `_PATHINF.TMP` in the working directory names the input and the output
// file. What it does stands in `stand_in.txt` beside that file, a step a line, the steps of further
// calls behind a line `next`; calls without steps of their own do as the last one. Without the file
// it writes 10 rows.
//
//   rows N       a whole table of N rows, ages 5, 10, 15, ...
//   copy FILE    the output becomes a copy of FILE in the working directory
//   truncated    a table whose last row breaks off
//   garbage      bytes that are no numbers
//   empty        an output file without a byte
//   remove       takes the output file of an earlier call away
//   crash        ends by a signal
//   hang         goes on until `stand_in.txt` or its folder is removed
//
// A call whose steps are none of the writing ones leaves the output file as it is. One that writes
// puts the whole file into its place at once: where two calls overlap, nobody reads half an output.
#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <sys/inotify.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr const char* kDirections = "stand_in.txt";
constexpr const char* kCalls = "stand_in_calls.txt";
constexpr int kVariables = 25;
constexpr int kAgeStep = 5;

using Steps = std::vector<std::string>;

std::string WithoutReturn(std::string line) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return line;
}

std::string OutputPath() {
    std::ifstream file("_PATHINF.TMP", std::ios::binary);
    std::string input;
    std::string output;
    std::getline(file, input);
    std::getline(file, output);
    return WithoutReturn(output);
}

// Which call this is, from 1, with each call leaving a mark for the next ones. What counts is where
// the own mark went, since another call may leave one at the same time.
std::size_t CountCall() {
    std::ofstream calls(kCalls, std::ios::app);
    calls << '.' << std::flush;
    return static_cast<std::size_t>(calls.tellp());
}

std::vector<Steps> ReadDirections() {
    std::ifstream file(kDirections);
    if (!file) return {{"rows 10"}};
    std::vector<Steps> calls(1);
    for (std::string line; std::getline(file, line);) {
        line = WithoutReturn(line);
        if (line == "next") {
            calls.emplace_back();
        } else if (!line.empty()) {
            calls.back().push_back(line);
        }
    }
    return calls;
}

void WriteRow(std::ostream& output, int row, int variables) {
    output << "0 " << row * kAgeStep;
    for (int variable = 2; variable <= variables; ++variable)
        output << ' ' << row + variable << ".5";
}

void WriteTable(std::ostream& output, int rows, bool breaksOff) {
    output << "4\r\n";
    for (int row = 1; row <= rows; ++row) {
        const bool broken = breaksOff && row == rows;
        WriteRow(output, row, broken ? kVariables / 2 : kVariables);
        if (!broken) output << "\r\n";
    }
}

void WriteGarbage(std::ostream& output) {
    for (int byte = 255; byte >= 0; --byte) output << static_cast<char>(byte);
}

// Waits for the end of the directions, without looking again and again.
void Hang() {
    const int watch = inotify_init1(IN_CLOEXEC);
    if (inotify_add_watch(watch, kDirections, IN_DELETE_SELF | IN_MOVE_SELF | IN_ATTRIB) == -1)
        return;
    char events[4096];
    while (std::filesystem::exists(kDirections) && read(watch, events, sizeof events) > 0) {
    }
}

// What stands in the file's place and is no file, a device for example, is written to as it is.
void PutOutput(const std::string& path, const std::string& bytes) {
    const auto status = std::filesystem::symlink_status(path);
    const bool isInTheWay = exists(status) && !is_regular_file(status);
    const std::string written = isInTheWay ? path : path + '.' + std::to_string(getpid());
    std::ofstream(written, std::ios::binary) << bytes;
    if (!isInTheWay) std::filesystem::rename(written, path);
}

bool Obey(const std::string& step, const std::string& path) {
    std::istringstream words(step);
    std::string verb;
    std::string object;
    words >> verb >> object;
    std::ostringstream output;
    if (verb == "rows") {
        WriteTable(output, std::stoi(object), false);
        PutOutput(path, output.str());
    } else if (verb == "truncated") {
        WriteTable(output, 4, true);
        PutOutput(path, output.str());
    } else if (verb == "garbage") {
        WriteGarbage(output);
        PutOutput(path, output.str());
    } else if (verb == "copy") {
        output << std::ifstream(object, std::ios::binary).rdbuf();
        PutOutput(path, output.str());
    } else if (verb == "empty") {
        PutOutput(path, "");
    } else if (verb == "remove") {
        std::filesystem::remove(path);
    } else if (verb == "crash") {
        std::abort();
    } else if (verb == "hang") {
        Hang();
    } else {
        std::cerr << "stand_in_model: no step " << step << '\n';
        return false;
    }
    return true;
}

}  // namespace

int main() {
    const auto path = OutputPath();
    const auto calls = ReadDirections();
    const auto call = std::min(CountCall(), calls.size());
    for (const auto& step : calls[call - 1])
        if (!Obey(step, path)) return EXIT_FAILURE;
    return EXIT_SUCCESS;
}
