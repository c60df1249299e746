// The definitions window. Its texts are read one by one by the scenarios of the charts.
#include "results/definitions.h"

#include "forms/application.h"
#include "results/definition_terms.h"
#include "unit/platform/fake_host.h"

#include <gtest/gtest.h>
#include <string>

namespace arbolith {
namespace {

class DefinitionsTest : public testing::Test {
protected:
    void Select(int row) {
        window.definition_list.SetListIndex(row);
        window.ShowSelectedTerm();
    }

    FakeHost host;
    Application application{host, "/nowhere", ""};
    Globals globals{"Metric"};
    Definitions window{application, globals};
};

TEST_F(DefinitionsTest, ListTheVariablesWithTheirLabels) {
    window.ShowVariableTerms();
    EXPECT_EQ(window.Caption(), "Help - Definitions");
    EXPECT_EQ(window.definition_list.ListCount(), 25);
    EXPECT_EQ(window.definition_list.List().front(), "SAGE\t- (Stump Age)");
    EXPECT_EQ(window.definition_list.ListIndex(), -1);
    window.ShowSiteTerms();
    EXPECT_EQ(window.definition_list.List(),
              (std::vector<std::string>{"Land Capability", "Site Index"}));
}

TEST_F(DefinitionsTest, KeepTheLastTermWhenOpenedAnew) {
    window.ShowVariableTerms();
    Select(5);
    EXPECT_EQ(window.definTitle.Caption(), "Merchantable Basal Area (BMA):");
    window.ShowVariableTerms();
    EXPECT_EQ(window.definition_list.ListIndex(), -1);
    EXPECT_EQ(window.definTitle.Caption(), "Merchantable Basal Area (BMA):");
}

TEST_F(DefinitionsTest, ExplainInTheUnitsInForceWhenATermIsSelected) {
    window.ShowVariableTerms();
    Select(3);
    EXPECT_NE(window.definition.Caption().find("14 cm DBHob.       For"), std::string::npos);
    globals.UnitSystem = "";
    EXPECT_NE(window.definition.Caption().find("14 cm"), std::string::npos);
    Select(3);
    EXPECT_NE(window.definition.Caption().find("5.5\" DBHob.       For"), std::string::npos);
}

TEST_F(DefinitionsTest, HaveNothingForOtherTerms) {
    window.definition_list.AddItem("Canopy\t- (Cover)");
    Select(0);
    EXPECT_EQ(window.definTitle.Caption(), "<undefined term>");
    EXPECT_EQ(window.definition.Caption(), "No definition exists for this item.");
}

TEST_F(DefinitionsTest, ComeBeforeTheOtherWindows) {
    Form other(application, "Other", "", {1000, 1000});
    window.Open();
    other.Show();
    window.Open();
    EXPECT_EQ(application.ActiveForm(), &window);
}

TEST(DefinitionTerms, AllHaveBothTexts) {
    for (const auto& term : kVariableTerms)
        for (const char* text : {term.label, term.heading.metric, term.heading.imperial,
                                 term.text.metric, term.text.imperial})
            EXPECT_STRNE(text, "") << term.key;
}

}  // namespace
}  // namespace arbolith
