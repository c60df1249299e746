// What the pages say about the program is the program's own.
#include "generator/facts.h"

#include "platform/numbers.h"
#include "platform/version.h"
#include "run_definition/land_capability.h"
#include "run_definition/limits.h"

#include <gtest/gtest.h>

namespace arbolith::help {
namespace {

class FactsTest : public testing::Test {
protected:
    FactsTest() {
        AddCaptionFacts(facts);
        AddLimitFacts(facts);
        AddSiteFacts(facts);
    }
    std::string Tell(const std::string& place) {
        return Expand("{{" + place + "}}", facts, {"page.html"});
    }

    Facts facts;
};

TEST_F(FactsTest, CaptionsReadAsOnTheScreen) {
    EXPECT_EQ(Tell("ui Run"), "<b>Run</b>");
    EXPECT_EQ(Tell("ui Step6_opt1"), "<b>Rotation Age</b>");
    EXPECT_EQ(Tell("ui BA1_lbl"), "<b>B.A. Reduction (%)</b>");
    EXPECT_EQ(Tell("ui Output.grphBa"), "<b>Graph B. Area</b>");
    EXPECT_THROW(Tell("ui NoSuchControl"), BadPage);
    EXPECT_THROW(Tell("ui NoSuchForm.Run"), BadPage);
}

TEST_F(FactsTest, MenusAreToldFromTheTop) {
    EXPECT_EQ(Tell("menu SaveAs_Mnu"), "<b>File</b>, <b>Save As...</b>");
    EXPECT_EQ(Tell("keys Output.Copy_Mnu"), "<kbd>Ctrl+C</kbd>");
    EXPECT_THROW(Tell("keys New_Mnu"), BadPage);
}

TEST_F(FactsTest, FieldsHaveTheirLength) {
    EXPECT_EQ(Tell("size Site"), "4");
    EXPECT_THROW(Tell("size Run"), BadPage);
}

TEST_F(FactsTest, TheVersionIsTheProgramsOwn) {
    EXPECT_EQ(Tell("version"), kVersion);
}

TEST_F(FactsTest, LimitsComeInBothUnitSystems) {
    EXPECT_EQ(Tell("range plantation-spacing"), "1.2 to 3&nbsp;m (4 to 10&nbsp;ft)");
    EXPECT_EQ(Tell("least rotation-dbh"), "10&nbsp;cm (4&nbsp;in)");
    EXPECT_EQ(Tell("most softwood-site-index"), "30&nbsp;m (98.4&nbsp;ft)");
    EXPECT_EQ(Tell("range stocking"), "1 to 100&nbsp;%");
    EXPECT_EQ(Tell("merchantable-dbh"), "14&nbsp;cm (5.5&nbsp;in)");
    EXPECT_THROW(Tell("range nothing"), BadPage);
}

TEST_F(FactsTest, ATableOfLimitsHasARowForEachName) {
    EXPECT_EQ(Tell("limits rotation-age hardwood-height"),
              "<table>\n<tr><th>Quantity</th><th>Metric</th><th>Imperial</th></tr>\n"
              "<tr><td>Rotation age</td><td>20 to 120&nbsp;years</td>"
              "<td>20 to 120&nbsp;years</td></tr>\n"
              "<tr><td>Total height for a precommercial thinning, hardwood</td>"
              "<td>6 to 9&nbsp;m</td><td>20 to 30&nbsp;ft</td></tr>\n</table>\n");
}

TEST_F(FactsTest, SpeciesAreThoseOfTheWood) {
    EXPECT_NE(Tell("species softwood").find("<td>E. Hemlock</td><td><code>EH</code></td>"),
              std::string::npos);
    EXPECT_EQ(Tell("species softwood").find("Red Oak"), std::string::npos);
    EXPECT_NE(Tell("classes hardwood").find("<td>White Birch</td><td>1 to 3</td>"),
              std::string::npos);
    EXPECT_THROW(Tell("species wood"), BadPage);
}

TEST_F(FactsTest, SiteIndexesAreThoseOfTheClasses) {
    const auto softwood = Tell("site-index softwood");
    EXPECT_NE(softwood.find("<h3>All softwoods</h3>"), std::string::npos);
    for (int lc = 1; lc <= 13; ++lc) {
        const auto row = "<td>" + std::to_string(lc) + "</td><td>" +
                         DefaultText(SiteIndexFromLc("White Pine", lc, true)) + "</td><td>" +
                         DefaultText(SiteIndexFromLc("White Pine", lc, false)) + "</td>";
        EXPECT_NE(softwood.find(row), std::string::npos) << row;
    }
    const auto hardwood = Tell("site-index hardwood");
    EXPECT_NE(hardwood.find("<h3>Largetooth Aspen and Trembling Aspen</h3>"), std::string::npos);
    EXPECT_NE(hardwood.find("<h3>Red Maple and White Birch</h3>"), std::string::npos);
    EXPECT_NE(hardwood.find("<td>3</td><td>18.8</td><td>61.7</td>"), std::string::npos);
    EXPECT_EQ(hardwood.find("25.9"), std::string::npos) << "a class that isn't offered";
}

}  // namespace
}  // namespace arbolith::help
