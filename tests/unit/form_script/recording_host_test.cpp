#include "form_script/recording_host.h"

#include "platform/headless_host.h"
#include "unit/platform/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace arbolith {

using namespace std::chrono_literals;

class RecordingHostTest : public ::testing::Test {
protected:
    RecordingHostTest() {
        host.onFailure = [this](const std::string& expected, const std::string& found) {
            failures.push_back(expected + ", " + found);
        };
    }

    std::unique_ptr<Process> Start(const std::string& name, int mode = 0,
                                   const std::vector<std::string>& arguments = {}) {
        return host.Start({folder.PathOf(name), arguments, folder.Path(), mode});
    }
    void WaitFor(Process& process) {
        host.WaitForEnd(process, [] { return false; });
    }
    // A program that only ends when it is made to.
    void WriteHangingProgram(const std::string& name) {
        mkfifo(folder.PathOf("never").c_str(), 0600);
        folder.WriteProgram(name, "read line < never");
    }

    TemporaryFolder folder;
    HeadlessHost inner;
    RecordingHost host{inner, folder.Path()};
    std::vector<std::string> failures;
};

TEST_F(RecordingHostTest, RecordsBoxesAndBeeps) {
    EXPECT_TRUE(host.ShowBox({"text", "title", BoxIcon::kStop, BoxButtons::kOk}));
    host.Beep();
    host.Beep();
    ASSERT_EQ(host.Recorded().boxes.size(), 1U);
    EXPECT_EQ(host.Recorded().boxes[0].text, "text");
    EXPECT_EQ(host.Recorded().beeps, 2);
    EXPECT_TRUE(failures.empty());
}

TEST_F(RecordingHostTest, AnswersQuestionsFromTheQueue) {
    host.QueuedAnswers().Add(true);
    host.QueuedAnswers().Add(false);
    EXPECT_TRUE(host.ShowBox({"one?", "", BoxIcon::kNone, BoxButtons::kYesNo}));
    EXPECT_FALSE(host.ShowBox({"two?", "", BoxIcon::kNone, BoxButtons::kYesNo}));
    EXPECT_TRUE(failures.empty());
}

TEST_F(RecordingHostTest, FailsOnAQuestionWithoutAnAnswer) {
    EXPECT_FALSE(host.ShowBox({"Sure?", "", BoxIcon::kNone, BoxButtons::kYesNo}));
    EXPECT_EQ(failures, (std::vector<std::string>{"an answer to the question \"Sure?\", none"}));
    EXPECT_EQ(host.Recorded().boxes.size(), 1U);
}

TEST_F(RecordingHostTest, KeepsAClipboardOfItsOwn) {
    inner.SetClipboardText("desktop");
    EXPECT_EQ(host.ClipboardText(), "");
    host.SetClipboardText("script");
    EXPECT_EQ(host.ClipboardText(), "script");
    EXPECT_EQ(inner.ClipboardText(), "desktop");
}

TEST_F(RecordingHostTest, ReallyStartsAndAwaitsPrograms) {
    folder.WriteProgram("SWQVL.exe", "echo done > result.txt");
    const auto process = Start("SWQVL.exe", 1);
    ASSERT_NE(process, nullptr);
    WaitFor(*process);
    EXPECT_TRUE(process->HasEnded());
    EXPECT_EQ(folder.Read("result.txt"), "done\n");
    ASSERT_EQ(host.Recorded().started.size(), 1U);
    EXPECT_EQ(host.Recorded().started[0].text, "SWQVL.exe");
    EXPECT_EQ(host.Recorded().started[0].mode, 1);
    EXPECT_EQ(host.Recorded().starts, 1);
    EXPECT_EQ(host.StartCount(), 1);
}

TEST_F(RecordingHostTest, RecordsAlsoWhatCannotBeStarted) {
    EXPECT_EQ(Start("missing"), nullptr);
    EXPECT_EQ(host.Recorded().started.size(), 1U);
}

TEST_F(RecordingHostTest, OnlyRecordsAnEditorThatTheFolderDoesNotHold) {
    const auto process = host.Start({"notepad", {"/a/run.qvb"}, folder.Path(), 0});
    ASSERT_NE(process, nullptr);
    EXPECT_TRUE(process->HasEnded());
    WaitFor(*process);
    EXPECT_EQ(host.Recorded().started[0].text, "notepad /a/run.qvb");
}

TEST_F(RecordingHostTest, StartsTheEditorOfTheFolder) {
    folder.WriteProgram("notepad", "echo \"$1\" > edited.txt");
    const auto process = host.Start({"notepad", {"a b.qvb"}, folder.Path(), 0});
    ASSERT_NE(process, nullptr);
    WaitFor(*process);
    EXPECT_EQ(folder.Read("edited.txt"), "a b.qvb\n");
}

TEST_F(RecordingHostTest, TellsWhichProgramIsWaitedForBeforeItWaits) {
    std::vector<int> waited;
    host.onWait = [&](int number) { waited.push_back(number); };
    folder.WriteProgram("model", "");
    const auto first = Start("model");
    const auto second = Start("model");
    WaitFor(*second);
    WaitFor(*first);
    EXPECT_EQ(waited, (std::vector<int>{2, 1}));
}

TEST_F(RecordingHostTest, StopsWaitingWhenTheProgramGivesUp) {
    WriteHangingProgram("model");
    const auto process = Start("model");
    host.WaitForEnd(*process, [] { return true; });
    EXPECT_FALSE(process->HasEnded());
    EXPECT_TRUE(failures.empty());
}

TEST_F(RecordingHostTest, StopsWaitingWhenTheScriptIsAbandoned) {
    WriteHangingProgram("model");
    const auto process = Start("model");
    host.onWait = [this](int) { host.Abandon(); };
    WaitFor(*process);
    EXPECT_FALSE(process->HasEnded());
}

TEST_F(RecordingHostTest, FailsAStepThatWaitsTooLongAndEndsTheProgram) {
    WriteHangingProgram("model");
    const auto process = Start("model");
    host.BeginStep(1ms);
    WaitFor(*process);
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_NE(failures[0].find("model still running"), std::string::npos);
    inner.WaitForEnd(*process, [] { return false; });
    EXPECT_TRUE(process->HasEnded());
}

TEST_F(RecordingHostTest, CountsAllWaitsOfAStepTogether) {
    WriteHangingProgram("model");
    const auto first = Start("model");
    const auto second = Start("model");
    host.BeginStep(1ms);
    WaitFor(*first);
    WaitFor(*second);
    EXPECT_EQ(failures.size(), 2U);
    host.BeginStep();
    folder.WriteProgram("quick", "");
    const auto third = Start("quick");
    WaitFor(*third);
    EXPECT_EQ(failures.size(), 2U);
}

TEST_F(RecordingHostTest, LeavesNoProgramRunningBehindIt) {
    WriteHangingProgram("model");
    auto watched = std::make_unique<RecordingHost>(inner, folder.Path());
    const auto process = watched->Start({folder.PathOf("model"), {}, folder.Path(), 0});
    ASSERT_NE(process, nullptr);
    EXPECT_FALSE(process->HasEnded());
    watched.reset();
    inner.WaitForEnd(*process, [] { return false; });
    EXPECT_TRUE(process->HasEnded());
}

TEST_F(RecordingHostTest, TellsTheScreenSizeThatItWasGiven) {
    EXPECT_EQ(host.ScreenSize().width, 1024 * 15);
    EXPECT_EQ(host.ScreenSize().height, 768 * 15);
    host.SetScreenSize({30000, 20000});
    EXPECT_EQ(host.ScreenSize().width, 30000);
    EXPECT_EQ(host.ScreenSize().height, 20000);
}

}  // namespace arbolith
