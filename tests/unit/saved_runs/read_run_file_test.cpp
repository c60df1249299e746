// Opening: what becomes of files that are not as the writer makes them, and of saved treatments.
#include "run_definition/reset.h"
#include "unit/platform/ordinary_user.h"
#include "unit/saved_runs/saved_testing.h"

#include <filesystem>
#include <ostream>

namespace arbolith {
namespace {

// How a reading ends.
enum class End {
    kLoaded,
    kRefused,      ///< Told as a bad file, with a reset.
    kUnknownWood,  ///< Told as an unknown error.
    kBrokenOff,    ///< Not told; the input stays as it was.
};

struct Damage {
    const char* name;
    std::string (*inflict)(RunFileText lines, std::size_t line);
    std::array<End, 8> ends;  ///< For each line.

    friend std::ostream& operator<<(std::ostream& out, const Damage& d) { return out << d.name; }
};

std::string Drop(RunFileText lines, std::size_t line) {
    const auto gone = lines[line] + "\r\n";
    auto text = Joined(lines);
    return text.erase(text.find(gone), gone.size());
}
std::string Double(RunFileText lines, std::size_t line) {
    lines[line] += "\r\n" + lines[line];
    return Joined(lines);
}
std::string Empty(RunFileText lines, std::size_t line) {
    lines[line].clear();
    return Joined(lines);
}
std::string Lengthen(RunFileText lines, std::size_t line) {
    lines[line] += std::string(1'000'000, 'x');
    return Joined(lines);
}
std::string EndInNul(RunFileText lines, std::size_t line) {
    lines[line] += '\0';
    return Joined(lines);
}

using enum End;
constexpr Damage kDamages[] = {
    {"MissingLine",
     Drop,
     {kBrokenOff, kBrokenOff, kBrokenOff, kBrokenOff, kBrokenOff, kBrokenOff, kBrokenOff,
      kBrokenOff}},
    {"DoubledLine",
     Double,
     {kUnknownWood, kRefused, kRefused, kRefused, kRefused, kRefused, kLoaded, kLoaded}},
    {"EmptyLine",
     Empty,
     {kLoaded, kBrokenOff, kBrokenOff, kRefused, kBrokenOff, kLoaded, kBrokenOff, kBrokenOff}},
    {"OverlongLine",
     Lengthen,
     {kLoaded, kRefused, kLoaded, kRefused, kLoaded, kLoaded, kLoaded, kLoaded}},
    {"NulInLine",
     EndInNul,
     {kLoaded, kRefused, kLoaded, kRefused, kLoaded, kLoaded, kLoaded, kLoaded}},
};

class DamagedRunFile : public SavedRunsTest, public testing::WithParamInterface<Damage> {
protected:
    void ExpectEnd(End end) {
        EXPECT_EQ(saved.RunFilePath.empty(), end != kLoaded);
        EXPECT_EQ(run.record.SPEC.empty(), end != kLoaded);
        if (end == kLoaded) return;
        const std::string told = host.boxes.empty() ? "" : host.boxes[0].text;
        EXPECT_EQ(told, end == kRefused ? "File is corrupt or wrong format"
                        : end == kUnknownWood
                            ? "An unknown error has occurred.  The program should be restarted."
                            : "");
    }
};

TEST_P(DamagedRunFile, EndsAsItsLineDecides) {
    for (std::size_t line = 0; line < 8; ++line) {
        SCOPED_TRACE("line " + std::to_string(line + 1));
        ResetInput(run);
        application.Files().CloseQuietly(1);
        host.boxes.clear();
        Read(GetParam().inflict(PineFile(), line));
        ExpectEnd(GetParam().ends[line]);
    }
}

INSTANTIATE_TEST_SUITE_P(RunFile, DamagedRunFile, testing::ValuesIn(kDamages),
                         [](const auto& test) { return std::string(test.param.name); });

using ReadRunFileTest = SavedRunsTest;

TEST_F(ReadRunFileTest, BindsTheRunToItsFile) {
    Read(PineFile());
    EXPECT_EQ(saved.RunFilePath, folder.PathOf("stand.qvn"));
    EXPECT_FALSE(run.InputChanged);
    EXPECT_EQ(run.StepsReached, 7);
    EXPECT_TRUE(form.Step1.Showing());
    EXPECT_EQ(run.record.LC, 6);
}

TEST_F(ReadRunFileTest, ComesBackFromTheBatchViewEvenWithoutTheFile) {
    form.Batch.SetVisible(true);
    form.Qvly.SetVisible(false);
    ReadRunFile(saved, folder.PathOf("missing.qvn"));
    EXPECT_FALSE(form.Batch.Visible());
    EXPECT_TRUE(form.Qvly.Visible());
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text, kLoadFailed);
}

TEST_F(ReadRunFileTest, TellsAFolderInTheFilesPlace) {
    folder.Block("stand.qvn");
    ReadRunFile(saved, folder.PathOf("stand.qvn"));
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text, kLoadFailed);
    EXPECT_EQ(host.boxes[0].title, "");
}

TEST_F(ReadRunFileTest, TellsAFileThatMustNotBeRead) {
    folder.Write("stand.qvn", Joined(PineFile()));
    std::filesystem::permissions(folder.PathOf("stand.qvn"), std::filesystem::perms::none);
    const OrdinaryUser user(folder);
    ReadRunFile(saved, folder.PathOf("stand.qvn"));
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text, kLoadFailed);
}

TEST_F(ReadRunFileTest, UnwindsWhenTheProgramEndsWhileItWaitsForTheModel) {
    auto lines = PineFile();
    lines[7] = "55,0,0.0,0.0,30,0,0.0";
    folder.Write("stand.qvn", Joined(lines));
    host.files = {{folder.PathOf("stand.qvn")}};
    host.whileWaiting = [this] { person.Click(form.Exit_Program); };
    person.Click(form.Open_Mnu);
    EXPECT_TRUE(host.gaveUp);
    EXPECT_EQ(host.ends, 1);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(saved.RunFilePath, "");
}

TEST_F(ReadRunFileTest, GivesUpSilentlyOnAFileWithoutEnd) {
    ReadRunFile(saved, "/dev/zero");
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(saved.RunFilePath, "");
}

TEST_F(ReadRunFileTest, EndsSilentlyAtANumberThatDoesNotFitAndFreesItsNumber) {
    for (const auto& [line, text] : {std::pair<std::size_t, std::string>{5, "40000"},
                                     {6, "40000,0.0"},
                                     {4, std::string(400, '9') + ",0"},
                                     {7, std::string(400, '9') + ",0,0.0,0.0,0,0,0.0"}}) {
        auto lines = PineFile();
        lines[line] = text;
        Read(lines);
        EXPECT_TRUE(host.boxes.empty()) << text;
        EXPECT_EQ(saved.RunFilePath, "") << text;
        Read(PineFile());
        EXPECT_NE(saved.RunFilePath, "") << text;
    }
}

TEST_F(ReadRunFileTest, CanBeResetFromNumbersThatFitNothing) {
    const std::string nines(400, '9');
    for (const auto& [line, text] :
         {std::pair<std::size_t, std::string>{2, "No,Yes," + nines + ",2.0,0"},
          {6, "0," + nines}}) {
        auto lines = PineFile();
        lines[line] = text;
        Read(lines);
        EXPECT_EQ(form.spac1.Text() + form.txtRotDBH.Text(), nines) << line;
        person.Click(form.Clear);
        EXPECT_TRUE(host.boxes.empty()) << line;
        EXPECT_EQ(form.spac1.Text() + form.txtRotDBH.Text(), "") << line;
        EXPECT_TRUE(form.chkNat.Value() && form.Step6_opt1.Value()) << line;
        Read(PineFile());
        EXPECT_NE(saved.RunFilePath, "") << line;
    }
}

TEST_F(ReadRunFileTest, TakesWhatIsTooSmallForZero) {
    auto lines = PineFile();
    lines[4] = "0." + std::string(400, '0') + "1,6";
    Read(lines);
    EXPECT_EQ(run.record.LC, 6);
    EXPECT_TRUE(form.choose_Land.Value());
    EXPECT_NE(saved.RunFilePath, "");
}

TEST_F(ReadRunFileTest, StartsTheModelOnceForATreatmentAndLosesItsAmount) {
    auto lines = PineFile();
    lines[7] = "55,70,0.0,0.0,30,20,0.0";
    Read(lines);
    EXPECT_EQ(host.starts.size(), 1u);
    EXPECT_EQ(form.Age1.Text(), "55");
    EXPECT_TRUE(form.BA1.Enabled());
    EXPECT_EQ(form.BA1.Text(), "");
    EXPECT_EQ(form.Age2.Text(), "");
    EXPECT_EQ(run.record.T1IBA, 0);
    EXPECT_TRUE(run.TreatmentKeysOpen);
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text,
              "A B.A. Reduction or Spacing parameter is required for treatment #1.");
    EXPECT_EQ(host.boxes[0].title, "Input Error");
    EXPECT_TRUE(form.Step7.Showing());
    EXPECT_NE(saved.RunFilePath, "");
}

TEST_F(ReadRunFileTest, StartsTheModelOnceForATreatmentByDiameter) {
    auto lines = PineFile();
    lines[6] = "0,30.0";
    lines[7] = "0,0,15.5,0.0,30,0,0.0";
    Read(lines);
    EXPECT_EQ(host.starts.size(), 1u);
    EXPECT_EQ(form.DBH1.Text(), "15.5");
    EXPECT_EQ(form.BA1.Text(), "");
}

TEST_F(ReadRunFileTest, LeavesTheModelOutWithoutATreatment) {
    Read(PineFile());
    EXPECT_TRUE(host.starts.empty());
    EXPECT_FALSE(run.ModelHeldBack);
}

TEST_F(ReadRunFileTest, RestoresAmountsInAdvancedMode) {
    SwitchToAdvancedMode();
    auto lines = PineFile();
    lines[7] = "55.5,70.5,0.0,0.0,30.5,20.5,1.5";
    Read(lines);
    EXPECT_TRUE(host.starts.empty());
    EXPECT_EQ(form.Age1.Text(), "55");
    EXPECT_EQ(form.BA1.Text(), "30");
    EXPECT_EQ(form.Spacing.Text(), "");
    EXPECT_EQ(form.Age2.Text(), "70");
    EXPECT_EQ(form.BA2.Text(), "20");
    EXPECT_EQ(run.record.T2IBA, 20);
}

TEST_F(ReadRunFileTest, FreesTheModelAgainWhenItEndsWithinTheTreatments) {
    auto lines = PineFile();
    lines[7] = std::string(400, '9') + ",0,0.0,0.0,0,0,0.0";
    Read(lines);
    EXPECT_EQ(saved.RunFilePath, "");
    EXPECT_FALSE(run.ModelHeldBack);
}

TEST_F(ReadRunFileTest, ReplacesTheRunThatIsOpen) {
    auto lines = PineFile();
    lines[1] = "Hardwood,Imperial";
    lines[3] = "Sugar Maple";
    lines[4] = "55.5,0";
    Read(lines);
    EXPECT_EQ(run.record.WDTYPE, "Hardwood");
    EXPECT_EQ(run.globals.UnitSystem, "Imperial");
    Read(PineFile());
    EXPECT_EQ(run.record.WDTYPE, "Softwood");
    EXPECT_EQ(run.globals.UnitSystem, "Metric");
    EXPECT_EQ(run.record.SIB, 0);
    EXPECT_EQ(form.lstSpecies.List().front(), "White Pine");
}

}  // namespace
}  // namespace arbolith
