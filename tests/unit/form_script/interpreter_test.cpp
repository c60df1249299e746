#include "form_script/interpreter.h"

#include "unit/form_script/script_run.h"

namespace arbolith {

using InterpreterTest = ScriptRun;

TEST_F(InterpreterTest, StopsAtTheFirstFailure) {
    EXPECT_EQ(Failure("expect var Count 1\nexpect var Count 2\n"),
              "a.script:1: expected var Count 1, found 0\n");
}

TEST_F(InterpreterTest, ReportsEveryFailureWhenItKeepsGoing) {
    EXPECT_EQ(Failure("expect var Count 1\nexpect var Count 0\nexpect var Count 2\n", true),
              "a.script:1: expected var Count 1, found 0\n"
              "a.script:3: expected var Count 2, found 0\n");
}

TEST_F(InterpreterTest, ReportsWhateverElseAStepThrows) {
    button.onClick = [] { throw std::logic_error("something unforeseen"); };
    EXPECT_NE(Failure("click btn\n").find("found something unforeseen"), std::string::npos);
}

TEST_F(InterpreterTest, RunsTheStepsOfADuringWhileTheProgramIsWaitedFor) {
    folder.WriteProgram("model", "");
    button.onClick = [this] {
        count = 1;
        StartAndWait("model");
        count = 2;
    };
    EXPECT_TRUE(
        Run("during 1\n"
            "  expect var Count 1\n"
            "  type txt 5\n"
            "end\n"
            "expect var Count 0\n"
            "click btn\n"
            "expect var Count 2\n"
            "expect txt.Text 5\n"))
        << errors.str();
}

TEST_F(InterpreterTest, CountsProgramsFromTheDuringOn) {
    folder.WriteProgram("model", "");
    Button twice(form, "twice");
    button.onClick = [this] { StartAndWait("model"); };
    twice.onClick = [this] {
        StartAndWait("model");
        ++count;
        StartAndWait("model");
        ++count;
    };
    EXPECT_TRUE(
        Run("click btn\n"
            "during 2\n"
            "  expect var Count 1\n"
            "end\n"
            "click twice\n"
            "expect var Count 2\n"))
        << errors.str();
}

TEST_F(InterpreterTest, NestsADuringInAnother) {
    folder.WriteProgram("model", "");
    button.onClick = [this] {
        ++count;
        StartAndWait("model");
    };
    EXPECT_TRUE(
        Run("during 1\n"
            "  during 1\n"
            "    expect var Count 2\n"
            "    type txt 9\n"
            "  end\n"
            "  click btn\n"
            "  expect txt.Text 9\n"
            "end\n"
            "click btn\n"
            "expect starts 2\n"))
        << errors.str();
}

TEST_F(InterpreterTest, RunsSeveralDuringsOfOneProgramInTheirOrder) {
    folder.WriteProgram("model", "");
    button.onClick = [this] { StartAndWait("model"); };
    EXPECT_TRUE(
        Run("during 1\ntype txt 1\nend\nduring 1\ntype txt 2\nend\n"
            "click btn\nexpect txt.Text 12\n"))
        << errors.str();
}

TEST_F(InterpreterTest, TellsTheLineOfAFailureInsideADuring) {
    folder.WriteProgram("model", "");
    button.onClick = [this] { StartAndWait("model"); };
    EXPECT_EQ(Failure("during 1\n  expect var Count 1\n  click nothing\nend\nclick btn\n"
                      "click nothing\n"),
              "a.script:2: expected var Count 1, found 0\n");
}

TEST_F(InterpreterTest, GoesOnBehindAFailureInsideADuring) {
    folder.WriteProgram("model", "");
    button.onClick = [this] { StartAndWait("model"); };
    EXPECT_EQ(Failure("during 1\n  expect var Count 1\n  expect var Count 2\nend\nclick btn\n"
                      "expect var Count 3\n",
                      true),
              "a.script:2: expected var Count 1, found 0\n"
              "a.script:3: expected var Count 2, found 0\n"
              "a.script:6: expected var Count 3, found 0\n");
}

TEST_F(InterpreterTest, FailsForADuringWhoseProgramWasNeverWaitedFor) {
    EXPECT_EQ(Failure("click btn\nduring 1\n  expect no box\nend\nclick btn\n"),
              "a.script:2: expected its program to be waited for, found that it never was\n");
}

TEST_F(InterpreterTest, EndsAWaitWhenTheProgramEndsMeanwhile) {
    folder.WriteProgram("model", "read line < never");
    ASSERT_EQ(std::system(("mkfifo '" + folder.PathOf("never") + "'").c_str()), 0);
    form.onClose = [this] { application.End(); };
    button.onClick = [this] {
        StartAndWait("model");
        ++count;
    };
    EXPECT_TRUE(Run("during 1\n  close QvlySwd\n  expect ended\nend\nclick btn\nexpect ended\n"))
        << errors.str();
    EXPECT_EQ(count, 0);
}

TEST_F(InterpreterTest, ReportsAMissingAnswerAtTheStepThatAsks) {
    folder.WriteProgram("model", "");
    button.onClick = [this] {
        StartAndWait("model");
        application.ShowBox("Sure?", "", BoxIcon::kNone, BoxButtons::kYesNo);
    };
    EXPECT_EQ(Failure("during 1\n  type txt 5\nend\nclick btn\n").substr(0, 12), "a.script:4: ");
}

TEST_F(InterpreterTest, LeavesBoxesAndAnswersOver) {
    application.ShowBox("left over");
    EXPECT_TRUE(Run("answer yes\nanswer cancel\n"));
}

TEST_F(InterpreterTest, ReportsWhatIsAttemptedOutsideOfSteps) {
    Stage stage{application, driver, host, variables, functions, printed, false, {}};
    Interpreter interpreter(stage, "a.script", false, errors);
    interpreter.Attempt(1, "the program to start",
                        [] { throw RuntimeError(ErrorNumber::kOverflow); });
    EXPECT_FALSE(interpreter.Held());
    EXPECT_EQ(errors.str(),
              "a.script:1: expected the program to start, found run-time error '6', Overflow\n");
}

}  // namespace arbolith
