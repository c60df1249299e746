// The titles of axes. The whole tables are read by the scenarios of the charts.
#include "charts/graph_titles.h"

#include <gtest/gtest.h>
#include <vector>

namespace arbolith {
namespace {

using Columns = std::vector<std::int16_t>;

std::string Metric(const Columns& columns) {
    return GetYTitle(columns, {"Metric"});
}

std::string Imperial(const Columns& columns) {
    return GetYTitle(columns, {"Imperial"});
}

TEST(InColumnSet, FindsAColumn) {
    EXPECT_TRUE(InColumnSet(Columns{2, 3, 4}, 3));
    EXPECT_FALSE(InColumnSet(Columns{2, 3, 4}, 5));
    EXPECT_FALSE(InColumnSet({}, 0));
}

TEST(AxisTitle, IsEmptyOutsideTheTable) {
    EXPECT_EQ(GetAxisTitle(0, {"Metric"}), "");
    EXPECT_EQ(GetAxisTitle(26, {"Metric"}), "");
    EXPECT_EQ(GetAxisTitle(-32768, {"Metric"}), "");
    EXPECT_EQ(GetAxisTitle(1, {"Metric"}), "Age (years)");
    EXPECT_EQ(GetAxisTitle(25, {"Metric"}), "Sawlog Cumulative M.A.I. (m\xB3/ha/year)");
}

TEST(AxisTitle, TakesAnyOtherUnitSystemForImperial) {
    EXPECT_EQ(GetAxisTitle(2, {""}), "Total Diameter (in)");
    EXPECT_EQ(GetAxisTitle(2, {"metric"}), "Total Diameter (in)");
}

TEST(YTitle, IsThatOfTheOneFamily) {
    EXPECT_EQ(Metric({4}), "Diameter (cm)");
    EXPECT_EQ(Metric({2, 3, 4}), "Diameter (cm)");
    EXPECT_EQ(Metric({14, 20}), "Volume (m\xB3/ha)");
}

TEST(YTitle, IsEmptyForSeveralFamilies) {
    EXPECT_EQ(Metric({2, 11}), "");
    EXPECT_EQ(Metric({14, 17}), "");
    EXPECT_EQ(Metric({2, 3, 5, 4}), "");
    EXPECT_EQ(Metric({}), "");
}

TEST(YTitle, PassesOverALaterColumnOfNoFamily) {
    EXPECT_EQ(Metric({2, 0}), "Diameter (cm)");
    EXPECT_EQ(Metric({2, 1, 3}), "Diameter (cm)");
}

TEST(YTitle, IsEmptyWhereTheFirstColumnIsOfNoFamily) {
    EXPECT_EQ(Metric({1}), "");
    EXPECT_EQ(Metric({0, 0}), "");
    EXPECT_EQ(Metric({1, 2}), "");
}

TEST(YTitle, NamesBoardFeetUnderImperialUnitsOnly) {
    EXPECT_EQ(Imperial({14, 15}), "Volume (ft\xB3/acre)");
    EXPECT_EQ(Imperial({16}), "SVOL (fbm/acre)");
    EXPECT_EQ(Imperial({16, 22}), "SVOL (fbm/acre)");
    EXPECT_EQ(Imperial({22, 14}), "Volume (ft\xB3/acre) SVOL (fbm/acre)");
    EXPECT_EQ(Metric({22, 14}), "Volume (m\xB3/ha)");
    EXPECT_EQ(Imperial({23}), "M.A.I. (ft\xB3/acre/year)");
    EXPECT_EQ(Imperial({25}), "SMAI (fbm/acre/year)");
    EXPECT_EQ(Imperial({17, 25}), "M.A.I. (ft\xB3/acre/year) SMAI (fbm/acre/yr)");
}

TEST(YTitle, CountsNoColumnOfNoFamilyAmongTheUnits) {
    EXPECT_EQ(Imperial({16, 1}), "SVOL (fbm/acre)");
    EXPECT_EQ(Imperial({16, 0}), "SVOL (fbm/acre)");
}

}  // namespace
}  // namespace arbolith
