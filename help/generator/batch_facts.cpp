// Batch files and reports: their lines, the fields of a sequence, the limits of a batch.
#include "batch/batch.h"
#include "batch/batch_text.h"
#include "batch/sequence_line.h"
#include "batch/text_report.h"
#include "cli/arguments.h"
#include "generator/facts.h"
#include "generator/html.h"
#include "platform/text.h"

#include <array>

namespace arbolith::help {

namespace {

// What the fields of a sequence hold, in their order.
constexpr std::array kFieldMeanings = {
    "plot label: any text, or one blank for none",
    "<code>S</code> for softwood, <code>H</code> for hardwood",
    "<code>Y</code> for metric units, <code>N</code> for imperial ones",
    "<code>Y</code> for a natural stand, <code>N</code> for a planted one",
    "species code",
    "Land Capability class, or 0",
    "site index, when there is no class",
    "planted stems per hectare or acre; 1 for a natural stand",
    "X spacing of a plantation",
    "Y spacing of a plantation",
    "rotation age, or 0",
    "rotation DBH, when there is no rotation age",
    "age of treatment 1",
    "age of treatment 2",
    "DBH of treatment 1, when it is not given by age",
    "not used, always 0.0",
    "basal area that treatment 1 takes, per cent",
    "basal area that treatment 2 takes, per cent",
    "spacing that a precommercial thinning leaves",
    "expected stocking, per cent",
};

// Two stands as they stand in a file.
constexpr std::array kExamples = {
    "A12\tS\tY\tY\tWP\t6\t0.0\t1\t0.0\t0.0\t80\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t100\t",
    " \tH\tN\tY\tTA\t0\t65\t1\t0.0\t0.0\t63\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t70\t",
};

std::string Code(std::string_view text) {
    if (text == " ") return "one blank";
    return "<code>" + EscapedProgramText(text) + "</code>";
}

// The line of a new batch file that names the fields stands two above the sequences' own.
std::string FieldTable() {
    const auto heading = HeadingOfBatch(kDefaultTextOutput);
    const auto names = Split(heading[heading.size() - 3], '\t');
    if (names.size() != kFieldMeanings.size())
        throw BadPage("the fields of a sequence are others now");
    const auto first = Split(kExamples[0], '\t');
    const auto second = Split(kExamples[1], '\t');
    Table table({"Name", "Content", "First", "Second"});
    for (std::size_t i = 0; i < names.size(); ++i)
        table.Row({Code(names[i]), kFieldMeanings[i], Code(first[i]), Code(second[i])});
    return table.Html();
}

std::string WithArrowsForTabs(const std::string& line) {
    std::string text;
    for (const auto& field : Split(line, '\t')) text += (text.empty() ? "" : " → ") + field;
    return text;
}

// With the lines' numbers as a person counts them.
std::string NewBatchFile() {
    std::string text;
    int number = 1;
    for (const auto& line : HeadingOfBatch(kDefaultTextOutput)) {
        const auto place = std::to_string(number++);
        text += std::string(3 - place.size(), ' ') + place + "  " +
                WithArrowsForTabs(EscapedProgramText(line)) + "\n";
    }
    return "<pre>" + text + "</pre>\n";
}

std::string ConsoleHelp() {
    return "<pre>" + Escaped(console::HelpText()) + "</pre>\n";
}

}  // namespace

void AddBatchFacts(Facts& facts) {
    facts["batch-fields"] = [](const Words&, const Page&) { return FieldTable(); };
    facts["new-batch-file"] = [](const Words&, const Page&) { return NewBatchFile(); };
    facts["most-sequences"] = [](const Words&, const Page&) { return std::to_string(kSequences); };
    facts["plot-width"] = [](const Words&, const Page&) {
        return std::to_string(kPlotHead.size());
    };
    facts["console-help"] = [](const Words&, const Page&) { return ConsoleHelp(); };
}

}  // namespace arbolith::help
