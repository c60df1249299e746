#include "form_script/script.h"

#include <gtest/gtest.h>

namespace arbolith {

namespace {

const Substitutes kSubstitutes{"/the folder", "/", "2.1.0"};

std::vector<std::string> Texts(std::string_view line) {
    std::vector<std::string> texts;
    for (const auto& word : ReadWords(line, 1, kSubstitutes)) texts.push_back(word.text);
    return texts;
}

using List = std::vector<std::string>;

int LineOfError(std::string_view script) {
    try {
        ReadScript(script, kSubstitutes);
    } catch (const ScriptError& error) {
        return error.Line();
    }
    return 0;
}

}  // namespace

TEST(ScriptWords, ArePartedByBlanks) {
    EXPECT_EQ(Texts("type  Age1\t25 "), (List{"type", "Age1", "25"}));
    EXPECT_EQ(Texts(""), List{});
    EXPECT_EQ(Texts("  \t "), List{});
}

TEST(ScriptWords, KeepTheBlanksOfATextInQuotes) {
    EXPECT_EQ(Texts(R"(select lstSpecies "White Pine")"),
              (List{"select", "lstSpecies", "White Pine"}));
    EXPECT_EQ(Texts(R"(type x "")"), (List{"type", "x", ""}));
}

TEST(ScriptWords, KnowWhetherTheyWereQuoted) {
    const auto words = ReadWords(R"(select "6" 6)", 1, kSubstitutes);
    EXPECT_TRUE(words[1].quoted);
    EXPECT_FALSE(words[2].quoted);
    EXPECT_FALSE(words[1].Is("6"));
    EXPECT_TRUE(words[2].Is("6"));
}

TEST(ScriptWords, ReadTheEscapesOfATextInQuotes) {
    EXPECT_EQ(Texts(R"(x "a\n\r\t\"\\\x41\xe9\xFF")"), (List{"x", "a\n\r\t\"\\A\xE9\xFF"}));
}

TEST(ScriptWords, KeepBackslashesOutsideOfQuotes) {
    EXPECT_EQ(Texts(R"(type x a\n)"), (List{"type", "x", "a\\n"}));
}

TEST(ScriptWords, RefuseWhatIsNoEscapeAndATextThatIsNotClosed) {
    for (const char* line : {R"("\q")", R"("\x4")", R"("\xG1")", R"("\")", R"("open)", R"("a"b)"})
        EXPECT_THROW(ReadWords(line, 1, kSubstitutes), ScriptError) << line;
}

TEST(ScriptWords, PutInTheFolderTheSeparatorAndTheVersion) {
    EXPECT_EQ(Texts(R"("$FOLDER$Sa.txt $VERSION")"), (List{"/the folder/a.txt 2.1.0"}));
    EXPECT_EQ(Texts("$FOLDER$Sa.txt"), (List{"/the folder/a.txt"}));
    EXPECT_EQ(Texts(R"("\x24FOLDER")"), (List{"$FOLDER"}));
    EXPECT_EQ(Texts(R"("$5")"), (List{"$5"}));
}

TEST(Script, LeavesOutBlankLinesAndCommentsButCountsThem) {
    const auto steps = ReadScript("\n# a comment\n  # another\nclick Run\n", kSubstitutes);
    ASSERT_EQ(steps.size(), 1U);
    EXPECT_EQ(steps[0].line, 4);
    EXPECT_EQ(steps[0].source, "click Run");
}

TEST(Script, TakesAMarkInsideALineForAnOrdinaryCharacter) {
    const auto steps = ReadScript("press x #", kSubstitutes);
    ASSERT_EQ(steps.size(), 1U);
    EXPECT_EQ(steps[0].words.size(), 3U);
}

TEST(Script, MayHaveAByteOrderMarkAndCrLf) {
    const auto steps = ReadScript(
        "\xEF\xBB\xBF"
        "click Run\r\nclick Clear\r\n",
        kSubstitutes);
    ASSERT_EQ(steps.size(), 2U);
    EXPECT_EQ(steps[0].words[0].text, "click");
    EXPECT_EQ(steps[1].words[1].text, "Clear");
}

TEST(Script, BecomesTheProgramsCharacters) {
    const auto steps = ReadScript("expect x.Text \"m\u00B2 \u4E2D\"", kSubstitutes);
    EXPECT_EQ(steps[0].words[2].text, "m\xB2 ?");
}

TEST(Script, PutsTheStepsOfADuringUnderIt) {
    const auto steps = ReadScript(
        "during 1\n  click A\n  during 2\n    click B\n  end\nend\nclick C\n", kSubstitutes);
    ASSERT_EQ(steps.size(), 2U);
    ASSERT_EQ(steps[0].body.size(), 2U);
    EXPECT_EQ(steps[0].body[0].words[1].text, "A");
    ASSERT_EQ(steps[0].body[1].body.size(), 1U);
    EXPECT_EQ(steps[0].body[1].body[0].words[1].text, "B");
    EXPECT_EQ(steps[1].words[1].text, "C");
}

TEST(Script, NeedsDuringAndEndInPairs) {
    EXPECT_EQ(LineOfError("click A\nend\n"), 2);
    EXPECT_EQ(LineOfError("click A\nduring 1\nclick B\n"), 2);
    EXPECT_EQ(LineOfError("during 1\nduring 1\nend\n"), 1);
    EXPECT_EQ(LineOfError("during 1\nend during\n"), 2);
    EXPECT_EQ(LineOfError("during 1\nend\n"), 0);
}

TEST(Script, TellsTheLineOfABadText) {
    EXPECT_EQ(LineOfError("click A\n\nclick \"B\n"), 3);
}

TEST(Quoted, WritesATextAsAScriptWould) {
    EXPECT_EQ(Quoted("a b"), "\"a b\"");
    EXPECT_EQ(Quoted("\"\\\r\n\t"), R"("\"\\\r\n\t")");
    EXPECT_EQ(Quoted(std::string("\0\x1F\x7F\x81", 4)), R"("\x00\x1F\x7F\x81")");
    EXPECT_EQ(Quoted("\xB2\x80"), "\"\u00B2\u20AC\"");
}

TEST(Quoted, ReadsBackAsTheSameText) {
    std::string all;
    for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
    const auto steps = ReadScript("x " + Quoted(all), kSubstitutes);
    EXPECT_EQ(steps[0].words[1].text, all);
}

}  // namespace arbolith
