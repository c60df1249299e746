#include "cli/csv.h"

#include <gtest/gtest.h>
#include <string>

namespace arbolith::console {

namespace {

// A row whose values are the numbers of their columns.
CsvRow Numbered() {
    CsvRow row;
    for (std::size_t i = 0; i < row.size(); ++i) row[i] = std::to_string(i + 1);
    return row;
}

CsvStand Metric() {
    return {"7", "Softwood", "White Pine", true, "7.2", {Numbered()}};
}

CsvStand Imperial() {
    return {"8", "Hardwood", "Red Oak", false, "4", {Numbered()}};
}

std::string LineOf(const std::string& text, int number) {
    std::size_t begin = 0;
    for (; number > 0; --number) begin = text.find("\r\n", begin) + 2;
    return text.substr(begin, text.find("\r\n", begin) - begin);
}

}  // namespace

TEST(Csv, TheHeaderNamesTheUnits) {
    EXPECT_EQ(LineOf(CsvText({Metric()}), 0),
              "Plot,Wood,Species,Years to breast height (years),SAGE (years),TDBH (cm),MDBH (cm),"
              "SDBH (cm),TBA (m2/ha),MBA (m2/ha),SBA (m2/ha),TF (stems/ha),MF (stems/ha),"
              "SF (stems/ha),TH (m),MH (m),SH (m),TVOL (m3/ha),MVOL (m3/ha),SVOL (m3/ha),"
              "TMAI (m3/ha/yr),MMAI (m3/ha/yr),SMAI (m3/ha/yr),CTVOL (m3/ha),CMVOL (m3/ha),"
              "CSVOL (m3/ha),CTMAI (m3/ha/yr),CMMAI (m3/ha/yr),CSMAI (m3/ha/yr)");
    const auto imperial = LineOf(CsvText({Imperial()}), 0);
    EXPECT_NE(imperial.find("TBA (ft2/acre)"), std::string::npos);
    EXPECT_NE(imperial.find("SVOL (fbm/acre)"), std::string::npos);
    EXPECT_NE(imperial.find("CSMAI (fbm/acre/yr)"), std::string::npos);
}

TEST(Csv, AStandHasALineForEachAge) {
    auto stand = Metric();
    stand.rows.push_back(Numbered());
    const auto text = CsvText({stand});
    EXPECT_EQ(LineOf(text, 1),
              "7,Softwood,White Pine,7.2,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,"
              "23,24,25");
    EXPECT_EQ(LineOf(text, 2), LineOf(text, 1));
    EXPECT_EQ(LineOf(text, 3), "");
    EXPECT_TRUE(text.ends_with("25\r\n"));
}

TEST(Csv, StandsOfBothUnitSystemsNeverShareAColumn) {
    const auto text = CsvText({Metric(), Imperial()});
    EXPECT_TRUE(LineOf(text, 0).find("SAGE (years),TDBH (cm),TDBH (in),") != std::string::npos);
    EXPECT_TRUE(LineOf(text, 1).starts_with("7,Softwood,White Pine,7.2,1,2,,3,,"));
    EXPECT_TRUE(LineOf(text, 2).starts_with("8,Hardwood,Red Oak,4,1,,2,,3,"));
    EXPECT_TRUE(LineOf(text, 2).ends_with(",,24,,25"));
}

TEST(Csv, WithoutStandsThereIsTheHeader) {
    const auto text = CsvText({});
    EXPECT_TRUE(text.starts_with("Plot,"));
    EXPECT_EQ(LineOf(text, 1), "");
}

TEST(Csv, AnEmptyPlotLabelIsAnEmptyField) {
    auto stand = Metric();
    stand.plot.clear();
    EXPECT_TRUE(LineOf(CsvText({stand}), 1).starts_with(",Softwood,"));
}

TEST(Csv, FieldsAreQuotedWhereTheyNeedIt) {
    EXPECT_EQ(CsvField("plain 7"), "plain 7");
    EXPECT_EQ(CsvField("a,b"), "\"a,b\"");
    EXPECT_EQ(CsvField("the \"big\" one"), "\"the \"\"big\"\" one\"");
    EXPECT_EQ(CsvField("a\nb"), "\"a\nb\"");
    EXPECT_EQ(CsvField(""), "");
}

TEST(Csv, TextsStayAsTheyAre) {
    auto stand = Metric();
    stand.plot = "Érable 中 7";
    EXPECT_TRUE(LineOf(CsvText({stand}), 1).starts_with("Érable 中 7,"));
}

}  // namespace arbolith::console
