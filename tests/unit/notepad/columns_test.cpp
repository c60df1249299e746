#include "notepad/columns.h"

#include <gtest/gtest.h>

namespace arbolith::notepad {

TEST(Columns, ATabLeadsToTheNextStop) {
    EXPECT_EQ(ColumnsOf("\t"), 8U);
    EXPECT_EQ(ColumnsOf("1234567\t"), 8U);
    EXPECT_EQ(ColumnsOf("12345678\t"), 16U);
    EXPECT_EQ(ColumnsOf("a\tb"), 9U);
}

TEST(Columns, WithoutTabsTheTextKeepsItsColumns) {
    EXPECT_EQ(WithoutTabs("a\tb"), "a       b");
    EXPECT_EQ(WithoutTabs("12345678\tb"), "12345678        b");
    EXPECT_EQ(WithoutTabs(""), "");
}

TEST(Columns, AReportsValuesStandUnderTheirHeads) {
    const std::string_view heads =
        "PLOT #  \tSAGE\tTDBH\tMDBH\tSDBH\t  TBA\t    TF\t   TMAI\tCTVOL";
    const std::string_view values =
        "       7\t  80\t21.4\t22.0\t 0.0\t 31.7\t  1204\t  3.456\t  212";
    const auto shownHeads = WithoutTabs(heads);
    const auto shownValues = WithoutTabs(values);
    EXPECT_EQ(shownHeads.size(), shownValues.size());
    EXPECT_EQ(shownHeads.find("TBA") + 3, shownValues.find("31.7") + 4);
    EXPECT_EQ(shownHeads.find("TMAI") + 4, shownValues.find("3.456") + 5);
}

TEST(Columns, ABatchFilesFieldsStandUnderTheirNames) {
    const auto names = WithoutTabs("#PLOT\tWDTYPE\tMET\tNAT\tSPEC\tLC\tSIB");
    const auto fields = WithoutTabs(" \tS\tY\tY\tWP\t6\t17.26");
    EXPECT_EQ(names.find("WDTYPE"), fields.find('S'));
    EXPECT_EQ(names.find("SPEC"), fields.find("WP"));
    EXPECT_EQ(names.find("SIB"), fields.find("17.26"));
}

}  // namespace arbolith::notepad
