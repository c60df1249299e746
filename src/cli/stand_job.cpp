// Runs the stand of a run file on the forms' single-run view. The form's own reader gives up the
// amounts of the treatments; here they are put into the fields that the stand offers, and a value
// of the file that the run can't have is a refusal.
#include "batch/html_report.h"
#include "cli/commands.h"
#include "cli/delivery.h"
#include "cli/request_files.h"
#include "cli/session.h"
#include "cli/tables.h"
#include "model_bridge/exchange.h"
#include "model_bridge/treatment_probe.h"
#include "platform/code_page.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "platform/whole_file.h"
#include "run_definition/apply_steps.h"
#include "run_definition/commit.h"
#include "run_definition/step_engine.h"
#include "saved_runs/run_file.h"

#include <algorithm>
#include <filesystem>
#include <vector>

namespace arbolith::console {

namespace {

constexpr int kAllSteps = 7;
// The filters of the save dialog.
constexpr int kTextFilter = 1;
constexpr int kHtmlFilter = 2;
// Of the yield table and of its text report.
constexpr int kFirstDataRow = 2;
constexpr int kTextHeadLines = 5;

/// A value as the file has it and as the run has it.
struct Comparison {
    const char* what;
    const std::string& told;
    double taken;
};

std::vector<Comparison> Compare(const RunFile& file, const RunRecord& record) {
    return {{"spacing X", file.SPX, record.SPX},
            {"spacing Y", file.SPY, record.SPY},
            {"site index", file.SIB, record.SIB},
            {"land capability", file.LC, static_cast<double>(record.LC)},
            {"stocking", file.STK, static_cast<double>(record.STK)},
            {"rotation age", file.RAGE, static_cast<double>(record.RAGE)},
            {"rotation DBH", file.RDBH, record.RDBH},
            {"age of treatment 1", file.T1Age, record.T1Age},
            {"DBH of treatment 1", file.T1DBH, record.T1DBH},
            {"basal area reduction of treatment 1", file.T1IBA, record.T1IBA},
            {"spacing of treatment 1", file.ISD, record.ISD},
            {"age of treatment 2", file.T2Age, record.T2Age},
            {"basal area reduction of treatment 2", file.T2IBA, record.T2IBA}};
}

class StandJob {
public:
    StandJob(const Request& request, Terminal& terminal)
        : request_(request),
          terminal_(terminal),
          session_(terminal, ModelFolder(request)),
          run_(session_.Forms().Run()),
          output_(request.output.value_or(kStandardOutput)),
          format_(request.format.value_or(FormatByName(output_))) {
        session_.host.progress = [this] { return done_; };
    }

    ExitStatus Do() {
        try {
            return Work();
        } catch (const Failure&) {
            // All else may have followed from this.
            session_.Folder().RequireRoom();
            throw;
        }
    }

private:
    ExitStatus Work() {
        RequireOther(output_, request_.file);
        Read();
        RestoreAmounts();
        Check();
        Run();
        const auto report = Report();
        terminal_.ClearProgress();
        Deliver(report, output_);
        return ExitStatus::kOk;
    }

    std::string WorkReport() const { return session_.Folder().PathOf("report.out"); }

    [[noreturn]] void Refuse(ExitStatus status, const std::string& reason) const {
        throw Failure{status, request_.file + ": " + reason};
    }

    void Read() {
        Parse();
        session_.host.CallBoxes(ExitStatus::kBadFile, request_.file);
        auto& saved = session_.Forms().Saved();
        try {
            session_.Do([&] { ReadRunFile(saved, request_.file); });
        } catch (const Failure& failure) {
            // Without the amounts the treatments can't be judged yet.
            if (failure.status != ExitStatus::kRefused) throw;
        }
        if (saved.RunFilePath != request_.file)
            Refuse(ExitStatus::kBadFile, "it can't be read as a run file");
    }

    void Parse() {
        try {
            file_ = ParseRunFile(ReadWholeFile(request_.file));
        } catch (const RuntimeError&) {
            Refuse(ExitStatus::kBadFile, "it ends before all values of a run are told");
        }
        if (file_.WDTYPE != "Softwood" && file_.WDTYPE != "Hardwood")
            Refuse(ExitStatus::kBadFile,
                   "it is no run file: its wood type is neither Softwood nor "
                   "Hardwood");
    }

    // Each amount may open the field of the next one.
    void RestoreAmounts() {
        auto& form = run_.form;
        session_.Do([&] { Restore(form.BA1, file_.T1IBA); });
        session_.Do([&] { Restore(form.Spacing, file_.ISD); });
        session_.Do([&] { Restore(form.Age2, file_.T2Age); });
        session_.Do([&] { Restore(form.BA2, file_.T2IBA); });
    }

    static void Restore(TextBox& field, const std::string& told) {
        if (field.Enabled() && Val(told) != 0) field.SetText(DefaultText(Val(told)));
    }

    void Check() {
        session_.Do([this] {
            ApplyStep7(run_);
            TreatmentProbe(run_);
            CheckSteps(run_, kAllSteps);
            CommitStep7(run_);
        });
        if (run_.StepErrorFlag) Refuse(ExitStatus::kRefused, run_.StepErrorText);
        for (const auto& value : Compare(file_, run_.record))
            if (Val(value.told) != value.taken)
                Refuse(ExitStatus::kRefused, std::string("the ") + value.what + " is " +
                                                 value.told + ", but the run can only have " +
                                                 DefaultText(value.taken));
    }

    void Run() {
        done_ = 0.5;
        const std::string model = ModelFileName(run_.record.WDTYPE);
        session_.host.CallBoxes(ExitStatus::kModel, model + " left no result");
        session_.Click(run_.form.Run);
        const auto* output = session_.Forms().Results().output.Find();
        if (output == nullptr || !output->form.Visible())
            throw Failure{ExitStatus::kModel, model + " left a result that can't be used"};
    }

    std::string Report() {
        auto& output = *session_.Forms().Results().output.Find();
        const auto name = std::filesystem::path(request_.file).stem().string();
        if (format_ == Format::kCsv) return CsvText({TableOf(output, run_, FromUtf8(name))});
        session_.host.report =
            FileChoice{WorkReport(), format_ == Format::kHtml ? kHtmlFilter : kTextFilter};
        session_.Click(output.form.Save_Mnu);
        auto report = ReadWholeFile(WorkReport());
        RequireWhole(report, output.form.Table.Rows() - kFirstDataRow);
        return report;
    }

    // The save tells no failure.
    void RequireWhole(const std::string& report, int rows) const {
        const bool isWhole =
            format_ == Format::kHtml
                ? report.ends_with(std::string(kPageEnd) + "\r\n")
                : std::count(report.begin(), report.end(), '\n') == kTextHeadLines + rows;
        if (!isWhole)
            throw Failure{ExitStatus::kCannotWrite,
                          session_.Folder().Path() + ": the report can't be written there"};
    }

    const Request& request_;
    Terminal& terminal_;
    Session session_;
    RunDefinition& run_;
    std::string output_;
    Format format_;
    RunFile file_;
    double done_ = 0;
};

}  // namespace

ExitStatus RunStandFile(const Request& request, Terminal& terminal) {
    RequireReadable(request.file);
    return StandJob(request, terminal).Do();
}

}  // namespace arbolith::console
