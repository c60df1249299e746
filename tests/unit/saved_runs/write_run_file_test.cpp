// Saving: what happens to the file, the run's flags and the person when a file can or can't be
// written.
#include "unit/platform/full_disk.h"
#include "unit/platform/ordinary_user.h"
#include "unit/saved_runs/saved_testing.h"

#include <filesystem>

namespace arbolith {
namespace {

class WriteRunFileTest : public SavedRunsTest {
protected:
    WriteRunFileTest() { Read(PineFile()); }

    // Saves a changed run and tells the boxes that it took.
    void Write(const std::string& path) {
        run.InputChanged = true;
        host.boxes.clear();
        WriteRunFile(saved, path);
    }
    void ExpectNotSaved() const {
        EXPECT_TRUE(run.InputChanged);
        EXPECT_EQ(saved.RunFilePath, folder.PathOf("stand.qvn"));
    }
};

TEST_F(WriteRunFileTest, WritesTheLinesAndBindsTheRun) {
    Write(folder.PathOf("other.qvn"));
    const auto text = folder.Read("other.qvn");
    EXPECT_EQ(text.substr(text.find("\r\n")), Joined(PineFile()).substr(6));
    EXPECT_FALSE(run.InputChanged);
    EXPECT_EQ(saved.RunFilePath, folder.PathOf("other.qvn"));
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(WriteRunFileTest, LeavesTheOldFileWhenTheDiskIsFull) {
    {
        const FullDisk full(50);
        Write(folder.PathOf("stand.qvn"));
    }
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(folder.Read("stand.qvn"), Joined(PineFile()));
    ExpectNotSaved();
    Write(folder.PathOf("stand.qvn"));
    EXPECT_FALSE(run.InputChanged);
}

TEST_F(WriteRunFileTest, TellsAMissingFolderAndAFolderInTheFilesPlace) {
    folder.Block("folder.qvn");
    for (const char* name : {"missing/stand.qvn", "folder.qvn", ""}) {
        Write(*name == '\0' ? "" : folder.PathOf(name));
        ASSERT_EQ(host.boxes.size(), 1u) << name;
        EXPECT_EQ(host.boxes[0].text, kSaveFailed);
        EXPECT_EQ(host.boxes[0].title, "");
        EXPECT_EQ(host.boxes[0].icon, BoxIcon::kNone);
        ExpectNotSaved();
    }
}

TEST_F(WriteRunFileTest, FailsSilentlyWhileItsNumberIsInUseAndFreesIt) {
    auto wrong = PineFile();
    wrong[3] = "Blue Pine";
    folder.Write("wrong.qvn", Joined(wrong));
    ReadRunFile(saved, folder.PathOf("wrong.qvn"));
    Write(folder.PathOf("other.qvn"));
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_FALSE(folder.Holds("other.qvn"));
    EXPECT_TRUE(run.InputChanged);
    Write(folder.PathOf("other.qvn"));
    EXPECT_TRUE(folder.Holds("other.qvn"));
}

TEST_F(WriteRunFileTest, TellsAFileThatMustNotBeWritten) {
    std::filesystem::permissions(folder.PathOf("stand.qvn"), std::filesystem::perms::owner_read);
    const OrdinaryUser user(folder);
    Write(folder.PathOf("stand.qvn"));
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text, kSaveFailed);
    EXPECT_EQ(folder.Read("stand.qvn"), Joined(PineFile()));
    ExpectNotSaved();
}

TEST_F(WriteRunFileTest, FailsSilentlyForANameThatNoFileCanHave) {
    Write(folder.PathOf("pine*.qvn"));
    EXPECT_TRUE(host.boxes.empty());
    ExpectNotSaved();
}

}  // namespace
}  // namespace arbolith
