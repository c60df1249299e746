// How fast the growth models are, and whether their memory stays the same with the length of the
// input. Both are ratios within one run: speed against a bare loop that does nothing but print
// numbers, memory of a long batch against that of a short one. --check turns the limits into the
// exit code.
#include "models/grow.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <spawn.h>
#include <stdexcept>
#include <stdlib.h>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr int kStands = 1000;
constexpr int kManyStands = 100000;
constexpr int kRotation = 120;
constexpr std::size_t kRows = std::size_t{kStands} * (kRotation / growth::kRowStep);
constexpr int kMeasurements = 25;

constexpr double kSpeedLimit = 0.25;
constexpr double kSpeedAim = 0.4;
// What the system's own pages vary by from run to run; keeping the lines would be a factor of 4.
constexpr double kMemoryLimit = 1.1;

using RowNumbers = std::array<double, 25>;

struct Program {
    const char* path;
    growth::Wood wood;
};

constexpr std::array<Program, 2> kPrograms = {{
    {SOFTWOOD_PROGRAM, growth::Wood::Softwood},
    {HARDWOOD_PROGRAM, growth::Wood::Hardwood},
}};

// A fresh folder that is the working directory while it exists.
class WorkFolder {
public:
    WorkFolder() : before(fs::current_path()) {
        std::string name = (fs::temp_directory_path() / "bench_modelsXXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
        folder = name;
        fs::current_path(folder);
    }
    ~WorkFolder() {
        std::error_code ignored;
        fs::current_path(before, ignored);
        fs::remove_all(folder, ignored);
    }
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

private:
    fs::path before;
    fs::path folder;
};

// Natural, planted, thinned and imperial stands of all species and of the lower classes, in turn.
std::string StandLine(growth::Wood wood, int index) {
    static constexpr std::array<std::string_view, 4> kinds = {
        "Y\tY\t%\t#\t0.0\t1\t0.0\t0.0\t120\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t100\t",
        "Y\tN\t%\t#\t0.0\t2500\t2.0\t2.0\t120\t0.0\t40.0\t0.0\t0.0\t0.0\t30.0\t0.0\t0.0\t80\t",
        "N\tY\t%\t#\t0.0\t1\t0.0\t0.0\t120\t0.0\t20.0\t60.0\t0.0\t0.0\t0.0\t25.0\t6.5\t90\t",
        "Y\tY\t%\t#\t0.0\t1\t0.0\t0.0\t120\t0.0\t50.0\t0.0\t0.0\t0.0\t35.0\t0.0\t0.0\t70\t"};
    std::vector<std::string_view> codes;
    for (const growth::Species& species : growth::AllSpecies()) {
        if (species.wood == wood) codes.push_back(species.code);
    }
    const auto i = static_cast<std::size_t>(index);
    std::string line = std::to_string(index % 32768) + '\t';
    for (const char c : kinds[i % kinds.size()]) {
        if (c == '%') {
            line += codes[i % codes.size()];
        } else if (c == '#') {
            line += std::to_string(1 + index / 4 % 4);
        } else {
            line += c;
        }
    }
    return line;
}

void WriteExchange(growth::Wood wood, int stands, const std::string& output) {
    std::ofstream("_PATHINF.TMP") << "input.tmp\r\n" << output << "\r\n";
    std::ofstream input("input.tmp", std::ios::binary);
    for (int i = 0; i < stands; ++i) input << StandLine(wood, i) << "\r\n";
}

// Runs a model to its end. Returns its peak resident memory in KiB.
long RunModelProgram(const char* path) {
    std::string name = path;
    std::array<char*, 2> arguments = {name.data(), nullptr};
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t process = 0;
    const int failed = posix_spawn(&process, path, &quiet, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&quiet);
    if (failed != 0) throw std::runtime_error(name + " can't be started");
    int status = 0;
    rusage usage{};
    if (wait4(process, &status, 0, &usage) != process || status != 0)
        throw std::runtime_error(name + " failed");
    return usage.ru_maxrss;
}

// The numbers of the first stands, not rounded, so that the bare loop prints what the model prints.
std::vector<RowNumbers> NumbersToPrint(growth::Wood wood) {
    std::vector<RowNumbers> rows;
    for (int i = 0; i < kStands; ++i) {
        const auto stand = growth::ReadStandLine(StandLine(wood, i));
        for (const growth::Row& row : growth::GrowStand(wood, stand).rows) {
            RowNumbers& numbers = rows.emplace_back();
            auto next = numbers.begin();
            *next++ = row.age;
            for (const auto& classes : row.values) next = std::copy_n(classes.begin(), 3, next);
        }
    }
    return rows;
}

// The bare loop: the same rows to a file, each number in its shortest text or with two decimals.
void PrintBare(const std::vector<RowNumbers>& rows, bool shortest) {
    std::ofstream output("bare.tmp", std::ios::binary);
    std::array<char, 25 * 32> text;
    for (const RowNumbers& numbers : rows) {
        char* at = text.data();
        char* const end = text.data() + text.size();
        for (const double number : numbers) {
            at = shortest ? std::to_chars(at, end, number).ptr
                          : std::to_chars(at, end, number, std::chars_format::fixed, 2).ptr;
            *at++ = ' ';
        }
        at[-1] = '\n';
        output.write(text.data(), at - text.data());
    }
}

template <typename Work>
double Seconds(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

bool Report(const std::string& what, double ratio, bool holds, const std::string& limit) {
    std::printf("%-66s %6.3f  (%s) %s\n", what.c_str(), ratio, limit.c_str(),
                holds ? "" : "MISSED");
    return holds;
}

std::string NameOf(const Program& program) {
    return fs::path(program.path).filename().string();
}

// Peak memory first: a child's figure begins with that of its parent, which must still be small.
bool MeasureMemory(const Program& program) {
    WriteExchange(program.wood, kStands, "/dev/null");
    std::vector<double> peaks;
    for (int i = 0; i < kMeasurements; ++i)
        peaks.push_back(static_cast<double>(RunModelProgram(program.path)));
    WriteExchange(program.wood, kManyStands, "/dev/null");
    const double ratio = static_cast<double>(RunModelProgram(program.path)) / Median(peaks);
    return Report(NameOf(program) + ": peak memory, 100,000 lines over 1000", ratio,
                  ratio <= kMemoryLimit, "at most 1.1");
}

bool MeasureSpeed(const Program& program) {
    WriteExchange(program.wood, kStands, "output.tmp");
    const auto rows = NumbersToPrint(program.wood);
    if (rows.size() != kRows)
        throw std::runtime_error("the stands of the benchmark don't all grow to 120 years");
    std::vector<double> model;
    std::vector<double> shortest;
    std::vector<double> fixed;
    for (auto* times : {&model, &shortest, &fixed}) times->reserve(kMeasurements);
    for (int i = -2; i < kMeasurements; ++i) {
        const double ofModel = Seconds([&] { RunModelProgram(program.path); });
        const double ofShortest = Seconds([&] { PrintBare(rows, true); });
        const double ofFixed = Seconds([&] { PrintBare(rows, false); });
        if (i < 0) continue;  // warming up
        model.push_back(ofModel);
        shortest.push_back(ofShortest);
        fixed.push_back(ofFixed);
    }
    const double toShortest = Median(shortest) / Median(model);
    const double toFixed = Median(fixed) / Median(model);
    const std::string name = NameOf(program) + ": rows a second over a bare loop, ";
    const std::string limit = "at least 0.25, aim 0.4";
    const bool first =
        Report(name + "shortest texts", toShortest, toShortest >= kSpeedLimit, limit);
    const bool second = Report(name + "two decimals", toFixed, toFixed >= kSpeedLimit, limit);
    if (std::min(toShortest, toFixed) < kSpeedAim) std::puts("  (below the aim)");
    return first && second;
}

}  // namespace

int main(int argc, char** argv) {
    const bool check = argc > 1 && std::string_view(argv[1]) == "--check";
    const WorkFolder folder;
    bool allHold = true;
    for (const Program& program : kPrograms) allHold = MeasureMemory(program) && allHold;
    for (const Program& program : kPrograms) allHold = MeasureSpeed(program) && allHold;
    return check && !allHold ? 1 : 0;
}
