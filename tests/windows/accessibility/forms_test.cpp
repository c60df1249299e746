// What the accessibility bus tells of every form: that each control is there, with a role and a
// name of its own, and can be used from there.
#include "windows/accessibility/program.h"

#include <QRegularExpression>
#include <QSet>

namespace arbolith::accessibility {

namespace {

using Texts = QStringList;

// A name that only the program itself knows a control by.
bool IsInternal(const QString& name) {
    static const QRegularExpression pattern("^\\w*([a-z][A-Z0-9]|_)\\w*$");
    return pattern.match(name).hasMatch();
}

bool NeedsName(const Told& told) {
    static const QSet<QString> nameless{"filler", "menu bar", "separator", "scroll bar",
                                        "popup menu"};
    return !nameless.contains(told.role);
}

// What stands in a table is named by its contents.
bool IsContents(const Told& told) {
    return told.role == "table" || told.role == "list";
}

void CheckNames(const Told& told) {
    QSet<QString> texts;
    for (const Told& child : told.children) {
        if (NeedsName(child)) {
            EXPECT_NE(child.name.trimmed(), QString()) << child.Text().toStdString();
            EXPECT_FALSE(IsInternal(child.name)) << child.Text().toStdString();
        }
        const bool isText = child.role == "label" || child.role == "filler";
        if (!isText && child.role != "separator") {
            EXPECT_FALSE(texts.contains(child.Text())) << "twice: " << child.Text().toStdString();
        }
        texts.insert(child.Text());
        if (!IsContents(child)) CheckNames(child);
    }
}

void GatherUsable(const Told& told, Texts& usable) {
    for (const Told& child : told.children) {
        const bool isUsable = child.Has(State::kSensitive) && child.Has(State::kFocusable);
        if (isUsable) usable << child.Text();
        if (!IsContents(child)) GatherUsable(child, usable);
    }
}

struct FormsTest : ProgramTest {
    // Checks the names on a window, and that keys reach these things there.
    void ExpectUsable(const QString& title, const Texts& expected) {
        const Told window = Window(title);
        Texts usable;
        GatherUsable(window, usable);
        EXPECT_EQ(usable.join('\n').toStdString(), expected.join('\n').toStdString());
        CheckNames(window);
    }

    // The same on the main form, where only the open step is told.
    void ExpectStep(const QString& frame, const Texts& expected) {
        Texts usable;
        const Told step = Find(kMain, "panel: " + frame);
        GatherUsable(step, usable);
        EXPECT_EQ(usable.join('\n').toStdString(), expected.join('\n').toStdString());
        CheckNames(Window(kMain));
    }

    // A natural red pine stand, up to its table.
    void RunStand() {
        Press(kMain, "push button: 1 Choose Model");
        Press(kMain, "push button: 3 Dominant Species");
        SelectRow(kMain, "list: Select a species to model", 1);
        Press(kMain, "push button: 4 Site Index (@50)");
        SelectRow(kMain, "list: Land Capability", 2);
        Press(kMain, "push button: 5 Expected Stocking");
        Type(kMain, "text: Expected Stocking", "95");
        Press(kMain, "push button: 6 Simulation Duration");
        Type(kMain, "text: Rotation Age", "60");
        Press(kMain, "push button: Run");
    }
};

}  // namespace

TEST_F(FormsTest, TheMainFormAtItsStart) {
    EXPECT_EQ(Window(kMain).role, "frame");
    ExpectUsable(kMain, {"push button: 1 Choose Model", "push button: Clear Input"});
}

TEST_F(FormsTest, TheStepsOfTheMainForm) {
    Press(kMain, "push button: 1 Choose Model");
    ExpectStep("Step 1", {"radio button: Softwood", "radio button: Hardwood",
                          "radio button: Metric", "radio button: Imperial"});
    Press(kMain, "push button: 2 Natural Regen");
    Press(kMain, "radio button: Plantation");
    ExpectStep("Step 2", {"radio button: Plantation", "radio button: Natural Regeneration",
                          "text: X Spacing", "text: Y Spacing"});
    Type(kMain, "text: X Spacing", "2.5");
    Type(kMain, "text: Y Spacing", "2");
    Press(kMain, "push button: 3 Dominant Species");
    ExpectStep("Step 3", {"list: Select a species to model"});
    SelectRow(kMain, "list: Select a species to model", 5);
    Find(kMain, "label: Norway Spruce");
    Press(kMain, "link: More Information");
    Press(kMain, "push button: 4 Site Index (@50)");
    ExpectStep("Step 4", {"radio button: Land Capability", "list: Land Capability",
                          "radio button: Site Index (Age 50)"});
    Press(kMain, "radio button: Site Index (Age 50)");
    Type(kMain, "text: Site Index (Age 50)", "18");
    Press(kMain, "push button: 5 Expected Stocking");
    ExpectStep("Step 5", {"text: Expected Stocking"});
    Type(kMain, "text: Expected Stocking", "95");
    Press(kMain, "push button: 6 Simulation Duration");
    ExpectStep("Step 6",
               {"radio button: Rotation Age", "text: Rotation Age", "radio button: Rotation DBH"});
    Type(kMain, "text: Rotation Age", "60");
    Press(kMain, "push button: 7 Management Options");
    ExpectStep("Step 7", {"radio button: Age", "text: Age", "radio button: DBH"});
}

TEST_F(FormsTest, TheYieldTable) {
    RunStand();
    ExpectUsable("Output",
                 {"table: Yield Table", "push button: Graph Diameter", "push button: Graph B. Area",
                  "push button: Graph Height", "push button: Graph Frequency",
                  "push button: Graph Volume", "push button: Graph M.A.I.",
                  "push button: Graph Cumulative Volume", "push button: Graph Cumulative M.A.I.",
                  "push button: Graph Selected Column(s)", "push button: Select Columns to Graph"});
    Find("Output", "column header: SAGE");
    Find("Output", "column header: TDBH");
    Find("Output", "cell: TDBH");
}

TEST_F(FormsTest, TheChartAndItsOptions) {
    RunStand();
    Press("Output", "push button: Graph Diameter");
    ExpectUsable("Chart",
                 {"push button: Close", "push button: Full Screen", "push button: Copy Graph",
                  "push button: Save Graph", "push button: Print Graph",
                  "push button: Chart Options", "push button: XY Plot (Line)", "push button: Bar"});
    EXPECT_EQ(bus_.DescriptionOf(Find("Chart", "chart: Chart").address).toStdString(),
              "Red Pine : Diameter (cm) vs Age (years). X axis: Age (years), 0 to 60. "
              "Y axis: Diameter (cm), 0 to 20. Lines: TDBH, MDBH, SDBH");
    Press("Chart", "push button: Chart Options");
    ExpectUsable(
        "Chart Options",
        {"text: X Axis Max", "text: X Axis Min", "text: X Axis Major Div", "text: X Axis Minor Div",
         "text: Y Axis Max", "text: Y Axis Min", "text: Y Axis Major Div", "text: Y Axis Minor Div",
         "check box: Auto Set X", "check box: Auto Set Y", "check box: Legend", "check box: Grid",
         "push button: Reload", "push button: Accept", "push button: Cancel"});
    Press("Chart Options", "check box: Legend");
    Press("Chart Options", "push button: Accept");
}

TEST_F(FormsTest, TheCustomChart) {
    RunStand();
    Press("Output", "push button: Select Columns to Graph");
    ExpectUsable("Custom Chart Options", {"combo box: X-Axis Variable: SAGE",
                                          "check box: TDBH",
                                          "check box: MDBH",
                                          "check box: SDBH",
                                          "check box: TH",
                                          "check box: MH",
                                          "check box: SH",
                                          "check box: TVOL",
                                          "check box: MVOL",
                                          "check box: SVOL",
                                          "check box: CTVOL",
                                          "check box: CMVOL",
                                          "check box: CSVOL",
                                          "check box: TBA",
                                          "check box: MBA",
                                          "check box: SBA",
                                          "check box: TF",
                                          "check box: MF",
                                          "check box: SF",
                                          "check box: TMAI",
                                          "check box: MMAI",
                                          "check box: SMAI",
                                          "check box: CTMAI",
                                          "check box: CMMAI",
                                          "check box: CSMAI",
                                          "push button: OK",
                                          "push button: Cancel"});
    Press("Custom Chart Options", "check box: TVOL");
    Press("Custom Chart Options", "push button: OK");
    EXPECT_TRUE(bus_.DescriptionOf(Find("Chart", "chart: Chart").address).endsWith("Lines: TVOL"));
}

TEST_F(FormsTest, TheDefinitions) {
    RunStand();
    Choose("Output", 'e', {'c', 'c', kEnter});
    ExpectUsable("Help - Definitions", {"list: List of terms"});
}

TEST_F(FormsTest, TheBatchView) {
    Choose(kMain, 'm', {'b'});
    ExpectUsable(
        kMain, {"text: Batch Sequence File (input)", "push button: Select File", "push button: New",
                "text: Output Path and File", "push button: Select File", "check box: HTML",
                "list: Plot# Unit Regen Species/stock Site Rotation Treatments",
                "push button: Copy and Create New", "push button: Cancel"});
    Type(kMain, "text: Batch Sequence File (input)", PathOf("ten-stands.qvb"));
}

}  // namespace arbolith::accessibility
