// The pieces of the HTML report, byte for byte.
#include "batch/html_report.h"

#include "platform/version.h"
#include "unit/platform/expect_error.h"
#include "unit/platform/fake_host.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

class HtmlReportTest : public testing::Test {
protected:
    // A natural white pine stand with some of its fields replaced.
    static std::string Stand(
        const std::vector<std::pair<std::size_t, std::string>>& replaced = {}) {
        std::vector<std::string> fields = {"7",   "S",   "Y",   "Y",   "WP",  "6",   "0.0",
                                           "1",   "0.0", "0.0", "80",  "0.0", "0.0", "0.0",
                                           "0.0", "0.0", "0.0", "0.0", "0.0", "100"};
        for (const auto& [index, text] : replaced) fields.at(index) = text;
        std::string line;
        for (const auto& field : fields) line += field + "\t";
        return line;
    }
    std::string Head(const std::string& params, const std::string& plot = "7") {
        return BatchGetHTMLTableHeader(run, "5.5", plot, params);
    }
    // Whether the head of the stand holds a cell of this span and text.
    bool HeadHolds(const std::vector<std::pair<std::size_t, std::string>>& replaced,
                   const std::string& cell) {
        const auto head = Head(Stand(replaced));
        const bool holds = head.find(cell) != std::string::npos;
        if (!holds) ADD_FAILURE() << "no " << cell << " in\n" << head;
        return holds;
    }

    FakeHost host;
    Application application{host, "/nowhere", ""};
    RunDefinition run{application};
};

TEST_F(HtmlReportTest, BeginsThePage) {
    EXPECT_EQ(BatchGetHTMLHeader(false),
              "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 3.2//EN\">\r\n"
              "<HTML>\r\n"
              " <HEAD>\r\n"
              "  <TITLE></TITLE>\r\n"
              "  <STYLE TYPE=\"text/css\">\r\n"
              "     <!--\r\n"
              "     TABLE {page-break-after: always}\r\n"
              "     TR.data { font-size: xx-small; text-align: right }\r\n"
              "     TR.h0 { font-size: small; font-weight: bold}\r\n"
              "     TR.h1 { font-size: x-small}\r\n"
              "     TR.h2 { font-size: xx-small; text-align: center }\r\n"
              "     TR.spacer { font-size: 2px; text-align: center }\r\n"
              "     TD.data { font-size: xx-small; border-width: 0px}\r\n"
              "     -->\r\n"
              "     </STYLE>\r\n"
              "</HEAD>\r\n"
              "<BODY>\r\n");
}

TEST_F(HtmlReportTest, DrawsGridlinesInOneLineOfItsStyle) {
    auto page = BatchGetHTMLHeader(true);
    const auto place = page.find("border-width: 1px}");
    ASSERT_NE(place, std::string::npos);
    page.replace(place, 18, "border-width: 0px}");
    EXPECT_EQ(page, BatchGetHTMLHeader(false));
}

TEST_F(HtmlReportTest, BeginsTheTableOfAMetricStand) {
    EXPECT_EQ(
        Head(Stand()),
        "<TABLE BORDER cellspacing=\"0\" bgcolor=\"#FFFFFF\" bordercolor=\"#CCCCCC\" border=\"1\" "
        "cellpadding=\"3\">\r\n"
        "  <TR class=\"h0\">\r\n"
        "    <TD colspan=\"25\">Halvorn\r\n"
        "      - Arbolith Model - Version " +
            std::string(kVersion) +
            " - \r\n"
            "       March 05, 2026\r\n"
            "    </TD></TR>\r\n"
            "  <TR class=\"h1\">\r\n"
            "    <TD colspan=\"5\"> Plot number: [7]</TD>\r\n"
            "    <TD colspan=\"5\" align=\"right\">Plot parameters:</TD>\r\n"
            "    <TD colspan=\"2\" align=\"center\">Units: Met</TD>"
            "    <TD colspan=\"4\" align=\"center\">Species: White Pine</TD>\r\n"
            "    <TD colspan=\"3\" align=\"center\">Stocking: 100%</TD>\r\n"
            "    <TD colspan=\"4\" align=\"center\">Natural Regeneration</TD>\r\n"
            "    <TD colspan=\"2\" align=\"center\">LCap:6</TD> </TR>\r\n"
            "  <TR class=\"h1\">\r\n"
            "    <TD colspan=\"5\">Years to breast height: [5.5]</TD>\r\n"
            "    <TD colspan=\"5\" align=\"right\">Treatment parameters:</TD>\r\n"
            "    <TD colspan=\"8\" align=\"center\"> &nbsp; </TD>\r\n"
            "    <TD colspan=\"7\" align=\"center\"> &nbsp; </TD></TR>\r\n"
            "  <TR class=\"spacer\">     <TD colspan=\"25\">&nbsp;</TD>  </TR>\r\n"
            "  <TR class=\"h2\">\r\n"
            "    <TD rowspan=\"2\" align=\"center\">Stump<br>\r\n"
            "      Age</TD>\r\n"
            "    <TD colspan=\"3\" align=\"center\">Diameter (cm)</TD>\r\n"
            "    <TD colspan=\"3\" align=\"center\">Basal Area (m&sup2;/ha)</TD>\r\n"
            "    <TD colspan=\"3\" align=\"center\">Freq. (stems/ha)</TD>\r\n"
            "    <TD colspan=\"3\" align=\"center\">Height (m)</TD>\r\n"
            "    <TD colspan=\"3\" align=\"center\">Volume (m&sup3;/ha)</TD>\r\n"
            "    <TD colspan=\"3\" align=\"center\">M.A.I. (m&sup3;/ha/yr)</TD>\r\n"
            "    <TD colspan=\"3\" align=\"center\">Cumulative Volume</TD>\r\n"
            "    <TD colspan=\"3\" align=\"center\">Cumulative M.A.I.</TD>\r\n"
            "  </TR>\r\n"
            "  <TR class=\"h2\" align=\"center\">\r\n"
            "    <TD>TDBH</TD>\r\n    <TD>MDBH</TD>\r\n    <TD>SDBH</TD>\r\n"
            "    <TD>TBA</TD>\r\n    <TD>MBA</TD>\r\n    <TD>SBA</TD>\r\n"
            "    <TD>TF</TD>\r\n    <TD>MF</TD>\r\n    <TD>SF</TD>\r\n"
            "    <TD>TH</TD>\r\n    <TD>MH</TD>\r\n    <TD>SH</TD>\r\n"
            "    <TD>TVOL</TD>\r\n    <TD>MVOL</TD>\r\n    <TD>SVOL</TD>\r\n"
            "    <TD>TMAI</TD>\r\n    <TD>MMAI</TD>\r\n    <TD>SMAI</TD>\r\n"
            "    <TD>CTVOL</TD>\r\n    <TD>CMVOL</TD>\r\n    <TD>CSVOL</TD>\r\n"
            "    <TD>CTMAI</TD>\r\n    <TD>CMMAI</TD>\r\n    <TD>CSMAI</TD>\r\n"
            "  </TR>\r\n");
}

TEST_F(HtmlReportTest, NamesImperialUnitsWithThoseOfTheSawlogs) {
    const std::vector<std::pair<std::size_t, std::string>> imperial = {{2, "N"}};
    HeadHolds(imperial, "\"center\">Units: Imp</TD>    <TD colspan=\"4\"");
    for (const auto* unit : {"Diameter (in)", "Basal Area (ft&sup2;/acre)", "Freq. (stems/acre)",
                             "Height (ft)", "Volume (ft&sup3;/acre)               SVOL (fbm/acre)",
                             "M.A.I. (ft&sup3;/acre/yr)          SMAI (fbm/acre/yr)"})
        HeadHolds(imperial,
                  "    <TD colspan=\"3\" align=\"center\">" + std::string(unit) + "</TD>\r\n");
}

TEST_F(HtmlReportTest, TellsTheRegeneration) {
    const auto cell = [](const std::string& text) {
        return "    <TD colspan=\"4\" align=\"center\">" + text + "</TD>\r\n    <TD colspan=\"2\"";
    };
    HeadHolds({{3, "N"}, {8, "1.25"}, {9, "3.0"}}, cell("Plantation:1.2x3.0m"));
    HeadHolds({{2, "N"}, {3, "N"}, {8, "4"}, {9, "10.25"}}, cell("Plantation:4x10.ft"));
    HeadHolds({{1, "H"}, {3, "N"}}, cell("Natural Regeneration"));
    HeadHolds({{3, "?"}}, cell(""));
}

TEST_F(HtmlReportTest, TellsTheSite) {
    const auto cell = [](const std::string& text) {
        return "    <TD colspan=\"2\" align=\"center\">" + text + "</TD> </TR>\r\n";
    };
    HeadHolds({{5, "6.9"}}, cell("LCap:6"));
    HeadHolds({{5, "0"}}, cell("LCap:0"));
    HeadHolds({{5, "0"}, {6, "17.50"}}, cell("SI:17.50"));
    HeadHolds({{5, "3"}, {6, "17.5"}}, cell(""));
}

TEST_F(HtmlReportTest, LooksTheSpeciesUpInTheTablesOfTheStandsWood) {
    HeadHolds({{1, "H"}, {4, "rm"}}, "Species: Red Maple</TD>");
    EXPECT_EQ(run.species.Species("Red Oak"), "RO");
    HeadHolds({{4, "RM"}}, "Species: </TD>");
    // Any other letter leaves the tables as they are.
    HeadHolds({{1, "X"}, {4, "WP"}}, "Species: White Pine</TD>");
}

TEST_F(HtmlReportTest, TellsTheFirstTreatment) {
    const auto cell = [](const std::string& text) {
        return "    <TD colspan=\"8\" align=\"center\">" + text + "</TD>\r\n";
    };
    HeadHolds({{12, "20.7"}, {18, "2.50"}},
              cell("Pre-commercial thinning at 20 years of age (2.5 m)"));
    HeadHolds({{2, "N"}, {14, "3.50"}, {18, "8"}},
              cell("Pre-commercial thinning at 3.5 DBH (8 ft)"));
    HeadHolds({{18, "2.5"}}, cell(" (2.5 m)"));
    HeadHolds({{12, "20"}, {18, "0.0"}}, cell(" &nbsp; "));
    HeadHolds({{12, "20"}, {18, "-1"}}, cell(" &nbsp; "));
    HeadHolds({{12, "40.5"}, {16, "30.9"}}, cell("Commercial thinning at 40 years of age (30%)"));
    HeadHolds({{14, "15.5"}, {16, "30"}}, cell("Commercial thinning at 15.5 DBH (30%)"));
    HeadHolds({{16, "30"}}, cell(" (30%)"));
    // An age goes before a diameter, an amount before a spacing.
    HeadHolds({{12, "40"}, {14, "15"}, {16, "30"}, {18, "2"}},
              cell("Commercial thinning at 40 years of age (30%)"));
    // Less than one percent is no commercial thinning.
    HeadHolds({{12, "40"}, {16, "0.9"}, {18, "2"}},
              cell("Pre-commercial thinning at 40 years of age (2 m)"));
}

TEST_F(HtmlReportTest, TellsTheSecondTreatment) {
    const auto cell = [](const std::string& text) {
        return "    <TD colspan=\"7\" align=\"center\">" + text + "</TD></TR>\r\n";
    };
    HeadHolds({{13, "60.5"}, {17, "25.5"}}, cell("Commercial thinning at 60 years of age (25%)"));
    HeadHolds({{15, "20.5"}, {17, "25"}}, cell("Commercial thinning at 20.5 years of age (25%)"));
    HeadHolds({{17, "25"}}, cell(" &nbsp; "));
}

TEST_F(HtmlReportTest, TakesAPlotLabelAsItIs) {
    EXPECT_NE(Head(Stand(), "<b>a label of 20 & more").find("[<b>a label of 20 & more]</TD>"),
              std::string::npos);
}

TEST_F(HtmlReportTest, WritesTheMonthOutAndTheDayWithTwoDigits) {
    host.today = {2025, 12, 31};
    EXPECT_NE(Head(Stand()).find("\r\n       December 31, 2025\r\n"), std::string::npos);
    host.today = {2025, 1, 1};
    EXPECT_NE(Head(Stand()).find("\r\n       January 01, 2025\r\n"), std::string::npos);
}

TEST_F(HtmlReportTest, FailsWith9OnALineWithTooFewFields) {
    EXPECT_ERROR(
        9, Head("7\tS\tY\tY\tWP\t6\t0.0\t1\t0.0\t0.0\t80\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0"));
    EXPECT_ERROR(9, Head(""));
}

TEST_F(HtmlReportTest, WritesARowWithoutItsSequence) {
    DataValues row;
    for (std::size_t i = 0; i < row.size(); ++i) row[i] = std::to_string(i) + "<";
    std::string expected = "  <TR class=\"data\">\r\n";
    for (int i = 1; i <= 25; ++i)
        expected += "    <TD class=\"data\">" + std::to_string(i) + "<</TD>\r\n";
    EXPECT_EQ(BatchGetRowOutput(row), expected + "  </TR>");
}

TEST_F(HtmlReportTest, EndsTablesAndThePage) {
    EXPECT_EQ(kTableEnd, "</TABLE><br>\r\n");
    EXPECT_EQ(kPageEnd, "</BODY>\r\n</HTML>\r\n");
}

}  // namespace
}  // namespace arbolith
