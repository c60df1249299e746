#include "cli/work_folder.h"

#include "cli/exit_status.h"
#include "unit/platform/temporary_folder.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>

namespace arbolith::console {

namespace fs = std::filesystem;

class WorkFolderTest : public testing::Test {
public:
    TemporaryFolder models;
    WorkFolderTest() {
        models.WriteProgram("SWQVL.exe", "exit 0");
        fs::create_directory(models.PathOf("tables"));
    }
};

TEST_F(WorkFolderTest, LinksToAllThatLiesBesideTheModels) {
    const WorkFolder folder(models.Path());
    EXPECT_TRUE(fs::equivalent(folder.PathOf("SWQVL.exe"), models.PathOf("SWQVL.exe")));
    EXPECT_TRUE(fs::is_directory(folder.PathOf("tables")));
}

TEST_F(WorkFolderTest, LeavesExchangeFilesOfOthersAside) {
    models.Write("_OUTPUT.TMP", "old");
    const WorkFolder folder(models.Path());
    EXPECT_FALSE(fs::exists(folder.PathOf("_OUTPUT.TMP")));
}

TEST_F(WorkFolderTest, ItsReportIsNobodyElses) {
    const auto name = fs::path(WorkFolder(models.Path()).ReportPath()).filename().string();
    models.Write(name, "theirs");
    const WorkFolder folder(models.Path());
    EXPECT_FALSE(fs::exists(fs::symlink_status(folder.ReportPath())));
}

TEST_F(WorkFolderTest, EachRunHasOneOfItsOwn) {
    const WorkFolder first(models.Path());
    const WorkFolder second(models.Path());
    EXPECT_NE(first.Path(), second.Path());
}

TEST_F(WorkFolderTest, IsGoneAfterwardsAndTheModelsStay) {
    std::string path;
    {
        const WorkFolder folder(models.Path());
        path = folder.Path();
        models.Write("tables/kept", "");
    }
    EXPECT_FALSE(fs::exists(path));
    EXPECT_TRUE(fs::exists(models.PathOf("SWQVL.exe")));
    EXPECT_TRUE(fs::exists(models.PathOf("tables/kept")));
}

TEST_F(WorkFolderTest, ARelativeFolderIsFoundToo) {
    const auto before = fs::current_path();
    fs::current_path(fs::path(models.Path()).parent_path());
    {
        const WorkFolder folder(fs::path(models.Path()).filename().string());
        EXPECT_TRUE(fs::exists(folder.PathOf("SWQVL.exe")));
    }
    fs::current_path(before);
}

TEST_F(WorkFolderTest, HasRoomUntilItIsGone) {
    const WorkFolder folder(models.Path());
    const auto request = models.PathOf("SWQVL.exe");
    EXPECT_NO_THROW(folder.RequireRoom(request));
    fs::remove_all(folder.Path());
    EXPECT_THROW(folder.RequireRoom(request), Failure);
}

// The limit on the size of a file stands for a full disk.
TEST_F(WorkFolderTest, HasRoomForAsMuchAsTheRequestHolds) {
    const WorkFolder folder(models.Path());
    models.Write("large.qvb", std::string(100'000, '#'));
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{120'000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_NO_THROW(folder.RequireRoom(models.PathOf("SWQVL.exe")));
    EXPECT_THROW(folder.RequireRoom(models.PathOf("large.qvb")), Failure);
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
}

TEST_F(WorkFolderTest, AMissingModelFolderIsTold) {
    try {
        const WorkFolder folder(models.PathOf("nowhere"));
        FAIL() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.status, ExitStatus::kModel);
        EXPECT_EQ(failure.message, models.PathOf("nowhere") + ": No such file or directory");
    }
}

}  // namespace arbolith::console
