#include "generator/html.h"

#include <gtest/gtest.h>

namespace arbolith::help {
namespace {

TEST(HtmlTest, WritesOutWhatMeansSomething) {
    EXPECT_EQ(Escaped("a < b & \"c\" > d"), "a &lt; b &amp; &quot;c&quot; &gt; d");
}

TEST(HtmlTest, TheProgramsTextsAreOfItsCodePage) {
    EXPECT_EQ(EscapedProgramText("m\xB3/ha <1>"), "m³/ha &lt;1&gt;");
}

TEST(HtmlTest, PlainTextHasNoTagsAndOneBlankBetweenWords) {
    EXPECT_EQ(PlainText("<h1>Step&nbsp;1:\n  <b>Wood &amp; units</b> </h1>"),
              "Step 1: Wood & units");
    EXPECT_EQ(PlainText("&amp;lt;"), "&lt;");
}

TEST(HtmlTest, ATableHasItsHeadingsFirst) {
    Table table({"A", "B"});
    table.Row({"1", "<b>2</b>"});
    EXPECT_EQ(table.Html("numbers"),
              "<table class=\"numbers\">\n<tr><th>A</th><th>B</th></tr>\n"
              "<tr><td>1</td><td><b>2</b></td></tr>\n</table>\n");
}

}  // namespace
}  // namespace arbolith::help
