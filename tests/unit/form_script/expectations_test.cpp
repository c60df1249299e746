#include "unit/form_script/script_run.h"

namespace arbolith {

using ExpectationsTest = ScriptRun;

TEST_F(ExpectationsTest, LookAtProperties) {
    box.SetText("12.50");
    EXPECT_TRUE(
        Run("expect btn.Caption Press\n"
            "expect btn.Enabled true\n"
            "expect btn.BackColor face\n"
            "expect QvlySwd.Title \"Title\"\n"
            "expect QvlySwd.Width 6000.0\n"
            "expect txt.Text 12.50\n"))
        << errors.str();
    EXPECT_EQ(Failure("expect txt.Text 12.5\n"),
              "a.script:1: expected txt.Text 12.5, found \"12.50\"\n");
    EXPECT_EQ(Failure("expect btn.Enabled false\n"),
              "a.script:1: expected btn.Enabled false, found true\n");
    EXPECT_EQ(Failure("expect  QvlySwd.Width 1\n"),
              "a.script:1: expected QvlySwd.Width 1, found 6000\n");
}

TEST_F(ExpectationsTest, TakeAFormThatWasNotCreatedForNotVisible) {
    EXPECT_TRUE(Run("expect Output.Visible false\nexpect Output.Showing false\n"));
    EXPECT_FALSE(Run("expect Output.Visible true\n"));
    EXPECT_NE(Failure("expect Output.Title x\n").find("not created yet"), std::string::npos);
    EXPECT_NE(Failure("expect Output.Table.Visible false\n").find("not created yet"),
              std::string::npos);
    EXPECT_NE(Failure("expect Outptu.Visible false\n").find("nothing of the name Outptu"),
              std::string::npos);
}

TEST_F(ExpectationsTest, FailOnPropertiesThatDoNotExist) {
    EXPECT_EQ(Failure("expect btn.Text x\n"),
              "a.script:1: expected btn.Text x, found btn has no property Text\n");
    EXPECT_EQ(Failure("expect lst.List(0) x\n"),
              "a.script:1: expected lst.List(0) x, found run-time error '9', Subscript out of "
              "range\n");
}

TEST_F(ExpectationsTest, PreferWhatAScreenShows) {
    driver.shown = {{"btn.Caption", "Seen"}, {"btn.Enabled", "false"}, {"lst.ListIndex", "3"}};
    EXPECT_TRUE(
        Run("expect btn.Caption Seen\n"
            "expect btn.Enabled false\n"
            "expect lst.ListIndex 3.0\n"
            "expect btn.Visible true\n"))
        << errors.str();
}

TEST_F(ExpectationsTest, LookAtVariables) {
    count = 3;
    EXPECT_TRUE(Run("expect var Count 3\nexpect var Rows(1) \"row 1\"\n")) << errors.str();
    EXPECT_FALSE(Run("expect var Count 4\n"));
    for (const char* step : {"expect var Nothing 1", "expect var Rows x", "expect var Count(1) 3"})
        EXPECT_NE(Failure(step).find("no variable"), std::string::npos) << step;
    EXPECT_NE(Failure("expect var Rows(2) x").find("run-time error '9'"), std::string::npos);
}

TEST_F(ExpectationsTest, CallPureFunctions) {
    EXPECT_TRUE(Run("expect result Join \"a \" b = \"a b\"\nexpect result Join = = = ==\n"))
        << errors.str();
    EXPECT_EQ(Failure("expect result Join a b = c\n"),
              "a.script:1: expected result Join a b = c, found \"ab\"\n");
    EXPECT_NE(Failure("expect result Join a = a\n").find("Join takes 2 values"), std::string::npos);
    EXPECT_NE(Failure("expect result Nothing a = a\n").find("no function Nothing"),
              std::string::npos);
}

TEST_F(ExpectationsTest, TakeBoxesOldestFirst) {
    application.ShowBox("one\ntwo", "Input Error", BoxIcon::kExclamation);
    application.ShowBox("second");
    EXPECT_NE(Failure("expect no box\n").find("one\\ntwo"), std::string::npos);
    EXPECT_TRUE(
        Run("expect box \"one\\r\\ntwo\" title \"Input Error\" icon exclamation buttons ok\n"
            "expect box second title \"\" icon none\n"
            "expect no box\n"))
        << errors.str();
    EXPECT_EQ(Failure("expect box third\n"), "a.script:1: expected box third, found no box\n");
}

TEST_F(ExpectationsTest, LookAtAllOfABoxThatIsNamed) {
    const auto fails = [this](const std::string& step) {
        application.ShowBox("text", "title", BoxIcon::kStop);
        return Failure(step).find("found box \"text\" title \"title\" icon stop buttons ok") !=
               std::string::npos;
    };
    EXPECT_TRUE(fails("expect box tex\n"));
    EXPECT_TRUE(fails("expect box text title other\n"));
    EXPECT_TRUE(fails("expect box text icon none\n"));
    EXPECT_TRUE(fails("expect box text buttons yesno\n"));
    EXPECT_TRUE(fails("expect box \"text\\n\"\n"));
}

TEST_F(ExpectationsTest, CountBeepsSinceTheyWereAskedLast) {
    host.Beep();
    host.Beep();
    EXPECT_TRUE(Run("expect beeps 2\nexpect beeps 0\n"));
    host.Beep();
    EXPECT_EQ(Failure("expect beeps 0\n"), "a.script:1: expected beeps 0, found 1\n");
}

TEST_F(ExpectationsTest, TakeStartedProgramsOldestFirst) {
    host.Start({"/a/SWQVL.exe", {}, folder.Path(), 1});
    host.Start({"/a/HWQVL.exe", {}, folder.Path(), 0});
    host.Start({"notepad", {"/a b/run.qvb"}, folder.Path(), 0});
    host.Start({"notepad", {"/a b/run.qvb"}, folder.Path(), 0});
    EXPECT_TRUE(
        Run("expect started SWQVL.exe 1\n"
            "expect started HWQVL.exe\n"
            "expect started \"notepad /a b/run.qvb\" 0\n"
            "expect started \"notepad run.qvb\"\n"))
        << errors.str();
    EXPECT_NE(Failure("expect started SWQVL.exe\n").find("nothing was started"), std::string::npos);
    host.Start({"/a/SWQVL.exe", {}, folder.Path(), 1});
    EXPECT_NE(Failure("expect started SWQVL.exe 0\n").find("\"SWQVL.exe\" in mode 1"),
              std::string::npos);
}

TEST_F(ExpectationsTest, CountStartsAndTakeThemAll) {
    host.Start({"/a/one", {}, folder.Path(), 0});
    host.Start({"/a/two", {}, folder.Path(), 0});
    EXPECT_TRUE(Run("expect started one\nexpect starts 2\nexpect starts 0\n")) << errors.str();
    EXPECT_FALSE(Run("expect started two\n"));
}

TEST_F(ExpectationsTest, LookAtTheClipboard) {
    host.SetClipboardText("a\tb");
    EXPECT_TRUE(Run("expect clipboard \"a\\tb\"\n"));
    EXPECT_FALSE(Run("expect clipboard a\n"));
    EXPECT_NE(Failure("expect clipboard picture 10 10\n").find("no picture"), std::string::npos);
}

TEST_F(ExpectationsTest, FindNothingWhereNothingCame) {
    EXPECT_NE(Failure("expect opened x\n").find("nothing was opened"), std::string::npos);
    EXPECT_NE(Failure("expect input x\n").find("no input box"), std::string::npos);
    EXPECT_NE(Failure("expect dialog x\n").find("no file dialog"), std::string::npos);
    EXPECT_FALSE(Run("expect printed 1\n"));
    EXPECT_TRUE(Run("expect printed 0\n"));
}

TEST_F(ExpectationsTest, LookAtWhatDialogsAndTheOpenerGot) {
    host.Recorded().dialog = FileDialog{true, "Text|*.txt"};
    host.Recorded().inputPrompt = "Plot?\r\nNumber";
    host.Recorded().opened = {"one", "two"};
    EXPECT_TRUE(
        Run("expect dialog \"Text|*.txt\"\n"
            "expect dialog save \"Text|*.txt\"\n"
            "expect input \"Plot?\\nNumber\"\n"
            "expect opened one\n"
            "expect opened two\n"))
        << errors.str();
    EXPECT_FALSE(Run("expect dialog open \"Text|*.txt\"\n"));
}

TEST_F(ExpectationsTest, TakeAnOpenedDocumentByItsPathAlone) {
    host.Recorded().opened = {"https://example.org/a/page1.htm", "https://example.org/a/page1.htm",
                              "https://example.org/a/page1.htm"};
    EXPECT_TRUE(Run("expect opened /a/page1.htm\n")) << errors.str();
    EXPECT_FALSE(Run("expect opened /a/page2.htm\n"));
    EXPECT_FALSE(Run("expect opened page1.htm\n"));
}

TEST_F(ExpectationsTest, LookIntoFilesByteByByte) {
    folder.Write("out.txt", "one\r\ntwo\r\n");
    EXPECT_TRUE(
        Run("expect file out.txt \"one\\r\\ntwo\\r\\n\"\n"
            "expect file \"$FOLDER$Sout.txt\" contains \"two\"\n"
            "expect file out.txt lacks three\n"
            "expect no file other.txt\n"))
        << errors.str();
    EXPECT_FALSE(Run("expect file out.txt \"one\\ntwo\\n\"\n"));
    EXPECT_FALSE(Run("expect file out.txt contains three\n"));
    EXPECT_EQ(Failure("expect file out.txt lacks two\n"),
              "a.script:1: expected file out.txt lacks two, found it at byte 5\n");
    EXPECT_EQ(Failure("expect no file out.txt\n"),
              "a.script:1: expected no file out.txt, found it\n");
}

TEST_F(ExpectationsTest, HoldForNoFileThatIsMissing) {
    EXPECT_FALSE(Run("expect file missing.txt \"\"\n"));
    EXPECT_FALSE(Run("expect file missing.txt contains x\n"));
    EXPECT_FALSE(Run("expect file missing.txt lacks x\n"));
}

TEST_F(ExpectationsTest, SeeTheProgramsEnd) {
    EXPECT_EQ(Failure("expect ended\n"), "a.script:1: expected ended, found the program running\n");
    application.End();
    EXPECT_TRUE(Run("expect ended\n"));
}

TEST_F(ExpectationsTest, AskOnlyForFilesBoxesAndCountsAfterTheEnd) {
    folder.Write("out.txt", "x");
    button.onClick = [this] {
        application.ShowBox("bye");
        application.End();
    };
    EXPECT_TRUE(
        Run("click btn\n"
            "expect ended\n"
            "expect box bye\n"
            "expect no box\n"
            "expect file out.txt x\n"
            "expect no file y\n"
            "expect beeps 0\n"
            "expect starts 0\n"
            "expect printed 0\n"))
        << errors.str();
    for (const char* step :
         {"expect btn.Enabled true", "expect var Count 0", "print btn.Caption", "print var Count",
          "expect result Join a b = ab", "expect clipboard \"\"", "expect clipboard picture 1 1"})
        EXPECT_NE(Failure(std::string("expect ended\n") + step).find("the program has ended"),
                  std::string::npos)
            << step;
}

TEST_F(ExpectationsTest, PrintValuesInUtf8) {
    count = 7;
    button.SetCaption("m\xB2");
    EXPECT_TRUE(Run("print btn.Caption\nprint var Count\nprint btn.Enabled\n")) << errors.str();
    EXPECT_EQ(printed.str(), "m\u00B2\n7\ntrue\n");
}

}  // namespace arbolith
