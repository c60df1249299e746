#include "notepad/document.h"

#include "unit/notepad/fakes.h"
#include "unit/platform/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace arbolith::notepad {

using Texts = std::vector<std::string>;

class DocumentTest : public testing::Test {
public:
    TemporaryFolder folder;
    std::string path = folder.PathOf("stands.qvb");
    FakeText text;
    FakePerson person;
    Document document{text, person};

    void StartWith(const std::string& bytes) {
        folder.Write("stands.qvb", bytes);
        ASSERT_TRUE(document.Start(path));
    }
};

TEST_F(DocumentTest, OpensTheFileItIsStartedWith) {
    StartWith("sequences:\r\n");
    EXPECT_EQ(text.bytes, "sequences:\r\n");
    EXPECT_EQ(document.Path(), path);
    EXPECT_EQ(document.Name(), "stands.qvb");
    EXPECT_EQ(person.asked, Texts{});
}

TEST_F(DocumentTest, IsUntitledWithoutAFile) {
    EXPECT_EQ(document.Path(), "");
    EXPECT_EQ(document.Name(), "Untitled");
}

TEST_F(DocumentTest, CreatesAMissingFileAtOnceIfThePersonWants) {
    person.creates = true;
    EXPECT_TRUE(document.Start(path));
    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_EQ(document.Path(), path);
}

TEST_F(DocumentTest, DoesntCreateAMissingFileUnasked) {
    EXPECT_FALSE(document.Start(path));
    EXPECT_EQ(person.asked, Texts{"create"});
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(DocumentTest, TellsWhatCantBeOpened) {
    EXPECT_FALSE(document.Start(folder.Path()));
    EXPECT_EQ(person.failures, Texts{folder.Path() + " opened: It is a folder"});
    EXPECT_FALSE(document.Start("/dev/null"));
    EXPECT_EQ(person.failures.back(), "/dev/null opened: It is a device and no text file");
}

TEST_F(DocumentTest, RefusesAFileThatIsTooLarge) {
    folder.Write("stands.qvb", "");
    std::filesystem::resize_file(path, (512L << 20) + 1);
    EXPECT_FALSE(document.Start(path));
    EXPECT_EQ(person.failures, Texts{path + " opened: It is larger than 512 MB"});
}

TEST_F(DocumentTest, SavesToItsFile) {
    StartWith("old");
    text.Type("new\xE9");
    EXPECT_TRUE(document.Save());
    EXPECT_EQ(folder.Read("stands.qvb"), "new\xE9");
    EXPECT_FALSE(text.isModified);
}

TEST_F(DocumentTest, SavesAgainWithoutAQuestion) {
    StartWith("old");
    text.Type("new");
    EXPECT_TRUE(document.Save());
    text.Type("newer");
    EXPECT_TRUE(document.Save());
    EXPECT_EQ(person.asked, Texts{});
}

TEST_F(DocumentTest, AsksForANameWhereItHasNone) {
    person.chosen = path;
    text.Type("text");
    EXPECT_TRUE(document.Save());
    EXPECT_EQ(folder.Read("stands.qvb"), "text");
    EXPECT_EQ(document.Path(), path);
}

TEST_F(DocumentTest, SavesUnderAnotherNameAndBelongsToThatFileThen) {
    StartWith("old");
    text.Type("new");
    person.chosen = folder.PathOf("other.txt");
    EXPECT_TRUE(document.SaveAs());
    EXPECT_EQ(folder.Read("stands.qvb"), "old");
    EXPECT_EQ(folder.Read("other.txt"), "new");
    EXPECT_EQ(document.Name(), "other.txt");
}

TEST_F(DocumentTest, ACancelledSaveLeavesTheTextUnsaved) {
    text.Type("text");
    EXPECT_FALSE(document.Save());
    EXPECT_TRUE(text.isModified);
}

TEST_F(DocumentTest, AFailedSaveIsToldAndLeavesTheTextUnsaved) {
    StartWith("old");
    text.Type("new");
    person.chosen = "/dev/full";
    EXPECT_FALSE(document.SaveAs());
    EXPECT_EQ(person.failures, Texts{"/dev/full saved: No space left on device"});
    EXPECT_TRUE(text.isModified);
    EXPECT_EQ(document.Path(), path);
}

TEST_F(DocumentTest, AsksBeforeItOverwritesWhatAnotherProgramWrote) {
    StartWith("old");
    text.Type("mine");
    folder.Write("stands.qvb", "theirs");
    EXPECT_FALSE(document.Save());
    EXPECT_EQ(person.asked, Texts{"overwrite"});
    EXPECT_EQ(folder.Read("stands.qvb"), "theirs");
    EXPECT_TRUE(text.isModified);
    person.overwrites = true;
    EXPECT_TRUE(document.Save());
    EXPECT_EQ(folder.Read("stands.qvb"), "mine");
}

TEST_F(DocumentTest, NoticesAnotherFileOfTheSameSize) {
    StartWith("old");
    folder.Write("other", "new");
    std::filesystem::last_write_time(folder.PathOf("other"),
                                     std::filesystem::last_write_time(path));
    std::filesystem::rename(folder.PathOf("other"), path);
    EXPECT_FALSE(document.Save());
    EXPECT_EQ(person.asked, Texts{"overwrite"});
}

TEST_F(DocumentTest, WritesAFileAnewThatIsGone) {
    StartWith("old");
    std::filesystem::remove(path);
    EXPECT_TRUE(document.Save());
    EXPECT_EQ(folder.Read("stands.qvb"), "old");
    EXPECT_EQ(person.asked, Texts{});
}

TEST_F(DocumentTest, MayLeaveASavedTextUnasked) {
    StartWith("old");
    EXPECT_TRUE(document.MayLeave());
    EXPECT_EQ(person.asked, Texts{});
}

TEST_F(DocumentTest, AsksBeforeAnUnsavedTextIsLost) {
    StartWith("old");
    text.Type("new");
    EXPECT_FALSE(document.MayLeave());
    EXPECT_EQ(person.asked, Texts{"unsaved stands.qvb"});
    person.unsaved = UnsavedAnswer::kDiscard;
    EXPECT_TRUE(document.MayLeave());
    EXPECT_EQ(folder.Read("stands.qvb"), "old");
    person.unsaved = UnsavedAnswer::kSave;
    EXPECT_TRUE(document.MayLeave());
    EXPECT_EQ(folder.Read("stands.qvb"), "new");
}

TEST_F(DocumentTest, StaysWhereTheSaveBeforeLeavingFails) {
    text.Type("new");
    person.unsaved = UnsavedAnswer::kSave;
    EXPECT_FALSE(document.MayLeave());
    person.chosen = "/dev/full";
    EXPECT_FALSE(document.MayLeave());
    EXPECT_TRUE(text.isModified);
}

TEST_F(DocumentTest, ANewTextHasNoFile) {
    StartWith("old");
    EXPECT_TRUE(document.New());
    EXPECT_EQ(text.bytes, "");
    EXPECT_EQ(document.Path(), "");
}

TEST_F(DocumentTest, OpensAnotherFile) {
    StartWith("old");
    folder.Write("other.txt", "other");
    person.chosen = folder.PathOf("other.txt");
    EXPECT_TRUE(document.Open());
    EXPECT_EQ(text.bytes, "other");
    EXPECT_EQ(document.Name(), "other.txt");
}

TEST_F(DocumentTest, NeitherNewNorOpenLosesAnUnsavedText) {
    StartWith("old");
    text.Type("new");
    EXPECT_FALSE(document.New());
    EXPECT_FALSE(document.Open());
    EXPECT_EQ(text.bytes, "new");
    EXPECT_TRUE(text.isModified);
    EXPECT_EQ(document.Path(), path);
}

TEST_F(DocumentTest, AnOpenThatFailsLeavesTheTextAsItIs) {
    StartWith("old");
    text.Type("new");
    person.unsaved = UnsavedAnswer::kDiscard;
    person.chosen = folder.PathOf("missing.txt");
    EXPECT_FALSE(document.Open());
    EXPECT_EQ(person.failures,
              Texts{folder.PathOf("missing.txt") + " opened: No such file or directory"});
    EXPECT_EQ(text.bytes, "new");
    EXPECT_TRUE(text.isModified);
    EXPECT_EQ(document.Path(), path);
}

}  // namespace arbolith::notepad
