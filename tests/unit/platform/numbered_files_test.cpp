#include "platform/numbered_files.h"

#include "unit/platform/expect_error.h"
#include "unit/platform/full_disk.h"
#include "unit/platform/ordinary_user.h"
#include "unit/platform/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace arbolith {

class NumberedFilesTest : public ::testing::Test {
protected:
    std::string PathOf(const std::string& name) const { return folder_.PathOf(name); }

    void OpenWith(const std::string& bytes) {
        folder_.Write("in.txt", bytes);
        files_.OpenForInput(1, PathOf("in.txt"));
    }

    TemporaryFolder folder_;
    NumberedFiles files_;
};

TEST_F(NumberedFilesTest, EndsLinesInCrLf) {
    files_.OpenForOutput(1, PathOf("out.txt"));
    files_.PrintLine(1, "one");
    files_.PrintLine(1, "");
    files_.PrintLine(1, "\xE9\t");
    files_.Close(1);
    EXPECT_EQ(folder_.Read("out.txt"), "one\r\n\r\n\xE9\t\r\n");
}

TEST_F(NumberedFilesTest, EmptiesAnExistingFileOpenedForOutput) {
    folder_.Write("out.txt", "a much longer earlier text");
    files_.OpenForOutput(1, PathOf("out.txt"));
    files_.PrintLine(1, "new");
    files_.Close(1);
    EXPECT_EQ(folder_.Read("out.txt"), "new\r\n");
}

TEST_F(NumberedFilesTest, HoldsWhatWasWrittenSoFarOnceItIsFlushed) {
    folder_.Write("out.txt", "a much longer earlier text");
    files_.OpenForOutput(1, PathOf("out.txt"));
    files_.PrintLine(1, "new");
    files_.Flush(1);
    EXPECT_EQ(folder_.Read("out.txt"), "new\r\n");
    files_.PrintLine(1, "more");
    files_.Close(1);
    EXPECT_EQ(folder_.Read("out.txt"), "new\r\nmore\r\n");
    EXPECT_ERROR(52, files_.Flush(1));
}

TEST_F(NumberedFilesTest, KeepsWhatTheDiskHasRoomFor) {
    const FullDisk full(10);
    files_.OpenForOutput(1, PathOf("out.txt"));
    files_.PrintLine(1, "a text that is longer");
    EXPECT_THROW(files_.Flush(1), RuntimeError);
    files_.CloseQuietly(1);
    EXPECT_EQ(folder_.Read("out.txt"), "a text tha");
}

TEST_F(NumberedFilesTest, GoesOnBehindAnExistingFileOpenedForAppend) {
    folder_.Write("out.txt", "old\r\n");
    files_.OpenForAppend(1, PathOf("out.txt"));
    files_.PrintLine(1, "new");
    files_.Close(1);
    EXPECT_EQ(folder_.Read("out.txt"), "old\r\nnew\r\n");
}

TEST_F(NumberedFilesTest, CreatesAMissingFileOpenedForAppend) {
    files_.OpenForAppend(1, PathOf("out.txt"));
    files_.Close(1);
    EXPECT_TRUE(std::filesystem::exists(PathOf("out.txt")));
}

TEST_F(NumberedFilesTest, WritesAFileOfBytesWithoutANumber) {
    const std::string bytes("BM\0\r\n", 5);
    folder_.Write("out.bmp", "a longer earlier picture");
    NumberedFiles::WriteWhole(PathOf("out.bmp"), bytes);
    EXPECT_EQ(folder_.Read("out.bmp"), bytes);
    NumberedFiles::WriteWhole(PathOf("new.bmp"), "");
    EXPECT_EQ(folder_.Read("new.bmp"), "");
    EXPECT_ERROR(75, NumberedFiles::WriteWhole(PathOf("."), bytes));
    EXPECT_ERROR(76, NumberedFiles::WriteWhole(PathOf("missing/out.bmp"), bytes));
    EXPECT_ERROR(52, NumberedFiles::WriteWhole(PathOf("a?.bmp"), bytes));
}

TEST_F(NumberedFilesTest, WritesMoreThanItsBufferWhole) {
    const std::string line(1000, 'x');
    std::string expected;
    files_.OpenForOutput(1, PathOf("out.txt"));
    for (int i = 0; i < 200; ++i) {
        files_.PrintLine(1, line);
        expected += line + "\r\n";
    }
    files_.Close(1);
    EXPECT_EQ(folder_.Read("out.txt"), expected);
}

TEST_F(NumberedFilesTest, ReadsTokensBetweenBlanksAndLineEnds) {
    OpenWith("  4\r\n0 12.50\t-3\n\nlast");
    EXPECT_EQ(files_.ReadToken(1), "4");
    EXPECT_EQ(files_.ReadWhole(1), 0);
    EXPECT_EQ(files_.ReadReal(1), 12.5);
    EXPECT_EQ(files_.ReadToken(1), "-3");
    EXPECT_EQ(files_.ReadToken(1), "last");
    EXPECT_TRUE(files_.AtEndOfData(1));
}

TEST_F(NumberedFilesTest, ReadsATokenAcrossItsBuffersEdge) {
    const std::string token(100, '7');
    OpenWith(std::string(64 * 1024 - 50, ' ') + token + " 8");
    EXPECT_EQ(files_.ReadToken(1), token);
    EXPECT_EQ(files_.ReadWhole(1), 8);
}

TEST_F(NumberedFilesTest, ReadsItemsUpToCommasAndLineEnds) {
    OpenWith(" \t one two  \r\nthree, four\nfive\rsix");
    for (const auto* item : {"one two  ", "three", "four", "five", "six"})
        EXPECT_EQ(files_.ItemRead(1), item);
    EXPECT_TRUE(files_.AtEndOfFile(1));
}

TEST_F(NumberedFilesTest, ReadsABlankLineAsAnEmptyItem) {
    OpenWith("\r\n \t \r\n\n\r\nlast");
    for (int line = 0; line < 4; ++line) EXPECT_EQ(files_.ItemRead(1), "");
    EXPECT_EQ(files_.ItemRead(1), "last");
}

TEST_F(NumberedFilesTest, ReadsAnEmptyItemBehindACommaAtALinesEnd) {
    OpenWith("one,\r\ntwo");
    for (const auto* item : {"one", "", "two"}) EXPECT_EQ(files_.ItemRead(1), item);
}

TEST_F(NumberedFilesTest, ReadsItemsAcrossItsBuffersEdge) {
    const std::string first(65536 - 1, 'x');
    const std::string second(70000, 'y');
    OpenWith(first + "\r\n" + second + "\r\n");
    EXPECT_EQ(files_.ItemRead(1), first);
    EXPECT_FALSE(files_.AtEndOfFile(1));
    EXPECT_EQ(files_.ItemRead(1), second);
    EXPECT_TRUE(files_.AtEndOfFile(1));
}

TEST_F(NumberedFilesTest, SkipsAUtf8MarkAtTheStartOnly) {
    OpenWith("\xEF\xBB\xBFone\n\xEF\xBB\xBFtwo");
    EXPECT_EQ(files_.ItemRead(1), "one");
    EXPECT_EQ(files_.ItemRead(1), "\xEF\xBB\xBFtwo");
    files_.Close(1);
    OpenWith("\xEF\xBB\xBF");
    EXPECT_TRUE(files_.AtEndOfFile(1));
}

TEST_F(NumberedFilesTest, FailsWith62OnAnItemPastTheEnd) {
    OpenWith("");
    EXPECT_TRUE(files_.AtEndOfFile(1));
    EXPECT_ERROR(62, files_.ItemRead(1));
}

TEST_F(NumberedFilesTest, FailsWith7OnAnItemWithoutAnEnd) {
    files_.OpenForInput(1, "/dev/zero");
    EXPECT_ERROR(7, files_.ItemRead(1));
}

TEST_F(NumberedFilesTest, TakesBlanksAndLineEndsAtTheEndForTheEndOfTheData) {
    OpenWith("1 \r\n\t \r\n\r\n");
    EXPECT_FALSE(files_.AtEndOfData(1));
    files_.ReadToken(1);
    EXPECT_TRUE(files_.AtEndOfData(1));
}

TEST_F(NumberedFilesTest, HoldsNoDataInAnEmptyFile) {
    OpenWith("");
    EXPECT_TRUE(files_.AtEndOfData(1));
}

TEST_F(NumberedFilesTest, FailsWith62PastTheEnd) {
    OpenWith("1 \r\n");
    files_.ReadToken(1);
    EXPECT_ERROR(62, files_.ReadToken(1));
    EXPECT_ERROR(62, files_.ReadReal(1));
    EXPECT_ERROR(62, files_.ReadWhole(1));
}

TEST_F(NumberedFilesTest, FailsWith13OnATokenThatIsNoNumber) {
    OpenWith("abc nan 1,5");
    EXPECT_ERROR(13, files_.ReadReal(1));
    EXPECT_ERROR(13, files_.ReadReal(1));
    EXPECT_ERROR(13, files_.ReadWhole(1));
}

TEST_F(NumberedFilesTest, RoundsWholeNumbersAndFailsWith6OutsideTheirRange) {
    OpenWith("2.5 40000");
    EXPECT_EQ(files_.ReadWhole(1), 2);
    EXPECT_ERROR(6, files_.ReadWhole(1));
}

TEST_F(NumberedFilesTest, FailsWith53OnAMissingFile) {
    EXPECT_ERROR(53, files_.OpenForInput(1, PathOf("missing.txt")));
}

TEST_F(NumberedFilesTest, FailsWith76OnAMissingFolder) {
    EXPECT_ERROR(76, files_.OpenForInput(1, PathOf("missing/in.txt")));
    EXPECT_ERROR(76, files_.OpenForOutput(1, PathOf("missing/out.txt")));
    folder_.Write("file", "");
    EXPECT_ERROR(76, files_.OpenForOutput(1, PathOf("file/out.txt")));
}

TEST_F(NumberedFilesTest, FailsWith75OnAFolderAndOnAnEmptyName) {
    EXPECT_ERROR(75, files_.OpenForInput(1, folder_.Path()));
    EXPECT_ERROR(75, files_.OpenForOutput(1, folder_.Path()));
    EXPECT_ERROR(75, files_.OpenForInput(1, ""));
    EXPECT_ERROR(75, files_.OpenForOutput(1, ""));
}

TEST_F(NumberedFilesTest, FailsWith70WhereThePermissionsRefuse) {
    folder_.Write("locked.txt", "");
    chmod(PathOf("locked.txt").c_str(), 0);
    const OrdinaryUser user(folder_);
    EXPECT_ERROR(70, files_.OpenForInput(1, PathOf("locked.txt")));
    EXPECT_ERROR(70, files_.OpenForOutput(1, PathOf("locked.txt")));
}

TEST_F(NumberedFilesTest, FailsWith70OnAProgramThatIsRunning) {
    EXPECT_ERROR(70, files_.OpenForAppend(1, "/proc/self/exe"));
}

TEST_F(NumberedFilesTest, FailsWith61OnAFullDisk) {
    files_.OpenForOutput(1, "/dev/full");
    files_.PrintLine(1, "a line that only the closing writes out");
    EXPECT_ERROR(61, files_.Close(1));

    files_.OpenForOutput(1, "/dev/full");
    EXPECT_ERROR(61, files_.PrintLine(1, std::string(100 * 1024, 'x')));
}

TEST_F(NumberedFilesTest, FailsWith52OnANumberThatIsNotOpen) {
    EXPECT_ERROR(52, files_.PrintLine(1, "x"));
    EXPECT_ERROR(52, files_.ReadToken(1));
    EXPECT_ERROR(52, files_.AtEndOfData(1));
}

TEST_F(NumberedFilesTest, FailsWith52OnANameThatNoFileCanHave) {
    for (const char c : std::string("?\":*|<>")) {
        const auto path = PathOf(std::string("a") + c + "b.txt");
        EXPECT_ERROR(52, files_.OpenForOutput(1, path)) << c;
        EXPECT_ERROR(52, files_.OpenForAppend(1, path)) << c;
        EXPECT_FALSE(std::filesystem::exists(path));
    }
}

TEST_F(NumberedFilesTest, LooksOnlyAtTheLastPartOfANameThatIsCreated) {
    std::filesystem::create_directory(PathOf("a:b"));
    files_.OpenForOutput(1, PathOf("a:b/out.txt"));
    files_.Close(1);
    EXPECT_TRUE(std::filesystem::exists(PathOf("a:b/out.txt")));
}

TEST_F(NumberedFilesTest, FailsWith55OnANumberInUseAndLeavesItsFileAlone) {
    files_.OpenForOutput(1, PathOf("first.txt"));
    EXPECT_ERROR(55, files_.OpenForInput(1, PathOf("missing.txt")));
    EXPECT_ERROR(55, files_.OpenForOutput(1, PathOf("second.txt")));
    files_.PrintLine(1, "still open");
    files_.Close(1);
    EXPECT_EQ(folder_.Read("first.txt"), "still open\r\n");
    EXPECT_FALSE(std::filesystem::exists(PathOf("second.txt")));
}

TEST_F(NumberedFilesTest, KeepsDifferentNumbersApart) {
    files_.OpenForOutput(1, PathOf("one.txt"));
    files_.OpenForOutput(9, PathOf("nine.txt"));
    files_.PrintLine(9, "nine");
    files_.PrintLine(1, "one");
    files_.Close(1);
    files_.Close(9);
    EXPECT_EQ(folder_.Read("one.txt"), "one\r\n");
    EXPECT_EQ(folder_.Read("nine.txt"), "nine\r\n");
}

TEST_F(NumberedFilesTest, FreesTheNumberOfAFailedOpen) {
    EXPECT_ERROR(53, files_.OpenForInput(1, PathOf("missing.txt")));
    files_.OpenForOutput(1, PathOf("out.txt"));
    files_.Close(1);
}

TEST_F(NumberedFilesTest, FreesTheNumberWhenTheClosingFails) {
    files_.OpenForOutput(1, "/dev/full");
    files_.PrintLine(1, "x");
    EXPECT_ERROR(61, files_.Close(1));
    files_.OpenForOutput(1, PathOf("out.txt"));
    files_.Close(1);
}

TEST_F(NumberedFilesTest, ClosesANumberThatIsNotOpenWithoutAWord) {
    EXPECT_ERROR(0, files_.Close(2));
    EXPECT_ERROR(0, files_.CloseQuietly(2));
}

TEST_F(NumberedFilesTest, LetsGoQuietlyOfWhatCannotBeWritten) {
    files_.OpenForOutput(1, "/dev/full");
    files_.PrintLine(1, "x");
    EXPECT_ERROR(0, files_.CloseQuietly(1));
    EXPECT_ERROR(52, files_.PrintLine(1, "y"));
}

TEST_F(NumberedFilesTest, WritesOutWhatIsPendingWhenClosedQuietly) {
    files_.OpenForOutput(1, PathOf("out.txt"));
    files_.PrintLine(1, "kept");
    files_.CloseQuietly(1);
    EXPECT_EQ(folder_.Read("out.txt"), "kept\r\n");
}

TEST_F(NumberedFilesTest, ReplacesAFileWhenItIsClosed) {
    folder_.Write("out.txt", "old");
    files_.OpenForReplacement(1, PathOf("out.txt"));
    files_.PrintLine(1, "new");
    EXPECT_EQ(folder_.Read("out.txt"), "old");
    files_.Close(1);
    EXPECT_EQ(folder_.Read("out.txt"), "new\r\n");
}

TEST_F(NumberedFilesTest, KeepsTheOldFileWhenAReplacementIsClosedQuietly) {
    folder_.Write("out.txt", "old");
    files_.OpenForReplacement(1, PathOf("out.txt"));
    files_.PrintLine(1, "new");
    files_.CloseQuietly(1);
    EXPECT_EQ(folder_.Read("out.txt"), "old");
    EXPECT_ERROR(52, files_.PrintLine(1, "y"));
}

TEST_F(NumberedFilesTest, RefusesAReplacementLikeAnOutput) {
    EXPECT_ERROR(52, files_.OpenForReplacement(1, PathOf("a*b.txt")));
    EXPECT_ERROR(75, files_.OpenForReplacement(1, folder_.Path()));
    EXPECT_ERROR(75, files_.OpenForReplacement(1, ""));
    for (const auto& [path, error] :
         {std::pair(std::string("/dev/full"), 61), {PathOf("missing/out.txt"), 76}}) {
        files_.OpenForReplacement(1, path);
        files_.PrintLine(1, "new");
        EXPECT_ERROR(error, files_.Close(1)) << path;
    }
    files_.OpenForOutput(1, PathOf("out.txt"));
    EXPECT_ERROR(55, files_.OpenForReplacement(1, PathOf("other.txt")));
}

TEST_F(NumberedFilesTest, ReadsAllThatIsLeft) {
    const std::string text = "first\r\n" + std::string(200 * 1024, '\0') + "\xFF";
    OpenWith(text);
    EXPECT_EQ(files_.ReadToken(1), "first");
    EXPECT_EQ(files_.ReadAll(1), text.substr(5));
    EXPECT_EQ(files_.ReadAll(1), "");
}

TEST_F(NumberedFilesTest, GivesUpOnATextWithoutEnd) {
    files_.OpenForInput(1, "/dev/zero");
    EXPECT_ERROR(7, files_.ReadAll(1));
}

}  // namespace arbolith
