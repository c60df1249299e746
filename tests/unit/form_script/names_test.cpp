#include "form_script/names.h"

#include "forms/controls.h"
#include "unit/platform/fake_host.h"

#include <gtest/gtest.h>

namespace arbolith {

class NamesTest : public ::testing::Test {
protected:
    NamesTest() { second.SetIndex(2); }

    FakeHost host;
    Application application{host, "/folder", ""};
    Form main{application, "QvlySwd", "", {}};
    Form output{application, "Output", "", {}};
    Button run{main, "Run"};
    Label title{output, "Title"};
    CheckBox second{output, "cbDBH"};
};

TEST_F(NamesTest, LeaveTheMainFormOut) {
    EXPECT_EQ(FindControl(application, "Run"), &run);
    EXPECT_EQ(FindControl(application, "QvlySwd.Run"), &run);
    EXPECT_EQ(FindControl(application, "Title"), nullptr);
}

TEST_F(NamesTest, NameAControlOfAnotherFormWithIt) {
    EXPECT_EQ(FindControl(application, "Output.Title"), &title);
    EXPECT_EQ(FindControl(application, "Output.Run"), nullptr);
    EXPECT_EQ(FindControl(application, "Nothing.Run"), nullptr);
}

TEST_F(NamesTest, NameAFormByItself) {
    EXPECT_EQ(FindControl(application, "Output"), &output);
    EXPECT_EQ(FindForm(application, "Output"), &output);
    EXPECT_EQ(FindForm(application, "Chart_Frm"), nullptr);
}

TEST_F(NamesTest, NameAMemberOfAControlArray) {
    EXPECT_EQ(FindControl(application, "Output.cbDBH(2)"), &second);
    EXPECT_EQ(FindControl(application, "Output.cbDBH(1)"), nullptr);
    EXPECT_EQ(FindControl(application, "Output.cbDBH"), nullptr);
    EXPECT_EQ(FindControl(application, "Output.cbDBH(2,1)"), nullptr);
}

TEST_F(NamesTest, KnowTheProgramsForms) {
    EXPECT_TRUE(IsFormName("Chart_Frm"));
    EXPECT_TRUE(IsFormName("frmSplash"));
    EXPECT_FALSE(IsFormName("Run"));
    EXPECT_FALSE(IsFormName("output"));
}

namespace {

std::string Split(std::string_view text) {
    const auto name = ReadPropertyName(text);
    return name ? name->name + " | " + name->property : "none";
}

}  // namespace

TEST(PropertyName, IsTheLastWord) {
    EXPECT_EQ(Split("Run.Enabled"), "Run | Enabled");
    EXPECT_EQ(Split("Output.Title"), "Output | Title");
    EXPECT_EQ(Split("Output.Title.Caption"), "Output.Title | Caption");
    EXPECT_EQ(Split("Output.Table.Cell(1,1)"), "Output.Table | Cell(1,1)");
    EXPECT_EQ(Split("Chart_Custom.cbDBH(2).Value"), "Chart_Custom.cbDBH(2) | Value");
}

TEST(PropertyName, TakesTheAxisOfAChartAlong) {
    EXPECT_EQ(Split("Chart_Frm.Chart.Axis(1).Minimum"), "Chart_Frm.Chart | Axis(1).Minimum");
}

TEST(PropertyName, NeedsANameAndAProperty) {
    for (const char* text : {"Enabled", "Run.", ".Enabled", ""}) EXPECT_EQ(Split(text), "none");
}

TEST(IndexedWord, ReadsWholeNumbersInBrackets) {
    EXPECT_EQ(ReadIndexedWord("Clip"), (IndexedWord{"Clip", {}}));
    EXPECT_EQ(ReadIndexedWord("List(3)"), (IndexedWord{"List", {3}}));
    EXPECT_EQ(ReadIndexedWord("Cell(1,25)"), (IndexedWord{"Cell", {1, 25}}));
    for (const char* text : {"", "(1)", "Cell(", "Cell()", "Cell(a)", "Cell(1", "Cell(1)x"})
        EXPECT_EQ(ReadIndexedWord(text), std::nullopt) << text;
}

}  // namespace arbolith
