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
// A call whose steps are none of the writing ones leaves the output file as it is.
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

// Which call this is, from 1, with each call leaving a mark for the next ones.
std::size_t CountCall() {
    std::ofstream(kCalls, std::ios::app) << '.';
    return static_cast<std::size_t>(std::filesystem::file_size(kCalls));
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

bool Obey(const std::string& step, const std::string& path) {
    std::istringstream words(step);
    std::string verb;
    std::string object;
    words >> verb >> object;
    const auto output = [&path] { return std::ofstream(path, std::ios::binary); };
    if (verb == "rows") {
        auto file = output();
        WriteTable(file, std::stoi(object), false);
    } else if (verb == "truncated") {
        auto file = output();
        WriteTable(file, 4, true);
    } else if (verb == "garbage") {
        auto file = output();
        WriteGarbage(file);
    } else if (verb == "copy") {
        std::filesystem::copy_file(object, path, std::filesystem::copy_options::overwrite_existing);
    } else if (verb == "empty") {
        output();
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
