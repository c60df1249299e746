#include "form_script/arguments.h"

#include "unit/platform/temporary_folder.h"

#include <gtest/gtest.h>

namespace arbolith {

class ArgumentsTest : public ::testing::Test {
protected:
    Arguments Read(std::vector<std::string> words) const {
        words.insert(words.end(), {"--folder", folder.Path(), "a.script"});
        return ReadArguments(words);
    }

    TemporaryFolder folder;
};

TEST_F(ArgumentsTest, AreAFolderAndAScriptAtLeast) {
    const auto arguments = Read({});
    EXPECT_EQ(arguments.script, "a.script");
    EXPECT_EQ(arguments.folder, folder.Path());
    EXPECT_EQ(arguments.commandLine, "");
    EXPECT_FALSE(arguments.screen);
    EXPECT_FALSE(arguments.window);
    EXPECT_FALSE(arguments.keepGoing);
    EXPECT_THROW(ReadArguments({"a.script"}), BadArguments);
    EXPECT_THROW(ReadArguments({"--folder", folder.Path()}), BadArguments);
}

TEST_F(ArgumentsTest, MakeTheFolderAbsoluteWithoutASeparatorAtItsEnd) {
    EXPECT_EQ(ReadArguments({"--folder", folder.Path() + "/", "x"}).folder, folder.Path());
    EXPECT_EQ(ReadArguments({"--folder", folder.Path() + "/./.", "x"}).folder, folder.Path());
    EXPECT_EQ(ReadArguments({"--folder", ".", "x"}).folder, std::filesystem::current_path());
}

TEST_F(ArgumentsTest, NeedAFolderThatIsThere) {
    EXPECT_THROW(ReadArguments({"--folder", folder.PathOf("missing"), "x"}), BadArguments);
}

TEST_F(ArgumentsTest, KeepTheCommandLineAsItIs) {
    EXPECT_EQ(Read({"--command-line", "\"/a b/c.qvb\""}).commandLine, "\"/a b/c.qvb\"");
}

TEST_F(ArgumentsTest, GiveTheScreenInPixels) {
    const auto screen = Read({"--screen", "1280x800"}).screen;
    ASSERT_TRUE(screen);
    EXPECT_EQ(screen->width, 1280 * 15);
    EXPECT_EQ(screen->height, 800 * 15);
    for (const char* text : {"", "1280", "x", "1280x", "x800", "0x5", "5x-1", "ax5", "1x2x3"})
        EXPECT_THROW(Read({"--screen", text}), BadArguments) << text;
}

TEST_F(ArgumentsTest, GiveADateOfTheCalendar) {
    const auto date = Read({"--date", "2024-02-29"}).date;
    ASSERT_TRUE(date);
    EXPECT_EQ(date->year, 2024);
    EXPECT_EQ(date->month, 2);
    EXPECT_EQ(date->day, 29);
    for (const char* text : {"", "2023-02-29", "2024-13-01", "2024-1-1", "24-01-01", "2024/01/01",
                             "2024-01-32", "2024-00-10"})
        EXPECT_THROW(Read({"--date", text}), BadArguments) << text;
}

TEST_F(ArgumentsTest, KnowTheirFlags) {
    EXPECT_TRUE(Read({"--window"}).window);
    EXPECT_TRUE(Read({"--keep-going"}).keepGoing);
    EXPECT_EQ(Read({"--picture", "/a/b.png"}).picture, "/a/b.png");
    EXPECT_EQ(Read({"--picture-of", "Output.Table"}).pictureOf, "Output.Table");
}

TEST_F(ArgumentsTest, RefuseWhatTheyDoNotKnow) {
    EXPECT_THROW(Read({"--windows"}), BadArguments);
    EXPECT_THROW(Read({"second.script"}), BadArguments);
    EXPECT_THROW(ReadArguments({"a.script", "--folder"}), BadArguments);
}

}  // namespace arbolith
