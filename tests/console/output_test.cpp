#include "console/console_run.h"

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <sys/resource.h>
#include <unistd.h>

namespace arbolith {

class OutputOfRuns : public ConsoleTest {
public:
    OutputOfRuns() { work.Write("stand.qvn", StandLines().Text()); }
};

TEST_F(OutputOfRuns, AFullDiskIsTold) {
    const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
    const auto ended = Run({"run", "stand.qvn"}, full, -1);
    close(full);
    EXPECT_EQ(ended.status, 6);
    EXPECT_EQ(ended.errors, "arbolith-cli: standard output: No space left on device\n");
}

TEST_F(OutputOfRuns, AClosedPipeIsTold) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    close(ends[0]);
    const auto ended = Run({"run", "stand.qvn"}, ends[1], -1);
    close(ends[1]);
    EXPECT_EQ(ended.status, 6);
    EXPECT_EQ(ended.errors, "arbolith-cli: standard output: Broken pipe\n");
    EXPECT_TRUE(LeftNothingBehind());
}

TEST_F(OutputOfRuns, AReportThatCantBeWrittenIsTold) {
    const auto ended = Run({"run", "stand.qvn", "--output", "no/report.txt"});
    EXPECT_EQ(ended.status, 6);
    EXPECT_EQ(ended.errors, "arbolith-cli: no/report.txt: No such file or directory\n");
}

TEST_F(OutputOfRuns, AnOlderReportIsReplacedOnlyByAWholeOne) {
    work.Write("report.txt", "older");
    std::filesystem::remove(models.PathOf("SWQVL.exe"));
    EXPECT_EQ(Run({"run", "stand.qvn", "--output", "report.txt"}).status, 5);
    EXPECT_EQ(work.Read("report.txt"), "older");
    std::filesystem::create_symlink(SOFTWOOD_PROGRAM, models.PathOf("SWQVL.exe"));
    EXPECT_EQ(Run({"run", "stand.qvn", "--output", "report.txt"}).status, 0);
    EXPECT_NE(work.Read("report.txt"), "older");
}

TEST_F(OutputOfRuns, NoRoomForTemporaryFoldersIsTold) {
    temporary = work.PathOf("nowhere");
    const auto ended = Run({"run", "stand.qvn"});
    EXPECT_EQ(ended.status, 6);
    EXPECT_TRUE(ended.errors.starts_with("arbolith-cli: there is no folder for temporary files"));
}

TEST_F(OutputOfRuns, ARelativeFolderForTemporaryOnesWillDo) {
    std::filesystem::create_directory(work.PathOf("here"));
    temporary = "here";
    const auto ended = Run({"run", "stand.qvn"});
    EXPECT_EQ(ended.status, 0) << ended.errors;
    EXPECT_TRUE(std::filesystem::is_empty(work.PathOf("here")));
}

// The limit on the size of a file stands for a full disk; what the test reads is smaller.
TEST_F(OutputOfRuns, AFullFolderForTemporaryOnesIsTold) {
    work.Write("stands.qvb", BatchText({SequenceLine("1", "S")}));
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    for (const rlim_t bytes : {60, 1000, 2500}) {
        const rlimit small{bytes, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        const auto stand = Run({"run", "stand.qvn"});
        const auto batch = Run({"batch", "stands.qvb", "--output", "-"});
        setrlimit(RLIMIT_FSIZE, &before);
        for (const auto& ended : {stand, batch}) {
            EXPECT_EQ(ended.status, 6) << bytes << " " << ended.errors;
            EXPECT_EQ(ended.output, "");
        }
    }
    EXPECT_TRUE(LeftNothingBehind());
}

TEST_F(OutputOfRuns, AClosedOutputIsTold) {
    const int unwritable = open("/dev/null", O_RDONLY | O_CLOEXEC);
    const auto ended = Run({"run", "stand.qvn"}, unwritable, -1);
    close(unwritable);
    EXPECT_EQ(ended.status, 6);
    EXPECT_EQ(ended.errors, "arbolith-cli: standard output: Bad file descriptor\n");
}

TEST_F(OutputOfRuns, ReportsAreTheSameInAFileAndInAPipe) {
    EXPECT_EQ(Run({"run", "stand.qvn", "--output", "report.txt"}).output, "");
    EXPECT_EQ(Run({"run", "stand.qvn"}).output, work.Read("report.txt"));
}

}  // namespace arbolith
