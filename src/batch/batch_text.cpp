#include "batch/batch_text.h"

#include "platform/text.h"

#include <algorithm>

namespace arbolith {

namespace {

// The two lines that are only looked at in their own place.
constexpr std::size_t kOutputLine = 11;
constexpr std::size_t kAutorunLine = 12;

constexpr std::string_view kOutput = "output";
constexpr std::string_view kAutorun = "autorun";
constexpr std::string_view kTrue = "true";

constexpr const char* kRule = "####################################################";

constexpr const char* kExplanation[] = {
    kRule,
    "# New Batch file created...",
    "# A comment can be added using # ",
    "# Optional Params: ",
    "#       output FILENAME  (can use 'default' or 'default txt' or 'default html')",
    "#       autorun True     (defaults to false)",
    "# Required:",
    "#       Sequence String  (at least one)",
    "# S: Softwood",
    "# H: Hardwood",
    kRule,
};

constexpr const char* kBeforeSequences[] = {
    "# Fields appear in the following order:",
    "#PLOT\tWDTYPE\tMET\tNAT\tSPEC\tLC\tSIB\tFREQ\tSPX\tSPY\tRAGE\tRDBH\tT1Age\tT2Age\tT1DBH\t"
    "T2DBH\tT1IBA\tT2IBA\tISD\tSTK%",
    "############## Sequence Begins Here ################",
};

bool BeginsWithKeyword(std::string_view line, std::string_view keyword) {
    return EqualIgnoringCase(line.substr(0, keyword.size()), keyword);
}

}  // namespace

std::vector<std::string> HeadingOfBatch(std::string_view output) {
    std::vector<std::string> lines(std::begin(kExplanation), std::end(kExplanation));
    lines.push_back(std::string(kOutput) + " " + std::string(output));
    lines.push_back(std::string(kAutorun) + " false");
    lines.insert(lines.end(), std::begin(kBeforeSequences), std::end(kBeforeSequences));
    lines.emplace_back(kSequencesLine);
    return lines;
}

std::vector<std::string> ReadItems(NumberedFiles& files, int number, const std::string& path) {
    std::vector<std::string> items;
    files.OpenForInput(number, path);
    while (!files.AtEndOfFile(number)) items.emplace_back(files.ItemRead(number));
    files.Close(number);
    return items;
}

std::optional<std::string> OutputOf(const std::vector<std::string>& items) {
    if (items.size() <= kOutputLine || !BeginsWithKeyword(items[kOutputLine], kOutput))
        return std::nullopt;
    return std::string(Trimmed(std::string_view(items[kOutputLine]).substr(kOutput.size())));
}

// The word has to be in lower case, though the heading shows it with a capital.
bool RunsByItself(const std::vector<std::string>& items) {
    return items.size() > kAutorunLine && BeginsWithKeyword(items[kAutorunLine], kAutorun) &&
           items[kAutorunLine].ends_with(kTrue);
}

std::size_t FirstSequence(const std::vector<std::string>& items) {
    const auto found = std::find(items.begin(), items.end(), kSequencesLine);
    return found == items.end() ? 0 : static_cast<std::size_t>(found - items.begin()) + 1;
}

std::string StemOf(std::string_view path) {
    return std::string(path.substr(0, path.rfind('.') + 1));
}

std::string ExtensionOf(std::string_view path) {
    return std::string(path.substr(path.rfind('.') + 1));
}

}  // namespace arbolith
