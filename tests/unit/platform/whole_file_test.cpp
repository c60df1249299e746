#include "platform/whole_file.h"

#include "unit/platform/full_disk.h"
#include "unit/platform/ordinary_user.h"
#include "unit/platform/temporary_folder.h"

#include <cerrno>
#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace arbolith {

namespace {

std::string AllBytes() {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    return all;
}

struct stat StatOf(const std::string& path) {
    struct stat found {};
    EXPECT_EQ(stat(path.c_str(), &found), 0) << path;
    return found;
}

// The system's number of the failure; 0 for none.
template <class Work>
int FailureOf(Work work) {
    try {
        work();
    } catch (const std::system_error& error) {
        return error.code().value();
    }
    return 0;
}

long FilesIn(const std::string& folder) {
    return std::distance(std::filesystem::directory_iterator(folder), {});
}

}  // namespace

class WholeFile : public testing::Test {
public:
    TemporaryFolder folder;
    std::string path = folder.PathOf("stand.qvb");
};

TEST_F(WholeFile, BringsEveryByteBack) {
    ReplaceWholeFile(path, AllBytes());
    EXPECT_EQ(ReadWholeFile(path), AllBytes());
}

TEST_F(WholeFile, ReadsMoreThanOnePiece) {
    const std::string large(3'000'001, 'x');
    folder.Write("stand.qvb", large);
    EXPECT_EQ(ReadWholeFile(path), large);
}

TEST_F(WholeFile, ReplacesALongerTextWhole) {
    folder.Write("stand.qvb", "a longer text");
    ReplaceWholeFile(path, "short");
    EXPECT_EQ(folder.Read("stand.qvb"), "short");
}

TEST_F(WholeFile, LeavesNothingBesideTheFile) {
    ReplaceWholeFile(path, "one");
    ReplaceWholeFile(path, "two");
    EXPECT_EQ(FilesIn(folder.Path()), 1);
}

TEST_F(WholeFile, KeepsTheOldFilesPermissions) {
    folder.Write("stand.qvb", "old");
    chmod(path.c_str(), 0640);
    ReplaceWholeFile(path, "new");
    EXPECT_EQ(StatOf(path).st_mode & 07777, 0640U);
}

TEST_F(WholeFile, GivesANewFileTheUsualPermissions) {
    const mode_t before = umask(027);
    ReplaceWholeFile(path, "new");
    umask(before);
    EXPECT_EQ(StatOf(path).st_mode & 07777, 0640U);
}

TEST_F(WholeFile, ReplacesTheFileBehindALinkAndNotTheLink) {
    folder.Write("target", "old");
    ASSERT_EQ(symlink("target", path.c_str()), 0);
    ReplaceWholeFile(path, "new");
    EXPECT_EQ(folder.Read("target"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(path));
}

TEST_F(WholeFile, KeepsTheOtherNamesOfTheFile) {
    folder.Write("stand.qvb", "a longer text");
    ASSERT_EQ(link(path.c_str(), folder.PathOf("other").c_str()), 0);
    ReplaceWholeFile(path, "new");
    EXPECT_EQ(folder.Read("other"), "new");
}

TEST_F(WholeFile, AFullDiskLeavesTheOldFile) {
    folder.Write("stand.qvb", "old");
    const FullDisk full(1000);
    EXPECT_EQ(FailureOf([&] { ReplaceWholeFile(path, std::string(2000, 'x')); }), EFBIG);
    EXPECT_EQ(folder.Read("stand.qvb"), "old");
    EXPECT_EQ(FilesIn(folder.Path()), 1);
}

TEST_F(WholeFile, AFullDiskLeavesAFileThatIsOverwrittenInPlace) {
    folder.Write("stand.qvb", "old");
    ASSERT_EQ(link(path.c_str(), folder.PathOf("other").c_str()), 0);
    const FullDisk full(1000);
    EXPECT_EQ(FailureOf([&] { ReplaceWholeFile(path, std::string(2000, 'x')); }), EFBIG);
    EXPECT_EQ(folder.Read("stand.qvb"), "old");
}

TEST_F(WholeFile, ADeviceIsWrittenTo) {
    EXPECT_EQ(FailureOf([] { ReplaceWholeFile("/dev/full", "text"); }), ENOSPC);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

TEST_F(WholeFile, AFolderIsNoFile) {
    EXPECT_EQ(FailureOf([&] { ReplaceWholeFile(folder.Path(), "text"); }), EISDIR);
    EXPECT_EQ(FailureOf([&] { ReadWholeFile(folder.Path()); }), EISDIR);
}

TEST_F(WholeFile, WhatIsMissingIsTold) {
    EXPECT_EQ(FailureOf([&] { ReadWholeFile(path); }), ENOENT);
    EXPECT_EQ(FailureOf([&] { ReplaceWholeFile(folder.PathOf("no/stand.qvb"), "text"); }), ENOENT);
}

TEST_F(WholeFile, AProtectedFileIsNotReplaced) {
    folder.Write("stand.qvb", "old");
    chmod(path.c_str(), 0444);
    const OrdinaryUser user(folder);
    EXPECT_EQ(FailureOf([&] { ReplaceWholeFile(path, "new"); }), EACCES);
    EXPECT_EQ(folder.Read("stand.qvb"), "old");
}

TEST_F(WholeFile, AFileInAProtectedFolderIsOverwritten) {
    folder.Write("stand.qvb", "a longer text");
    const OrdinaryUser user(folder);
    chmod(folder.Path().c_str(), 0555);
    ReplaceWholeFile(path, "new");
    chmod(folder.Path().c_str(), 0755);
    EXPECT_EQ(folder.Read("stand.qvb"), "new");
}

}  // namespace arbolith
