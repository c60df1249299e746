// The reader of run files: whatever a file holds, opening it ends in one of the told ways, and what
// was loaded can be saved and opened again.
#include "fuzz/counting_host.h"
#include "fuzz/fuzzer.h"
#include "platform/runtime_error.h"
#include "run_definition/reset.h"
#include "saved_runs/run_file.h"
#include "shell/program.h"
#include "unit/platform/temporary_folder.h"

namespace arbolith {

namespace {

// Rows of 20, 55 and 70 years: one for a spacing, two for a thinning.
constexpr const char* kModelOutput =
    "5\r\n"
    "0 20 10 1 1 1 1 1 2000 1 1 7 1 1 1 1 1 1 1 1 1 1 1 1 1 1\r\n"
    "0 55 25 20 1 1 1 1 900 1 1 20 1 1 1 1 1 1 1 1 1 1 1 1 1 1\r\n"
    "0 70 30 25 1 1 1 1 600 1 1 25 1 1 1 1 1 1 1 1 1 1 1 1 1 1\r\n";

class Reading {
public:
    Reading() {
        program_.Start();
        // No model is started; what one would leave stands ready.
        folder_.Write("_OUTPUT.TMP", kModelOutput);
    }

    void Open(const std::string& bytes, bool advanced) {
        run_.form.Adv_Mode.SetChecked(advanced);
        ResetInput(run_);
        application_.Files().CloseQuietly(1);
        host_.boxes = 0;
        folder_.Write("stand.qvn", bytes);
        ReadRunFile(saved_, folder_.PathOf("stand.qvn"));
        Require(run_.form.Qvly.Visible() && !run_.form.Batch.Visible(), "the single run shows");
        Require(host_.boxes <= kMostBoxes, "a reading shows few boxes");
        Require(!run_.ModelHeldBack, "the model is free again");
        if (!saved_.RunFilePath.empty()) SaveAgain();
    }

private:
    // A failed probe, and the closing check.
    static constexpr int kMostBoxes = 6;

    void SaveAgain() {
        Require(run_.StepsReached == 7 && !run_.InputChanged, "a loaded run is complete");
        host_.boxes = 0;
        WriteRunFile(saved_, folder_.PathOf("again.qvn"));
        Require(host_.boxes == 0, "a loaded run can be saved");
        Require(ParseRunFile(folder_.Read("again.qvn")).SPEC == run_.record.SPEC,
                "a saved run has its species");
    }

    TemporaryFolder folder_;
    CountingHost host_;
    Application application_{host_, folder_.Path(), ""};
    Program program_{application_};
    RunDefinition& run_ = program_.Run();
    SavedRuns& saved_ = program_.Saved();
};

}  // namespace

void FuzzOne(const std::string& input) {
    static Reading reading;
    reading.Open(input, false);
    reading.Open(input, true);
}

const std::vector<std::string>& FuzzWords() {
    static const std::vector<std::string> words = {"Softwood",
                                                   "Hardwood",
                                                   "Metric",
                                                   "Imperial",
                                                   "Yes",
                                                   "No",
                                                   "White Pine",
                                                   "Norway Spruce",
                                                   "Red Oak",
                                                   "White Birch",
                                                   "Trembling Aspen",
                                                   "0",
                                                   "0.0",
                                                   "1",
                                                   "6",
                                                   "13",
                                                   "20",
                                                   "55",
                                                   "80",
                                                   "119",
                                                   "120",
                                                   "-1",
                                                   "0.5",
                                                   "3.0",
                                                   "32767",
                                                   "32768",
                                                   "1E400",
                                                   "99999999999999999999",
                                                   std::string(400, '9'),
                                                   ",",
                                                   "\"",
                                                   "\r\n",
                                                   "\n",
                                                   "\r",
                                                   "\t",
                                                   " ",
                                                   std::string(1, '\0'),
                                                   "\xEF\xBB\xBF"};
    return words;
}

}  // namespace arbolith
