#include "cli/work_folder.h"

#include "cli/exit_status.h"
#include "unit/platform/full_disk.h"
#include "unit/platform/temporary_folder.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

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

TEST_F(WorkFolderTest, HasRoomForAsMuchAsTheRequestHolds) {
    const WorkFolder folder(models.Path());
    models.Write("large.qvb", std::string(100'000, '#'));
    const FullDisk full(120'000);
    EXPECT_NO_THROW(folder.RequireRoom(models.PathOf("SWQVL.exe")));
    EXPECT_THROW(folder.RequireRoom(models.PathOf("large.qvb")), Failure);
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
