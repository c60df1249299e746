#include "unit/form_script/script_run.h"

namespace arbolith {

using ActionsTest = ScriptRun;

TEST_F(ActionsTest, DoWhatAPersonDoes) {
    CheckBox check(form, "chk");
    list.AddItem("6");
    list.AddItem("White Pine");
    list.AddItem("White Pine");
    button.onClick = [this] { ++count; };
    EXPECT_TRUE(
        Run("click btn\n"
            "click QvlySwd.btn\n"
            "expect var Count 2\n"
            "click chk\n"
            "expect chk.Value true\n"
            "type txt 12\n"
            "expect txt.Text 12\n"
            "press txt Backspace\n"
            "expect txt.Text 1\n"
            "press txt 7\n"
            "expect txt.Text 17\n"
            "paste txt abcdef\n"
            "expect txt.Text abcd\n"
            "expect clipboard abcdef\n"
            "focus btn\n"
            "expect btn.Focus true\n"
            "select lst 0\n"
            "expect lst.ListIndex 0\n"
            "select lst \"White Pine\"\n"
            "expect lst.ListIndex 1\n"
            "select lst \"6\"\n"
            "expect lst.ListIndex 0\n"))
        << errors.str();
}

TEST_F(ActionsTest, ActOnFormsGridsAndTimers) {
    Form output(application, "Output", "Output", {3000, 3000});
    Grid grid(output, "Table", {});
    grid.SetCols(4);
    grid.SetRows(4);
    Timer timer(output, "Timer1", 10);
    timer.onTimer = [this] { ++count; };
    output.Show();
    EXPECT_TRUE(
        Run("drag Output.Table 1 2 3 3\n"
            "expect Output.Table.Col 2\n"
            "expect Output.Table.RowSel 3\n"
            "resize Output 4500 6000\n"
            "expect Output.Height 6000\n"
            "tick Output.Timer1\n"
            "expect var Count 1\n"
            "close Output\n"
            "expect Output.Visible false\n"))
        << errors.str();
}

TEST_F(ActionsTest, DoubleClickARow) {
    list.onDoubleClick = [this] { ++count; };
    list.AddItem("one");
    EXPECT_NE(Failure("doubleclick lst\n").find("lst has no selected row"), std::string::npos);
    EXPECT_TRUE(Run("select lst 0\ndoubleclick lst\nexpect var Count 1\n")) << errors.str();
}

TEST_F(ActionsTest, FailWhereAPersonCouldNotAct) {
    button.SetEnabled(false);
    EXPECT_EQ(Failure("click btn\n"),
              "a.script:1: expected to be able to click btn, found btn is disabled\n");
    form.Hide();
    EXPECT_EQ(Failure("type txt 1\n"),
              "a.script:1: expected to be able to type txt 1, found txt is not showing\n");
}

TEST_F(ActionsTest, FailOnNamesThatDoNotExist) {
    EXPECT_NE(Failure("click nothing\n").find("nothing of the name nothing"), std::string::npos);
    EXPECT_NE(Failure("click Output.btn\n").find("the form Output was not created yet"),
              std::string::npos);
}

TEST_F(ActionsTest, FailOnControlsOfAnotherKind) {
    Label label(form, "lbl");
    for (const char* step : {"click lst", "click QvlySwd", "type btn 1", "paste lst x",
                             "select txt 0", "drag txt 1 1 1 1", "tick btn", "close btn",
                             "resize btn 15 15", "point btn 1 1", "focus lbl", "press lbl Enter"})
        EXPECT_FALSE(Run(step)) << step;
}

TEST_F(ActionsTest, FailOnRowsThatAListDoesNotHave) {
    list.AddItem("one");
    EXPECT_NE(Failure("select lst 1\n").find("lst has no row 1"), std::string::npos);
    EXPECT_NE(Failure("select lst \"two\"\n").find("lst has no row \"two\""), std::string::npos);
}

TEST_F(ActionsTest, PickPointsOfAChart) {
    Chart chart(form, "Chart", {});
    chart.SetSize(3, 4);
    std::string picked;
    chart.onPointActivated = [&](int series, int point) {
        picked += std::to_string(series) + "," + std::to_string(point) + " ";
    };
    EXPECT_TRUE(Run("point Chart 1 1\npoint Chart 3 3\n")) << errors.str();
    EXPECT_EQ(picked, "1,1 3,3 ");
    for (const std::string script : {"point Chart 2 1\n", "point Chart 1 4\n", "point Chart 5 1\n"})
        EXPECT_NE(Failure(script).find("no such data point"), std::string::npos) << script;
}

TEST_F(ActionsTest, FailAfterTheProgramsEnd) {
    Timer timer(form, "Timer1", 10);
    application.End();
    for (const char* step :
         {"click btn", "tick Timer1", "close QvlySwd", "reread", "host opener ok", "during 1\nend"})
        EXPECT_NE(Failure(step).find("the program has ended"), std::string::npos) << step;
}

TEST_F(ActionsTest, AnswerQuestionsInTheirOrder) {
    button.onClick = [this] {
        count = application.ShowBox("Sure?", "", BoxIcon::kNone, BoxButtons::kYesNo) ? 1 : 2;
    };
    EXPECT_TRUE(
        Run("answer yes\n"
            "answer no\n"
            "click btn\n"
            "expect var Count 1\n"
            "click btn\n"
            "expect var Count 2\n"))
        << errors.str();
}

TEST_F(ActionsTest, FailWhereAQuestionFindsNoAnswer) {
    button.onClick = [this] {
        application.ShowBox("Sure?", "", BoxIcon::kNone, BoxButtons::kYesNo);
    };
    EXPECT_EQ(Failure("\nclick btn\nclick nothing\n"),
              "a.script:2: expected an answer to the question \"Sure?\", found none\n");
}

TEST_F(ActionsTest, QueueAnswersForDialogs) {
    EXPECT_TRUE(Run("answer file \"a b.qvn\" 2\nanswer text \"plot\"\nanswer cancel\n"));
    const auto file = host.QueuedAnswers().TakeForFileDialog();
    ASSERT_TRUE(file);
    EXPECT_EQ(file->text, "a b.qvn");
    EXPECT_EQ(file->filterIndex, 2);
    EXPECT_EQ(host.QueuedAnswers().TakeForInputBox()->text, "plot");
    EXPECT_EQ(host.QueuedAnswers().TakeForInputBox()->kind, DialogAnswer::kCancel);
}

TEST_F(ActionsTest, TellWhatTheDesktopAnswers) {
    EXPECT_TRUE(Run("host opener failed\nhost printer none\n"));
    EXPECT_EQ(host.opener, OpenerAnswer::kFailed);
    EXPECT_EQ(host.printer, PrinterAnswer::kNone);
    EXPECT_TRUE(Run("host opener none\nhost printer ok\n"));
    EXPECT_EQ(host.opener, OpenerAnswer::kNone);
    EXPECT_EQ(host.printer, PrinterAnswer::kOk);
}

TEST_F(ActionsTest, RereadEveryVisibleFormInTheOrderOfFirstShowing) {
    std::string order;
    Form early(application, "Chart_Opt", "", {1500, 1500});
    Form late(application, "Output", "", {1500, 1500});
    Form hidden(application, "Chart_Frm", "", {1500, 1500});
    late.Show();
    early.Show();
    hidden.Show();
    hidden.Hide();
    form.onActivate = [&] { order += "form "; };
    late.onActivate = [&] { order += "late "; };
    early.onActivate = [&] { order += "early "; };
    hidden.onActivate = [&] { order += "hidden "; };
    EXPECT_TRUE(Run("reread\n")) << errors.str();
    EXPECT_EQ(order, "form late early ");
}

}  // namespace arbolith
