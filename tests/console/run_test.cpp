#include "console/console_run.h"
#include "forms/user_actions.h"
#include "platform/headless_host.h"
#include "shell/program.h"

#include <algorithm>
#include <filesystem>

namespace arbolith {

namespace {

/// A host that answers the save dialog.
class SavingHost : public HeadlessHost {
public:
    std::optional<FileChoice> ChooseFile(const FileQuestion&) override { return choice; }
    FileChoice choice;
};

std::vector<std::string> SampleNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(ARBOLITH_SAMPLES))
        if (entry.path().extension() == ".qvn") names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace

class RunFileRuns : public ConsoleTest {
public:
    Ended RunStand(const StandLines& lines, const std::vector<std::string>& options = {}) const {
        work.Write("stand.qvn", lines.Text());
        std::vector<std::string> words = {"run", "stand.qvn"};
        words.insert(words.end(), options.begin(), options.end());
        return Run(words);
    }

    // The report of the same stand as a person gets it who opens the file, enters the amount of
    // the basal area, runs and saves. The filter is 1 for text, 2 for HTML.
    std::string ReportOnTheForms(const StandLines& lines, int filter, const std::string& amount) {
        work.Write("stand.qvn", lines.Text());
        SavingHost host;
        host.choice = {work.PathOf("forms.out"), filter};
        Application application(host, models.Path(), "");
        Program program(application);
        UserActions person(application);
        program.Start();
        person.Click(program.GetSplash().Picture1);
        application.Enter([&] { ReadRunFile(program.Saved(), work.PathOf("stand.qvn")); });
        if (!amount.empty()) person.Type(program.Run().form.BA1, amount);
        person.Click(program.Run().form.Run);
        person.Click(program.Results().output.Find()->form.Save_Mnu);
        return work.Read("forms.out");
    }
};

TEST_F(RunFileRuns, GivesTheFormsTextReport) {
    const auto ended = RunStand({});
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.errors, "");
    EXPECT_EQ(ended.output, ReportOnTheForms({}, 1, ""));
    EXPECT_TRUE(LeftNothingBehind());
}

TEST_F(RunFileRuns, GivesTheFormsHtmlReport) {
    StandLines oak;
    oak.system = "Hardwood,Imperial";
    oak.species = "Red Oak";
    oak.site = "0.0,3";
    const auto ended = RunStand(oak, {"--format", "html"});
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.output, ReportOnTheForms(oak, 2, ""));
}

TEST_F(RunFileRuns, KeepsTheAmountOfATreatment) {
    StandLines thinned;
    thinned.treatments = "60,0,0.0,0.0,30,0,0.0";
    const auto ended = RunStand(thinned);
    EXPECT_EQ(ended.status, 0) << ended.errors;
    EXPECT_EQ(ended.output, ReportOnTheForms(thinned, 1, "30"));
}

TEST_F(RunFileRuns, KeepsBothTreatments) {
    StandLines thinned;
    thinned.treatments = "60,80,0.0,0.0,30,25,0.0";
    const auto ended = RunStand(thinned);
    EXPECT_EQ(ended.status, 0) << ended.errors;
    EXPECT_EQ(LineOf(ended.output, 1),
              "S\tY\tY\tWP\t8\t0.0\t1\t0.0\t0.0\t100\t0.0\t60.0\t80.0\t0.0\t0.0\t30.0\t25.0\t0.0\t"
              "100\t");
}

TEST_F(RunFileRuns, KeepsASpacing) {
    StandLines spaced;
    spaced.treatments = "20,0,0.0,0.0,0,0,2.5";
    const auto ended = RunStand(spaced);
    EXPECT_EQ(ended.status, 0) << ended.errors;
    EXPECT_NE(LineOf(ended.output, 1).find("\t20.0\t0.0\t0.0\t0.0\t0.0\t0.0\t2.5\t100\t"),
              std::string::npos);
}

TEST_F(RunFileRuns, KeepsDecimalsOfAnAmount) {
    StandLines thinned;
    thinned.treatments = "60,0,0.0,0.0,22.5,0,0.0";
    EXPECT_NE(LineOf(RunStand(thinned).output, 1).find("\t22.5\t"), std::string::npos);
}

TEST_F(RunFileRuns, TellsWhatTheChecksRefuse) {
    StandLines stand;
    stand.stocking = "500";
    const auto stocked = RunStand(stand);
    EXPECT_EQ(stocked.status, 4);
    EXPECT_EQ(stocked.output, "");
    EXPECT_EQ(
        stocked.errors,
        "arbolith-cli: stand.qvn: The Stocking index is outside the valid range: Please enter "
        "a Stocking Index between 1% and 100%\n");
    stand.stocking = "100";
    stand.treatments = "60,0,0.0,0.0,70,0,0.0";
    const auto thinned = RunStand(stand);
    EXPECT_EQ(thinned.status, 4);
    EXPECT_EQ(thinned.errors,
              "arbolith-cli: stand.qvn: Basal Area Reduction must be in the range of 10 to 60 "
              "percent.\n");
}

TEST_F(RunFileRuns, RefusesAThinningThatIsNotPossible) {
    StandLines stand;
    stand.treatments = "5,0,0.0,0.0,30,0,0.0";
    const auto ended = RunStand(stand);
    EXPECT_EQ(ended.status, 4);
    EXPECT_EQ(ended.errors,
              "arbolith-cli: stand.qvn: Treatment #1 parameters are not valid because neither "
              "treatment type is possible at the time specified.\n");
}

TEST_F(RunFileRuns, DropsNoValueSilently) {
    StandLines stand;
    stand.rotation = "80.5,0.0";
    EXPECT_EQ(RunStand(stand).errors,
              "arbolith-cli: stand.qvn: the rotation age is 80.5, but the run can only have 80\n");
    stand.rotation = "100,0.0";
    // A second thinning without a first; a spacing where only basal area can be removed; two times.
    stand.treatments = "0,60,0.0,0.0,0,25,0.0";
    EXPECT_EQ(
        RunStand(stand).errors,
        "arbolith-cli: stand.qvn: the age of treatment 2 is 60, but the run can only have 0\n");
    stand.treatments = "60,0,0.0,0.0,30,0,2.5";
    EXPECT_EQ(
        RunStand(stand).errors,
        "arbolith-cli: stand.qvn: the spacing of treatment 1 is 2.5, but the run can only have "
        "0\n");
    stand.treatments = "60,0,20.0,0.0,30,0,0.0";
    const auto ended = RunStand(stand);
    EXPECT_EQ(ended.errors,
              "arbolith-cli: stand.qvn: the DBH of treatment 1 is 20.0, but the run can only have "
              "0\n");
    EXPECT_EQ(ended.status, 4);
    stand.treatments = "60,80,0.0,12.5,30,25,0.0";
    EXPECT_EQ(RunStand(stand).errors,
              "arbolith-cli: stand.qvn: the DBH of treatment 2 is 12.5, but the run can only have "
              "0\n");
}

TEST_F(RunFileRuns, TakesNoBeginningOfATextForItsNumber) {
    StandLines stand;
    stand.stocking = "8O";
    const auto stocked = RunStand(stand);
    EXPECT_EQ(stocked.status, 3);
    EXPECT_EQ(stocked.errors, "arbolith-cli: stand.qvn: the stocking is 8O, which is no number\n");
    stand.stocking = "100";
    const std::vector<std::string> fields = {"none", "1e2", "\xBD", std::string(400, '9')};
    for (const auto& field : fields) {
        stand.treatments = "60,0,0.0,0.0,30," + field + ",0.0";
        EXPECT_EQ(RunStand(stand).status, 3) << field;
    }
    EXPECT_EQ(RunStand(stand).output, "");
    // Nothing is no text.
    stand.treatments = ",,,,,,";
    EXPECT_EQ(RunStand(stand).status, 0);
}

TEST_F(RunFileRuns, TellsWhatTheFormDoesntLookAt) {
    StandLines stand;
    stand.species = "White Spruce";
    stand.regeneration = "No,Yes,2.0,2.0,2500";
    EXPECT_EQ(RunStand(stand).errors, "");
    stand.regeneration = "No,Yes,2.0,2.0,999";
    stand.treatments += "\r\n\r\nanother stand";
    const auto ended = RunStand(stand);
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(
        ended.errors,
        "arbolith-cli: stand.qvn: the frequency 999 is not looked at: the spacings give "
        "2500\n"
        "arbolith-cli: stand.qvn: what stands behind the spacing of treatment 1 is not looked "
        "at\n");
    EXPECT_NE(LineOf(ended.output, 1).find("\t2500\t2.0\t2.0\t"), std::string::npos);
}

TEST_F(RunFileRuns, TellsAFileThatIsNone) {
    StandLines stand;
    stand.species = "Red Oak";
    const auto wrong = RunStand(stand);
    EXPECT_EQ(wrong.status, 3);
    EXPECT_EQ(wrong.errors, "arbolith-cli: stand.qvn: File is corrupt or wrong format\n");
    work.Write("stand.qvn", "banner\r\nSoftwood,Metric\r\n");
    const auto cut = Run({"run", "stand.qvn"});
    EXPECT_EQ(cut.status, 3);
    EXPECT_EQ(cut.errors, "arbolith-cli: stand.qvn: it ends before all values of a run are told\n");
    stand.system = "Palm,Metric";
    EXPECT_EQ(RunStand(stand).status, 3);
}

TEST_F(RunFileRuns, WritesCsvWithTheFilesNameAsPlot) {
    work.Write("Érable 7.qvn", StandLines().Text());
    const auto ended = Run({"run", "Érable 7.qvn", "--output", "r.csv"});
    EXPECT_EQ(ended.status, 0) << ended.errors;
    const auto csv = work.Read("r.csv");
    EXPECT_TRUE(LineOf(csv, 0).starts_with("Plot,Wood,Species,"));
    EXPECT_TRUE(LineOf(csv, 1).starts_with("Érable 7,Softwood,White Pine,"));
    // No matter whether the program's own texts could hold it.
    work.Write("Łąka.qvn", StandLines().Text());
    EXPECT_TRUE(LineOf(Run({"run", "Łąka.qvn", "--format", "csv"}).output, 1)
                    .starts_with("Łąka,Softwood,White Pine,"));
    // As many ages as the text report has lines below its heads.
    const auto text = Run({"run", "Érable 7.qvn"}).output;
    const auto lines = [](const std::string& report) {
        return std::count(report.begin(), report.end(), '\n');
    };
    EXPECT_EQ(lines(csv) - 1, lines(text) - 5);
}

TEST_F(RunFileRuns, EverySampleRuns) {
    for (const auto& name : SampleNames()) {
        const auto ended = Run({"run", std::string(ARBOLITH_SAMPLES) + "/" + name + ".qvn"});
        EXPECT_EQ(ended.status, 0) << name << ": " << ended.errors;
        EXPECT_GT(ended.output.size(), 1000U) << name;
    }
    EXPECT_TRUE(LeftNothingBehind());
}

}  // namespace arbolith
