#include "generator/topics.h"

#include "generator/template.h"

#include <gtest/gtest.h>

namespace arbolith::help {
namespace {

std::vector<Topic> SomeTopics() {
    return {{0, "index.html", "Help", {}},
            {0, "a.html", "A & B", {"thinning", "Age"}},
            {1, "sub/a1.htm", "A1", {"age"}},
            {1, "a2.html", "A2", {}},
            {0, "b.html", "B", {}}};
}

TEST(TopicsTest, TheIndentIsTheLevel) {
    const auto topics = ReadTopics("# comment\nindex.html\na.html\n  a1.html\n\nb.html\n");
    ASSERT_EQ(topics.size(), 4U);
    EXPECT_EQ(topics[2].level, 1);
    EXPECT_EQ(topics[2].file, "a1.html");
    EXPECT_EQ(topics[3].level, 0);
}

TEST(TopicsTest, ALevelNeedsOneAboveIt) {
    EXPECT_THROW(ReadTopics("  a.html\n"), BadPage);
    EXPECT_THROW(ReadTopics("a.html\n    b.html\n"), BadPage);
}

TEST(TopicsTest, TheContentsAreListsInLists) {
    EXPECT_EQ(ContentsHtml(SomeTopics()),
              "<ul>\n<li><a href=\"a.html\">A &amp; B</a><ul>\n"
              "<li><a href=\"sub/a1.htm\">A1</a></li>\n"
              "<li><a href=\"a2.html\">A2</a></li>\n</ul></li>\n"
              "<li><a href=\"b.html\">B</a></li>\n</ul>\n");
}

TEST(TopicsTest, APageLeadsToItsNeighbours) {
    const auto topics = SomeTopics();
    EXPECT_EQ(WayOn(topics, 2),
              "<hr>\n<p class=\"way\">Back: <a href=\"../a.html\">A &amp; B</a> | "
              "<a href=\"../index.html\">Contents</a> | Next: <a href=\"../a2.html\">A2</a></p>\n");
    EXPECT_EQ(WayOn(topics, 0),
              "<hr>\n<p class=\"way\">Next: <a href=\"a.html\">A &amp; B</a></p>\n");
    EXPECT_EQ(WayOn(topics, 4),
              "<hr>\n<p class=\"way\">Back: <a href=\"a2.html\">A2</a> | "
              "<a href=\"index.html\">Contents</a></p>\n");
}

TEST(TopicsTest, ProgramsReadTheContentsByTabs) {
    EXPECT_EQ(ContentsList({{0, "a.html", "A", {}}, {1, "b.html", "B C", {}}}),
              "0\ta.html\tA\n1\tb.html\tB C\n");
}

TEST(TopicsTest, TheIndexIsSortedWithoutRegardToCase) {
    const auto index = CompilerIndex(SomeTopics());
    const auto upper = index.find("value=\"Age\"><param name=\"Local\" value=\"a.html\"");
    const auto lower = index.find("value=\"age\"><param name=\"Local\" value=\"sub/a1.htm\"");
    const auto thinning = index.find("value=\"thinning\"");
    ASSERT_NE(upper, std::string::npos);
    ASSERT_NE(lower, std::string::npos);
    EXPECT_LT(upper, lower);
    EXPECT_LT(lower, thinning);
}

TEST(TopicsTest, TheProjectNamesFirstPageTitleAndFiles) {
    const auto project = CompilerProject(SomeTopics(), {"index.html", "help.css"});
    EXPECT_NE(project.find("Default topic=index.html\nTitle=Help\n"), std::string::npos);
    EXPECT_NE(project.find("\n[FILES]\nindex.html\nhelp.css\n"), std::string::npos);
}

}  // namespace
}  // namespace arbolith::help
