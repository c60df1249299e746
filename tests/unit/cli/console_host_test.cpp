#include "cli/console_host.h"

#include "cli/interrupts.h"
#include "unit/platform/temporary_folder.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

namespace arbolith::console {

namespace {

Box BoxOf(const std::string& text) {
    Box box;
    box.text = text;
    return box;
}

FileQuestion Dialog(bool saves) {
    FileQuestion question;
    question.saves = saves;
    return question;
}

}  // namespace

class ConsoleHostTest : public testing::Test {
public:
    Interrupts interrupts;
    TemporaryFolder folder;
    Terminal terminal{-1};
    ConsoleHost host{terminal};
    bool interrupted = false;

    ConsoleHostTest() {
        host.onInterrupt = [this] { interrupted = true; };
        folder.Write("_PATHINF.TMP",
                     folder.PathOf("_INPUT.TMP") + "\r\n" + folder.PathOf("_OUTPUT.TMP") + "\r\n");
    }

    std::unique_ptr<Process> Start(const std::string& name) {
        ProgramStart start;
        start.program = folder.PathOf(name);
        start.folder = folder.Path();
        return host.Start(start);
    }
    void Run(const std::string& name) {
        const auto process = Start(name);
        ASSERT_NE(process, nullptr);
        host.WaitForEnd(*process, [this] { return interrupted; });
    }
    // The failure so far, as one text.
    std::string Failed() {
        const auto failure = host.TakeFailure();
        if (!failure) return "";
        return std::to_string(static_cast<int>(failure->status)) + " " + failure->message;
    }
};

TEST_F(ConsoleHostTest, ABoxIsAFailureOfThePhase) {
    host.CallBoxes(ExitStatus::kBadFile, "stand.qvn");
    EXPECT_TRUE(host.ShowBox({"File is corrupt or wrong format", "File Open"}));
    EXPECT_EQ(Failed(), "3 stand.qvn: File is corrupt or wrong format");
    EXPECT_EQ(Failed(), "");
}

TEST_F(ConsoleHostTest, AFaultOfTheInputIsARefusalInEveryPhase) {
    host.CallBoxes(ExitStatus::kModel, "stand.qvn");
    host.ShowBox({"Please enter a Rotation Age", "Input Error", BoxIcon::kExclamation});
    EXPECT_EQ(Failed(), "4 stand.qvn: Please enter a Rotation Age");
}

TEST_F(ConsoleHostTest, TheFirstBoxCounts) {
    host.ShowBox(BoxOf("first"));
    host.ShowBox(BoxOf("second"));
    EXPECT_EQ(Failed(), "1 the program: first");
}

TEST_F(ConsoleHostTest, ABoxOfSeveralLinesIsToldOnOne) {
    host.ShowBox(BoxOf("does not exist.\r\nFile: a.txt\n"));
    EXPECT_EQ(Failed(), "1 the program: does not exist. File: a.txt");
}

TEST_F(ConsoleHostTest, AQuestionIsAnsweredWithNo) {
    EXPECT_FALSE(host.ShowBox({"Save?", "", BoxIcon::kNone, BoxButtons::kYesNo}));
}

TEST_F(ConsoleHostTest, ASaveDialogAnswersThePreparedReport) {
    EXPECT_FALSE(host.ChooseFile(Dialog(true)));
    host.report = FileChoice{"report.html", 2};
    EXPECT_EQ(host.ChooseFile(Dialog(true))->filterIndex, 2);
    EXPECT_FALSE(host.ChooseFile(Dialog(false)));
}

TEST_F(ConsoleHostTest, NothingOpens) {
    EXPECT_EQ(host.Open("report.html"), OpenResult::kOpened);
    folder.WriteProgram("notepad", "touch started");
    Run("notepad");
    EXPECT_FALSE(std::filesystem::exists(folder.PathOf("started")));
    EXPECT_EQ(Failed(), "");
}

TEST_F(ConsoleHostTest, ModelsAreStarted) {
    folder.WriteProgram("SWQVL.exe", ": > started");
    Run("SWQVL.exe");
    EXPECT_TRUE(std::filesystem::exists(folder.PathOf("started")));
    EXPECT_EQ(Failed(), "");
}

TEST_F(ConsoleHostTest, EarlierResultsAreGoneWhenAModelStarts) {
    folder.WriteProgram("HWQVL.exe", "exit 1");
    folder.Write("_OUTPUT.TMP", "old");
    Run("HWQVL.exe");
    EXPECT_FALSE(std::filesystem::exists(folder.PathOf("_OUTPUT.TMP")));
}

TEST_F(ConsoleHostTest, AMissingModelIsTold) {
    EXPECT_EQ(Start("SWQVL.exe"), nullptr);
    EXPECT_EQ(Failed(), "5 SWQVL.exe: No such file or directory");
    folder.Write("HWQVL.exe", "#!/bin/sh\n");
    EXPECT_EQ(Start("HWQVL.exe"), nullptr);
    EXPECT_EQ(Failed(), "5 HWQVL.exe: Permission denied");
}

TEST_F(ConsoleHostTest, AModelThatASignalEndedIsTold) {
    folder.WriteProgram("SWQVL.exe", "kill -SEGV $$");
    Run("SWQVL.exe");
    EXPECT_EQ(Failed(), "5 SWQVL.exe: it was ended by signal 11");
}

TEST_F(ConsoleHostTest, ASignalStopsTheModelAndTheProgram) {
    // A model that goes on until it is stopped, and asks for that itself.
    folder.WriteProgram("SWQVL.exe",
                        "kill -TERM " + std::to_string(getpid()) + "; exec /bin/sleep 1000");
    Run("SWQVL.exe");
    EXPECT_TRUE(interrupted);
    EXPECT_EQ(Interrupts::Signal(), SIGTERM);
    EXPECT_THROW(host.ThrowFailure(), Interrupted);
}

TEST_F(ConsoleHostTest, TheFailureIsThrownOnce) {
    host.ShowBox(BoxOf("failed"));
    EXPECT_THROW(host.ThrowFailure(), Failure);
    EXPECT_NO_THROW(host.ThrowFailure());
}

}  // namespace arbolith::console
