// The program form_script itself: its exit status, what it prints, and the real program in it.
#include "unit/platform/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

namespace arbolith {

class FormScriptTest : public ::testing::Test {
protected:
    FormScriptTest() { std::filesystem::create_directory(folder.PathOf("application")); }

    /// Runs a script in an application folder of its own; the exit status.
    int Run(const std::string& script, const std::string& options = "") {
        folder.Write("a.script", script);
        return RunWith("--folder '" + folder.PathOf("application") + "' " + options + " '" +
                       folder.PathOf("a.script") + "'");
    }
    int RunWith(const std::string& arguments) {
        const auto command = "QT_QPA_PLATFORM=offscreen '" FORM_SCRIPT "' " + arguments + " > '" +
                             folder.PathOf("output") + "' 2> '" + folder.PathOf("errors") + "'";
        return WEXITSTATUS(std::system(command.c_str()));
    }
    std::string Output() const { return folder.Read("output"); }
    std::string Errors() const { return folder.Read("errors"); }

    TemporaryFolder folder;
};

TEST_F(FormScriptTest, EndsWith0WhenAllHeld) {
    EXPECT_EQ(Run("click Step1_Btn\nexpect Step3_Btn.Enabled true\n"), 0);
    EXPECT_EQ(Errors(), "");
    EXPECT_EQ(Run(""), 0);
}

TEST_F(FormScriptTest, EndsWith1WhenAnExpectationFails) {
    EXPECT_EQ(Run("\nexpect Run.Caption Walk\n"), 1);
    EXPECT_EQ(Errors(),
              folder.PathOf("a.script") + ":2: expected Run.Caption Walk, found \"Run\"\n");
}

TEST_F(FormScriptTest, EndsWith1WhenAnActionIsImpossible) {
    EXPECT_EQ(Run("click Run\nexpect Run.Caption Walk\n"), 1);
    EXPECT_EQ(Errors(), folder.PathOf("a.script") +
                            ":1: expected to be able to click Run, found Run is disabled\n");
}

TEST_F(FormScriptTest, ReportsEveryFailureWhenItKeepsGoing) {
    EXPECT_EQ(Run("click Run\nexpect Run.Caption Walk\n", "--keep-going"), 1);
    EXPECT_NE(Errors().find(":1: "), std::string::npos);
    EXPECT_NE(Errors().find(":2: "), std::string::npos);
}

TEST_F(FormScriptTest, EndsWith2ForAnUnusableScriptBeforeItActs) {
    EXPECT_EQ(Run("print Run.Caption\nclick\n"), 2);
    EXPECT_EQ(Output(), "");
    EXPECT_EQ(Errors(), folder.PathOf("a.script") + ":2: expected a NAME behind it\n");
}

TEST_F(FormScriptTest, EndsWith2ForUnusableArguments) {
    EXPECT_EQ(RunWith(""), 2);
    EXPECT_NE(Errors().find("usage: form_script"), std::string::npos);
    EXPECT_EQ(RunWith("--folder /no/such/folder a.script"), 2);
    EXPECT_EQ(RunWith("--folder . no.script"), 2);
    EXPECT_NE(Errors().find("can't read no.script"), std::string::npos);
    EXPECT_EQ(Run("", "--nonsense"), 2);
}

TEST_F(FormScriptTest, BeginsWithTheSplashGoneOrUp) {
    EXPECT_EQ(Run("expect frmSplash.Visible false\nexpect QvlySwd.Visible true\n"), 0) << Errors();
    EXPECT_EQ(Run("splash\n"
                  "expect frmSplash.Visible true\n"
                  "expect QvlySwd.Visible false\n"
                  "tick frmSplash.Timer1\n"
                  "expect QvlySwd.Visible true\n"),
              0)
        << Errors();
}

TEST_F(FormScriptTest, PutsFormsIntoTheMiddleOfTheToldScreen) {
    EXPECT_EQ(Run("splash\nprint frmSplash.Left\n", "--screen 2000x1000"), 0) << Errors();
    const int left = std::stoi(Output());
    EXPECT_EQ(Run("splash\nprint frmSplash.Left\n", "--screen 1000x1000"), 0) << Errors();
    EXPECT_EQ(left - std::stoi(Output()), 500 * 15);
}

TEST_F(FormScriptTest, RunsInTheApplicationFolder) {
    EXPECT_EQ(Run("expect no file _INPUT.TMP\n"
                  "click Step1_Btn\nclick Step3_Btn\nselect lstSpecies 0\nclick Step4_Btn\n"
                  "select Lcap 0\nclick Step5_Btn\ntype Stocking_Index 100\nclick Step6_Btn\n"
                  "type txtRotAge 80\nclick Run\n"
                  "expect file _PATHINF.TMP contains \"$FOLDER$S_INPUT.TMP\\r\\n\"\n"
                  "expect file _INPUT.TMP contains \"\\t100\\t\\r\\n\"\n"),
              0)
        << Errors();
    EXPECT_TRUE(std::filesystem::exists(folder.PathOf("application/_INPUT.TMP")));
}

TEST_F(FormScriptTest, KnowsTheVariablesOfTheProgram) {
    EXPECT_EQ(Run("expect var RunRecord.WDTYPE Softwood\n"
                  "expect var RunRecord.UnitSystem Metric\n"
                  "expect var UnitSystem Metric\n"
                  "expect var RunRecord.NatFlag true\n"
                  "expect var RunRecord.STK% 0\n"
                  "expect var RunRecord.SPX 0\n"
                  "expect var StepErrorFlag false\n"
                  "expect var StepErrorStep 0\n"
                  "expect var TreatmentKeysOpen true\n"
                  "expect var SoftwoodT2Allowed true\n"
                  "expect var ShortHardwoodList false\n"
                  "expect var InputChanged true\n"),
              0)
        << Errors();
    EXPECT_EQ(Run("print var Output.OutputYTBH\n"), 1);
    EXPECT_NE(Errors().find("not created yet"), std::string::npos);
}

TEST_F(FormScriptTest, KnowsThePureFunctionsOfTheProgram) {
    EXPECT_EQ(Run("expect result Val \" 12.5 cm\" = 12.5\n"
                  "expect result DefaultText .250 = 0.25\n"
                  "expect result Species ws = \"White Spruce\"\n"
                  "expect result Species \"white spruce\" = WS\n"
                  "expect result Species RO = \"\"\n"
                  "expect result SiteIndexFromLc \"White Pine\" 6 = 17.06\n"
                  "click Step1_Btn\nclick choose_Imperial\n"
                  "expect result SiteIndexFromLc \"White Birch\" 4 = 85\n"
                  "expect result SiteIndexFromLc \"White Birch\" 5 = 0\n"),
              0)
        << Errors();
    EXPECT_EQ(Run("expect result DefaultText x = 0\n"), 1);
    EXPECT_NE(Errors().find("run-time error '13'"), std::string::npos);
}

TEST_F(FormScriptTest, HasTheVersionForScripts) {
    EXPECT_EQ(Run("expect QvlySwd.Title \"Arbolith $VERSION\"\n"), 0) << Errors();
}

TEST_F(FormScriptTest, DrawsNoPictureWithoutWindows) {
    EXPECT_EQ(Run("", "--picture '" + folder.PathOf("a.png") + "'"), 1);
    EXPECT_NE(Errors().find("nothing is drawn"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(folder.PathOf("a.png")));
}

}  // namespace arbolith
