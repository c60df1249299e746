// Runs the stands of a batch file on the forms' batch view.
#include "batch/batch_text.h"
#include "batch/report_blocks.h"
#include "cli/batch_lines.h"
#include "cli/commands.h"
#include "cli/delivery.h"
#include "cli/request_files.h"
#include "cli/session.h"
#include "cli/tables.h"
#include "model_bridge/exchange.h"
#include "platform/code_page.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <filesystem>
#include <vector>

namespace arbolith::console {

namespace {

namespace fs = std::filesystem;

// What the program says of results is about a window and a browser; this is told instead.
constexpr const char* kUnusable = "the results can't be used";

struct Wood {
    std::string_view letter;
    const char* type;
    const char* outputName;
};

constexpr Wood kWoods[] = {{"S", "Softwood", kSoftwoodOutputName},
                           {"H", "Hardwood", kHardwoodOutputName}};

class BatchJob {
public:
    BatchJob(const Request& request, Terminal& terminal)
        : request_(request),
          terminal_(terminal),
          session_(terminal, ModelFolder(request)),
          batch_(session_.Forms().GetBatch()),
          panel_(batch_.panel) {
        session_.host.progress = [this] {
            return panel_.TotalProg.Value() / panel_.TotalProg.Max();
        };
    }

    ExitStatus Do() {
        return session_.Carry(request_.file, [this] { return Work(); });
    }

private:
    ExitStatus Work() {
        Read();
        JudgeTheLines();
        ChooseReport();
        Run();
        const auto stands = Stands();
        terminal_.ClearProgress();
        Deliver(format_ == Format::kCsv ? CsvText(stands)
                                        : ReadWholeFile(session_.Folder().ReportPath()),
                output_);
        TellMissing(stands);
        return isIncomplete_ ? ExitStatus::kIncomplete : ExitStatus::kOk;
    }

    [[noreturn]] void Refuse(ExitStatus status, const std::string& reason) const {
        throw Failure{status, request_.file + ": " + reason};
    }
    void Tell(const std::string& message) {
        terminal_.Say(request_.file + ": " + message);
        isIncomplete_ = true;
    }

    void Read() {
        session_.host.CallBoxes(ExitStatus::kBadFile, request_.file);
        session_.Do([this] { LoadBatch(batch_, request_.file); });
    }

    void JudgeTheLines() {
        LineJudgement lines;
        session_.Do([&] { lines = JudgeLines(batch_, request_.file); });
        if (!lines.isRead) Refuse(ExitStatus::kBadFile, lines.reason);
        for (const auto& line : lines.leftOut) Tell('"' + ToUtf8(line) + "\" is no stand");
        if (lines.breaksTheBatch)
            Refuse(ExitStatus::kBadFile, "what is no stand must not stand between the stands");
        if (panel_.Batch_Seq.ListCount() == 0) Refuse(ExitStatus::kBadFile, "it holds no stands");
    }

    // What the request leaves open the batch file says.
    void ChooseReport() {
        const auto& told = panel_.batch_out.Text();
        const bool isTold = !told.empty() && told != kNoOutputSelected;
        output_ = request_.output.value_or(isTold ? told : kStandardOutput);
        format_ = request_.format.value_or(FormatByName(output_));
        if (!request_.output && isTold && FormatByName(output_) != format_)
            output_ = fs::path(output_).replace_extension(ExtensionOf(format_)).string();
        RequireOther(output_, request_.file);
        if (format_ == Format::kText) RequireShortLabels();
    }

    void RequireShortLabels() const {
        for (int i = 0; i < panel_.Batch_Seq.ListCount(); ++i) {
            const auto plot = SequenceFields(EntryAt(batch_.SeqLines, i))[SequenceField::kPlot];
            if (plot.size() > kPlotHead.size())
                Refuse(ExitStatus::kRefused,
                       "the plot label \"" + ToUtf8(plot) + "\" is longer than the " +
                           std::to_string(kPlotHead.size()) + " characters of a text report");
        }
    }

    // The tables of a CSV report are taken from the results; the page is then only the one of the
    // reports that takes every plot label.
    void Run() {
        session_.host.CallBoxes(ExitStatus::kModel, kUnusable);
        try {
            session_.Do([this] {
                panel_.batchHTML.SetValue(format_ != Format::kText);
                panel_.batch_out.SetText(session_.Folder().ReportPath());
                StartBatch(batch_);
            });
        } catch (const Failure& failure) {
            if (failure.message.starts_with(kUnusable)) RefuseResults();
            throw;
        }
    }

    std::vector<CsvStand> Stands() {
        std::vector<CsvStand> stands;
        try {
            session_.Do([&] { stands = TablesOf(batch_); });
        } catch (const Failure&) {
            RefuseResults();
        }
        return stands;
    }

    [[noreturn]] void RefuseResults() const {
        const auto& folder = session_.Folder();
        if (!fs::exists(folder.PathOf(kPathFileName)))
            Refuse(ExitStatus::kRefused,
                   "its plot labels are too high: stands are numbered up to 32767");
        const auto& woods = batch_.SeqWoods;
        std::string called;
        for (const auto& wood : kWoods) {
            if (std::find(woods.begin(), woods.end(), wood.letter) == woods.end()) continue;
            const std::string model = ModelFileName(wood.type);
            if (!fs::exists(folder.PathOf(wood.outputName)))
                throw Failure{ExitStatus::kModel, model + " left no result"};
            called += (called.empty() ? "" : " or ") + model;
        }
        throw Failure{ExitStatus::kModel, called + " left a result that can't be used"};
    }

    void TellMissing(const std::vector<CsvStand>& stands) {
        for (const auto& stand : stands)
            if (stand.rows.empty()) Tell("the stand of plot " + stand.plot + " has no result");
    }

    const Request& request_;
    Terminal& terminal_;
    Session session_;
    Batch& batch_;
    BatchPanel& panel_;
    Format format_ = Format::kText;
    std::string output_;
    bool isIncomplete_ = false;
};

}  // namespace

ExitStatus RunBatchFile(const Request& request, Terminal& terminal) {
    RequireReadable(request.file);
    return BatchJob(request, terminal).Do();
}

}  // namespace arbolith::console
