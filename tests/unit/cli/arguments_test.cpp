#include "cli/arguments.h"

#include "cli/exit_status.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace arbolith::console {

namespace {

using Words = std::vector<std::string>;

// What is said about words that can't be understood.
std::string RefusalOf(const Words& words) {
    try {
        ParseArguments(words);
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.status, ExitStatus::kUsage);
        return failure.message.substr(0, failure.message.find(';'));
    }
    return "";
}

}  // namespace

TEST(Arguments, ACommandAndAFileAreEnough) {
    const auto run = ParseArguments({"run", "stand.qvn"});
    EXPECT_EQ(run.command, Command::kRun);
    EXPECT_EQ(run.file, "stand.qvn");
    EXPECT_FALSE(run.output || run.format || run.folder);
    EXPECT_EQ(ParseArguments({"batch", "stands.qvb"}).command, Command::kBatch);
}

TEST(Arguments, OptionsStandAnywhereWithTheirValueBehindThem) {
    const auto request = ParseArguments(
        {"--output", "a.csv", "batch", "--format", "csv", "stands.qvb", "--folder", "/models"});
    EXPECT_EQ(request.output, "a.csv");
    EXPECT_EQ(request.format, Format::kCsv);
    EXPECT_EQ(request.folder, "/models");
    EXPECT_EQ(request.file, "stands.qvb");
}

TEST(Arguments, AValueMayStandBehindAnEqualsSign) {
    const auto request = ParseArguments({"run", "--output=a=b.txt", "--format=html", "stand.qvn"});
    EXPECT_EQ(request.output, "a=b.txt");
    EXPECT_EQ(request.format, Format::kHtml);
}

TEST(Arguments, TwoHyphensEndTheOptions) {
    EXPECT_EQ(ParseArguments({"run", "--", "--output"}).file, "--output");
}

TEST(Arguments, AHyphenIsAValueAsAnyOther) {
    EXPECT_EQ(ParseArguments({"run", "stand.qvn", "--output", "-"}).output, "-");
}

TEST(Arguments, HelpAndVersionGoBeforeAllElse) {
    EXPECT_EQ(ParseArguments({"--help"}).command, Command::kHelp);
    EXPECT_EQ(ParseArguments({"run", "-h"}).command, Command::kHelp);
    EXPECT_EQ(ParseArguments({"--version"}).command, Command::kVersion);
}

TEST(Arguments, WhatCantBeUnderstoodIsTold) {
    EXPECT_EQ(RefusalOf({}), "no command is given");
    EXPECT_EQ(RefusalOf({"grow", "stand.qvn"}), "unknown command \"grow\"");
    EXPECT_EQ(RefusalOf({"run"}), "no file is given");
    EXPECT_EQ(RefusalOf({"run", "a.qvn", "b.qvn"}), "more than one file is given");
    EXPECT_EQ(RefusalOf({"run", "a.qvn", "--outptu", "x"}), "unknown option --outptu");
    EXPECT_EQ(RefusalOf({"run", "a.qvn", "--output"}), "--output needs a value");
    EXPECT_EQ(RefusalOf({"run", "a.qvn", "--output="}), "--output needs a value");
    EXPECT_EQ(RefusalOf({"run", "a.qvn", "--format", "pdf"}),
              "there is no format \"pdf\", but text, html and csv");
    EXPECT_EQ(RefusalOf({"run", "a.qvn", "-x"}), "unknown option -x");
}

TEST(Arguments, TheEndingOfANameTellsItsFormat) {
    EXPECT_EQ(FormatByName("a.csv"), Format::kCsv);
    EXPECT_EQ(FormatByName("a.b/C.HTML"), Format::kHtml);
    EXPECT_EQ(FormatByName("a.htm"), Format::kHtml);
    EXPECT_EQ(FormatByName("a.txt"), Format::kText);
    EXPECT_EQ(FormatByName("report"), Format::kText);
    EXPECT_EQ(FormatByName("csv"), Format::kText);
    EXPECT_EQ(FormatByName("results.csv/report"), Format::kText);
    EXPECT_EQ(FormatByName("-"), Format::kText);
}

TEST(Arguments, EachFormatHasItsEnding) {
    EXPECT_STREQ(ExtensionOf(Format::kText), "txt");
    EXPECT_STREQ(ExtensionOf(Format::kHtml), "html");
    EXPECT_STREQ(ExtensionOf(Format::kCsv), "csv");
}

TEST(Arguments, TheHelpNamesEveryOption) {
    for (const char* option : {"--output", "--format", "--folder", "--help", "--version"})
        EXPECT_NE(HelpText().find(option), std::string::npos) << option;
}

}  // namespace arbolith::console
