// What a batch run adds to the models' own time, how fast the rows of its report are written, and
// whether its memory grows with the batch, as ratios within one run. --check turns the limits into
// the exit code.
#include "batch/html_report.h"
#include "batch/report_blocks.h"
#include "bench/application_folder.h"
#include "bench/bare_exchange.h"
#include "bench/bare_report.h"
#include "bench/measure.h"
#include "platform/headless_host.h"

#include <charconv>
#include <cstring>
#include <fstream>
#include <stdio.h>

namespace arbolith::bench {

namespace {

constexpr double kRunLimit = 1.3;
constexpr double kTextRowsLimit = 1.5;
constexpr double kHtmlRowsLimit = 0.8;
constexpr double kMemoryLimit = 1.2;
constexpr int kStands = 1000;

// Neither an editor nor a browser is wanted here.
class BenchHost : public HeadlessHost {
public:
    OpenResult Open(const std::string&) override { return OpenResult::kOpened; }
    std::unique_ptr<Process> Start(const ProgramStart& start) override {
        if (start.FileName() == "notepad") return std::make_unique<NoProcess>();
        return HeadlessHost::Start(start);
    }

private:
    class NoProcess : public Process {
    public:
        bool HasEnded() override { return true; }
        int EndDescriptor() const override { return -1; }
    };
};

// Stands of 120 years, softwood and hardwood, metric and imperial in turn.
std::string SequenceLine(int i) {
    const bool softwood = i % 2 == 0;
    return std::to_string(i + 1) + (softwood ? "\tS\t" : "\tH\t") + (i % 4 < 2 ? "Y" : "N") +
           "\tY\t" + (softwood ? "WP" : "RO") + "\t" + std::to_string(1 + i % 4) +
           "\t0.0\t1\t0.0\t0.0\t120\t0.0\t40.0\t0.0\t0.0\t0.0\t30.0\t0.0\t0.0\t100\t";
}

/// A program with an open batch of so many stands.
struct OpenBatch {
    OpenBatch() {
        for (int i = 0; i < kStands; ++i) {
            EntryAt(batch.SeqLines, i) = SequenceLine(i);
            batch.panel.Batch_Seq.AddItem("row");
        }
    }
    std::string Report() const { return folder.Path() + "/report"; }
    void Run(bool html) {
        batch.panel.batch_out.SetText(Report());
        batch.panel.batchHTML.SetValue(html);
        StartBatch(batch);
        if (batch.panel.TotalProg.Value() != batch.panel.TotalProg.Max())
            throw std::runtime_error("the batch run failed");
    }

    ApplicationFolder folder;
    BenchHost host;
    Application application{host, folder.Path(), ""};
    RunDefinition run{application};
    Batch batch{run};
};

/// The texts of a report that was written.
ReportTexts TextsOf(OpenBatch& open, bool html) {
    const auto report = ReadBytes(open.Report());
    constexpr const char* kYears = "?years?";
    ReportTexts texts;
    texts.html = html;
    texts.head = report.substr(0, report.find(html ? "<TABLE " : "\r\nPLOT#: "));
    if (html) {
        texts.tail = std::string(kTableEnd) + "\r\n";
        texts.end = std::string(kPageEnd) + "\r\n";
    }
    texts.columnHeads = std::string(kPlotHead) + "\t" + VariableHeads();
    for (int i = 0; i < kStands; ++i) {
        texts.plots.push_back(EntryAt(open.batch.SeqPlots, i));
        const auto table = BatchGetHTMLTableHeader(open.run, kYears, texts.plots.back(),
                                                   EntryAt(open.batch.SeqLines, i)) +
                           "\r\n";
        const auto years = table.find(kYears);
        texts.tablesBefore.push_back(table.substr(0, years));
        texts.tablesBehind.push_back(table.substr(years + std::strlen(kYears)));
    }
    return texts;
}

void WritePathFile(const std::string& folder, const std::string& wood) {
    std::ofstream(folder + "/_PATHINF.TMP", std::ios::binary)
        << folder << "/_" << wood << ".TMP\r\n"
        << folder << "/_" << wood << "OUT.TMP\r\n";
}

// The models on the input that the batch run has left, and the bare copy.
void RunBare(const std::string& folder, const ReportTexts& texts) {
    WritePathFile(folder, "SOFT");
    RunBareModel(folder, "SWQVL.exe");
    WritePathFile(folder, "HARD");
    RunBareModel(folder, "HWQVL.exe");
    CopyBare({folder + "/_HARDOUT.TMP", folder + "/_SOFTOUT.TMP"}, texts, folder + "/bare");
}

double RunRatio(bool html) {
    OpenBatch open;
    open.Run(html);
    const auto texts = TextsOf(open, html);
    const auto& folder = open.folder.Path();
    RunBare(folder, texts);
    if (ReadBytes(open.Report()) != ReadBytes(folder + "/bare"))
        throw std::runtime_error("the bare report is another one");
    return MedianRatio([&] { open.Run(html); }, [&] { RunBare(folder, texts); });
}

std::vector<std::array<double, 25>> NumbersOf(const std::string& output) {
    std::vector<std::array<double, 25>> rows;
    std::ifstream file(output);
    for (std::string line; std::getline(file, line);) {
        DataValues values;
        if (line.size() < 12) continue;
        SplitRow(line, values);
        auto& numbers = rows.emplace_back();
        for (std::size_t i = 0; i < numbers.size(); ++i) numbers[i] = std::stod(values[i + 1]);
    }
    return rows;
}

// Each number in its shortest text, padded to seven characters.
void PrintBare(const std::vector<std::array<double, 25>>& rows, const std::string& path) {
    constexpr std::ptrdiff_t kWidth = 7;
    std::ofstream file(path, std::ios::binary);
    for (const auto& numbers : rows) {
        std::array<char, 25 * 40> text;
        char* at = text.data();
        for (const double number : numbers) {
            std::array<char, 32> digits;
            const char* end =
                std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
            for (auto blanks = kWidth - (end - digits.data()); blanks > 0; --blanks) *at++ = ' ';
            at = std::copy(static_cast<const char*>(digits.data()), end, at);
            *at++ = '\t';
        }
        *at++ = '\n';
        file.write(text.data(), at - text.data());
    }
}

// The report's rows a second, from the model's output to the report, over those of the bare loop.
double RowsRatio(bool html) {
    OpenBatch open;
    open.Run(html);
    const auto output = open.folder.Path() + "/_SOFTOUT.TMP";
    const auto rows = NumbersOf(output);
    auto& files = open.application.Files();
    return MedianRatio([&] { PrintBare(rows, open.folder.Path() + "/bare"); },
                       [&] {
                           files.OpenForInput(kSoftwoodFile, output);
                           files.OpenForOutput(kReportFile, open.Report());
                           WriteBlocks(open.batch, kSoftwoodFile);
                           files.Close(kSoftwoodFile);
                           files.Close(kReportFile);
                       });
}

// The peak memory of a program that runs a batch of the samples, in KiB.
double PeakMemory(const std::string& sample) {
    const ApplicationFolder folder;
    const auto command =
        std::string(BATCH_PEAK) + " '" + folder.Path() + "' '" + SAMPLES + "/" + sample + "'";
    std::FILE* pipe = popen(command.c_str(), "r");
    double peak = 0;
    const bool told = pipe != nullptr && std::fscanf(pipe, "%lf", &peak) == 1;
    if (pipe == nullptr || pclose(pipe) != 0 || !told)
        throw std::runtime_error("can't run " + command);
    return peak;
}

double MemoryRatio() {
    std::vector<double> long_;
    std::vector<double> short_;
    for (int i = 0; i < 5; ++i) {
        long_.push_back(PeakMemory("full-batch.qvb"));
        short_.push_back(PeakMemory("ten-stands.qvb"));
    }
    return Median(long_) / Median(short_);
}

int Main(bool check) {
    Report report;
    report.AtMost("1000 stands to a text / bare models and copy", RunRatio(false), kRunLimit);
    report.AtMost("1000 stands to a page / bare models and copy", RunRatio(true), kRunLimit);
    report.AtLeast("rows of a text a second / bare numbers", RowsRatio(false), kTextRowsLimit);
    report.AtLeast("rows of a page a second / bare numbers", RowsRatio(true), kHtmlRowsLimit);
    report.AtMost("peak memory of 1025 stands / of 10", MemoryRatio(), kMemoryLimit);
    return check && !report.AllHold() ? 1 : 0;
}

}  // namespace

}  // namespace arbolith::bench

int main(int argc, char** argv) {
    return arbolith::bench::Main(argc > 1 && std::strcmp(argv[1], "--check") == 0);
}
