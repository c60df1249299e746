#include "platform/process.h"

#include "unit/platform/temporary_folder.h"

#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace arbolith {

class ProcessTest : public ::testing::Test {
protected:
    std::unique_ptr<Process> Start(const std::string& name,
                                   const std::vector<std::string>& arguments = {}) const {
        return StartProcess({folder_.PathOf(name), arguments, folder_.Path(), 0});
    }

    // Waits as long as it takes; a hang is ended by the test's own time limit.
    static void WaitFor(Process& process) {
        pollfd end{process.EndDescriptor(), POLLIN, 0};
        poll(&end, 1, -1);
    }

    static bool IsReadable(int descriptor) {
        pollfd now{descriptor, POLLIN, 0};
        return poll(&now, 1, 0) == 1;
    }

    std::string MakeFifo(const std::string& name) const {
        mkfifo(folder_.PathOf(name).c_str(), 0600);
        return folder_.PathOf(name);
    }

    TemporaryFolder folder_;
};

/// The search path of the test, put back at its end.
class SearchPath {
public:
    explicit SearchPath(const std::string& path) : before_(std::getenv("PATH")) {
        setenv("PATH", path.c_str(), 1);
    }
    ~SearchPath() { setenv("PATH", before_.c_str(), 1); }

private:
    std::string before_;
};

TEST_F(ProcessTest, RunsAProgramToItsEnd) {
    folder_.WriteProgram("model", "echo done > result.txt");
    const auto process = Start("model");
    ASSERT_NE(process, nullptr);
    WaitFor(*process);
    EXPECT_TRUE(process->HasEnded());
    EXPECT_EQ(folder_.Read("result.txt"), "done\n");
}

TEST_F(ProcessTest, TellsTheEndByItsDescriptor) {
    const auto go = MakeFifo("go");
    folder_.WriteProgram("model", "read line < go");
    const auto process = Start("model");
    ASSERT_NE(process, nullptr);
    EXPECT_FALSE(process->HasEnded());
    EXPECT_FALSE(IsReadable(process->EndDescriptor()));
    std::ofstream(go) << "go\n";
    WaitFor(*process);
    EXPECT_TRUE(process->HasEnded());
    EXPECT_TRUE(process->HasEnded());
}

TEST_F(ProcessTest, DoesNotLookAtTheExitCode) {
    folder_.WriteProgram("failing", "exit 7");
    folder_.WriteProgram("crashing", "kill -9 $$");
    for (const char* name : {"failing", "crashing"}) {
        const auto process = Start(name);
        ASSERT_NE(process, nullptr);
        WaitFor(*process);
        EXPECT_TRUE(process->HasEnded()) << name;
    }
}

TEST_F(ProcessTest, GivesTheFolderAsWorkingDirectoryAndSearchPath) {
    folder_.WriteProgram("model", "pwd > folder.txt; echo \"$PATH\" > path.txt");
    const auto process = Start("model");
    ASSERT_NE(process, nullptr);
    WaitFor(*process);
    EXPECT_EQ(folder_.Read("folder.txt"), folder_.Path() + "\n");
    EXPECT_EQ(folder_.Read("path.txt"), folder_.Path() + "\n");
}

TEST_F(ProcessTest, KeepsTheRestOfTheEnvironment) {
    setenv("ARBOLITH_TEST_MARK", "kept", 1);
    folder_.WriteProgram("model", "echo $ARBOLITH_TEST_MARK > mark.txt");
    const auto process = Start("model");
    unsetenv("ARBOLITH_TEST_MARK");
    ASSERT_NE(process, nullptr);
    WaitFor(*process);
    EXPECT_EQ(folder_.Read("mark.txt"), "kept\n");
}

TEST_F(ProcessTest, LeavesFolderAndSearchPathAsTheyAreWhereNoneIsGiven) {
    folder_.WriteProgram("editor", "printf '%s\\n' \"$PWD\" \"$PATH\" > \"$1\"");
    const SearchPath usual("/nowhere:" + folder_.Path());
    const auto process = StartProcess({"editor", {folder_.PathOf("told.txt")}, "", 0});
    ASSERT_NE(process, nullptr);
    WaitFor(*process);
    EXPECT_EQ(folder_.Read("told.txt"),
              std::filesystem::current_path().string() + "\n/nowhere:" + folder_.Path() + "\n");
}

TEST_F(ProcessTest, CannotStartWhatIsNotOnTheSearchPath) {
    EXPECT_EQ(StartProcess({"no-such-editor", {}, "", 0}), nullptr);
}

TEST_F(ProcessTest, PassesArgumentsAsTheyAre) {
    folder_.WriteProgram("editor", "printf '%s\\n' \"$@\" > arguments.txt");
    const auto process = Start("editor", {"a b.txt", "\"quoted\" $HOME"});
    ASSERT_NE(process, nullptr);
    WaitFor(*process);
    EXPECT_EQ(folder_.Read("arguments.txt"), "a b.txt\n\"quoted\" $HOME\n");
}

TEST_F(ProcessTest, StartsAProgramWhosePathHasBlanks) {
    std::filesystem::create_directory(folder_.PathOf("my models"));
    folder_.WriteProgram("my models/the model", "echo done > result.txt");
    const auto process = Start("my models/the model");
    ASSERT_NE(process, nullptr);
    WaitFor(*process);
    EXPECT_EQ(folder_.Read("result.txt"), "done\n");
}

TEST_F(ProcessTest, GivesNothingToReadAndThrowsTheOutputAway) {
    folder_.WriteProgram("model",
                         "if read line; then echo some; else echo none; fi > input.txt\n"
                         "echo noise; echo noise >&2");
    ::testing::internal::CaptureStdout();
    const auto process = Start("model");
    ASSERT_NE(process, nullptr);
    WaitFor(*process);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(folder_.Read("input.txt"), "none\n");
}

TEST_F(ProcessTest, CannotStartWhatIsMissing) {
    EXPECT_EQ(Start("missing"), nullptr);
}

TEST_F(ProcessTest, CannotStartWhatIsNotExecutable) {
    folder_.Write("model", "#!/bin/sh\n");
    EXPECT_EQ(Start("model"), nullptr);
    EXPECT_EQ(StartProcess({folder_.Path(), {}, folder_.Path(), 0}), nullptr);
}

TEST_F(ProcessTest, CannotStartInAFolderThatIsMissing) {
    folder_.WriteProgram("model", "");
    EXPECT_EQ(StartProcess({folder_.PathOf("model"), {}, folder_.PathOf("missing"), 0}), nullptr);
}

TEST_F(ProcessTest, CannotStartAWindowsProgramWithoutWine) {
    folder_.Write("model.exe", "MZ and more");
    std::filesystem::permissions(folder_.PathOf("model.exe"), std::filesystem::perms::owner_all);
    const SearchPath empty(folder_.PathOf("no such folder"));
    EXPECT_EQ(Start("model.exe"), nullptr);
}

TEST_F(ProcessTest, StartsAWindowsProgramThroughWineOnTheUsualSearchPath) {
    folder_.Write("model.exe", "MZ and more");
    TemporaryFolder tools;
    tools.WriteProgram("wine", "printf '%s\\n' \"$@\" \"$PATH\" > wine.txt");
    const SearchPath usual("/nowhere:" + tools.Path());
    const auto process = Start("model.exe", {"argument"});
    ASSERT_NE(process, nullptr);
    WaitFor(*process);
    EXPECT_EQ(folder_.Read("wine.txt"), folder_.PathOf("model.exe") + "\nargument\n" +
                                            folder_.Path() + ":/nowhere:" + tools.Path() + "\n");
}

TEST_F(ProcessTest, LeavesAProgramRunningThatIsLetGo) {
    const auto go = MakeFifo("go");
    const auto back = MakeFifo("back");
    folder_.WriteProgram("model", "read line < go; echo $line > back");
    auto process = Start("model");
    ASSERT_NE(process, nullptr);
    process.reset();
    std::ofstream(go) << "alive\n";
    std::string answer;
    std::ifstream(back) >> answer;
    EXPECT_EQ(answer, "alive");
}

TEST_F(ProcessTest, LeavesNoTraceOfAProgramThatWasLetGoAndHasEnded) {
    const auto go = MakeFifo("go");
    folder_.WriteProgram("editor", "echo $$ > id.txt; read line < go");
    auto process = Start("editor");
    ASSERT_NE(process, nullptr);
    const int end = dup(process->EndDescriptor());
    process.reset();
    std::ofstream(go) << "go\n";
    pollfd ended{end, POLLIN, 0};
    poll(&ended, 1, -1);
    close(end);
    const auto id = std::stoi(folder_.Read("id.txt"));
    EXPECT_EQ(kill(id, 0), 0);
    EXPECT_EQ(Start("missing"), nullptr);
    EXPECT_NE(kill(id, 0), 0);
}

TEST(ProgramStart, KnowsTheFileNameOfItsProgram) {
    ProgramStart start;
    start.program = "/opt/my models/SWQVL.exe";
    EXPECT_EQ(start.FileName(), "SWQVL.exe");
}

}  // namespace arbolith
