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
#include "platform/text.h"
#include "platform/whole_file.h"
#include "run_definition/apply_steps.h"
#include "run_definition/commit.h"
#include "run_definition/step_engine.h"
#include "saved_runs/run_file.h"

#include <algorithm>
#include <filesystem>

namespace arbolith::console {

namespace {

constexpr int kAllSteps = 7;
// The filters of the save dialog.
constexpr int kTextFilter = 1;
constexpr int kHtmlFilter = 2;
// Of the yield table and of its text report.
constexpr int kFirstDataRow = 2;
constexpr int kTextHeadLines = 5;

/// A number of the file, and what the run takes for it.
struct Number {
    const char* what;
    std::string RunFile::*told;
    double (*taken)(const RunRecord& record);
};

template <auto kField>
double Taken(const RunRecord& record) {
    return static_cast<double>(record.*kField);
}

constexpr Number kNumbers[] = {
    {"spacing X", &RunFile::SPX, Taken<&RunRecord::SPX>},
    {"spacing Y", &RunFile::SPY, Taken<&RunRecord::SPY>},
    {"site index", &RunFile::SIB, Taken<&RunRecord::SIB>},
    {"land capability", &RunFile::LC, Taken<&RunRecord::LC>},
    {"stocking", &RunFile::STK, Taken<&RunRecord::STK>},
    {"rotation age", &RunFile::RAGE, Taken<&RunRecord::RAGE>},
    {"rotation DBH", &RunFile::RDBH, Taken<&RunRecord::RDBH>},
    {"age of treatment 1", &RunFile::T1Age, Taken<&RunRecord::T1Age>},
    {"DBH of treatment 1", &RunFile::T1DBH, Taken<&RunRecord::T1DBH>},
    {"basal area reduction of treatment 1", &RunFile::T1IBA, Taken<&RunRecord::T1IBA>},
    {"spacing of treatment 1", &RunFile::ISD, Taken<&RunRecord::ISD>},
    {"age of treatment 2", &RunFile::T2Age, Taken<&RunRecord::T2Age>},
    {"DBH of treatment 2", &RunFile::T2DBH, Taken<&RunRecord::T2DBH>},
    {"basal area reduction of treatment 2", &RunFile::T2IBA, Taken<&RunRecord::T2IBA>},
};

// The form takes the number that a text begins with; here all of it has to be one. An empty field
// tells nothing.
bool IsNumber(const std::string& told) {
    const auto text = Trimmed(told);
    try {
        return text.empty() || ParseReal(text) == Val(text);
    } catch (const RuntimeError&) {
        return false;
    }
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
        return session_.Carry(request_.file, [this] { return Work(); });
    }

private:
    ExitStatus Work() {
        RequireOther(output_, request_.file);
        Read();
        RestoreAmounts();
        Check();
        Run();
        const auto table = Table();
        const auto report = format_ == Format::kCsv ? CsvText({table}) : SavedReport();
        terminal_.ClearProgress();
        Deliver(report, output_);
        if (!table.rows.empty()) return ExitStatus::kOk;
        Tell("the stand has no result");
        return ExitStatus::kIncomplete;
    }

    [[noreturn]] void Refuse(ExitStatus status, const std::string& reason) const {
        throw Failure{status, request_.file + ": " + reason};
    }
    void Tell(const std::string& message) const { terminal_.Say(request_.file + ": " + message); }

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
        for (const auto& number : kNumbers)
            if (const auto& told = file_.*number.told; !IsNumber(told))
                Refuse(ExitStatus::kBadFile, std::string("the ") + number.what + " is " +
                                                 ToUtf8(told) + ", which is no number");
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
        for (const auto& number : kNumbers) {
            const auto& told = file_.*number.told;
            const double taken = number.taken(run_.record);
            if (Val(told) != taken)
                Refuse(ExitStatus::kRefused, std::string("the ") + number.what + " is " + told +
                                                 ", but the run can only have " +
                                                 DefaultText(taken));
        }
        TellWhatIsNotLookedAt();
    }

    // What takes no value away from the run.
    void TellWhatIsNotLookedAt() const {
        const auto& told = file_.FREQ;
        const double frequency = WholePart(run_.record.FREQ);
        if (!told.empty() && (!IsNumber(told) || Val(told) != frequency))
            Tell("the frequency " + ToUtf8(told) + " is not looked at: the spacings give " +
                 DefaultText(frequency));
        if (file_.goesOn) Tell("what stands behind the spacing of treatment 1 is not looked at");
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

    Output& Results() { return *session_.Forms().Results().output.Find(); }

    CsvStand Table() {
        const auto name = std::filesystem::path(request_.file).stem().string();
        return TableOf(Results(), run_, AnyToUtf8(name));
    }

    std::string SavedReport() {
        auto& form = Results().form;
        const auto path = session_.Folder().ReportPath();
        session_.host.report =
            FileChoice{path, format_ == Format::kHtml ? kHtmlFilter : kTextFilter};
        session_.Click(form.Save_Mnu);
        auto report = std::filesystem::exists(path) ? ReadWholeFile(path) : "";
        RequireWhole(report, form.Table.Rows() - kFirstDataRow);
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
