// A model's run: paths, input, output.
#include "models/exchange.h"

#include "models/lines.h"
#include "models/report.h"
#include "models/stand_line.h"

#include <filesystem>
#include <fstream>
#include <ostream>
#include <sstream>

namespace growth {

namespace {

// Blocks are handed to the output in portions of this size, bytes.
constexpr std::size_t kPortion = std::size_t{64} * 1024;

std::string StripPath(std::string_view line) {
    constexpr std::string_view outer = " \t\r\"";
    const std::size_t first = line.find_first_not_of(outer);
    if (first == std::string_view::npos) return {};
    return std::string(line.substr(first, line.find_last_not_of(outer) - first + 1));
}

void WritePortion(std::ostream& output, std::string& text) {
    output.write(text.data(), static_cast<std::streamsize>(text.size()));
    text.clear();
}

void AppendStand(std::string& text, Wood wood, std::string_view line) {
    const StandLine stand = ReadStandLine(line);
    AppendBlock(text, stand.sequence, stand.units, GrowStand(wood, stand));
}

bool WriteOutput(Wood wood, std::istream& input, const std::string& path) {
    std::ofstream output(path, std::ios::binary | std::ios::trunc);
    GrowStands(wood, input, output);
    output.close();
    return output.good();
}

// Opening the output empties it, so an input that is the same file is taken into memory first.
bool GrowFile(Wood wood, const RunPaths& paths) {
    std::ifstream input(paths.input, std::ios::binary);
    std::error_code unknown;
    if (!std::filesystem::equivalent(paths.input, paths.output, unknown))
        return WriteOutput(wood, input, paths.output);
    std::stringstream copy;
    copy << input.rdbuf();
    return WriteOutput(wood, copy, paths.output);
}

}  // namespace

std::optional<RunPaths> ReadPaths(std::istream& pathFile) {
    LineReader lines(pathFile);
    RunPaths paths;
    if (lines.Next()) paths.input = StripPath(lines.Text());
    if (lines.Next()) paths.output = StripPath(lines.Text());
    if (paths.input.empty() || paths.output.empty()) return std::nullopt;
    return paths;
}

void GrowStands(Wood wood, std::istream& input, std::ostream& output) {
    LineReader lines(input);
    std::string text;
    bool any = false;
    while (output.good() && lines.Next()) {
        if (lines.IsBlank()) continue;
        any = true;
        AppendStand(text, wood, lines.Text());
        if (text.size() >= kPortion) WritePortion(output, text);
    }
    if (!any) AppendStand(text, wood, "");
    WritePortion(output, text);
}

ExitCode RunModel(Wood wood, std::ostream& console, std::ostream& errors) {
    console << kConsoleLine << '\n' << std::flush;
    std::ifstream pathFile(kPathFile, std::ios::binary);
    const auto paths = ReadPaths(pathFile);
    if (!paths) {
        errors << kPathFile << " doesn't name an input file and an output file on two lines.\n";
        return kNoPaths;
    }
    if (GrowFile(wood, *paths)) return kDone;
    errors << "The output file can't be written: " << paths->output << '\n';
    return kNotWritten;
}

}  // namespace growth
