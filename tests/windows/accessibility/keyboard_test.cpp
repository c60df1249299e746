// With the keyboard alone, by real key presses, from the start to a report.
#include "windows/accessibility/program.h"

#include <QClipboard>
#include <QGuiApplication>

namespace arbolith::accessibility {

namespace {

struct KeyboardTest : ProgramTest {
    // A natural red pine stand, up to its table.
    void RunStand() {
        ExpectFocus("push button: 1 Choose Model");
        PressKey(kSpace);
        ExpectFocus("radio button: Softwood");
        TabTo("push button: 3 Dominant Species");
        PressKey(kSpace);
        ExpectFocus("list: Select a species to model");
        PressKey(kDown);
        PressKey(kDown);
        Find(kMain, "push button: 4 Site Index (@50)");
        TabTo("push button: 4 Site Index (@50)");
        PressKey(kSpace);
        ExpectFocus("list: Land Capability");
        PressKey(kDown);
        PressKey(kDown);
        PressKey(kDown);
        Find(kMain, "push button: 5 Expected Stocking");
        TabTo("push button: 5 Expected Stocking");
        PressKey(kSpace);
        ExpectFocus("text: Expected Stocking");
        TypeKeys("95");
        Find(kMain, "push button: 6 Simulation Duration");
        TabTo("push button: 6 Simulation Duration");
        PressKey(kSpace);
        ExpectFocus("text: Rotation Age");
        TypeKeys("60");
        Find(kMain, "push button: Run");
        TabTo("push button: Run");
        PressKey(kSpace);
        AwaitActive("Output");
        ExpectFocus("table: Yield Table");
    }

    void AwaitFile(const QString& file) {
        Await(file, [&] { return !BytesOf(file).isEmpty(); });
    }
};

}  // namespace

TEST_F(KeyboardTest, FromTheStartToAReport) {
    RunStand();
    Choose("Output", 'f', {'s'});
    ExpectFocus("text: File name:");
    TypeKeys(PathOf("report.txt"));
    PressKey(kEnter);
    AwaitFile("report.txt");
    EXPECT_TRUE(BytesOf("report.txt").contains("S\tY\tY\tRP\t3"));
}

TEST_F(KeyboardTest, FromTheTableToTheClipboardAndAGraph) {
    RunStand();
    PressControl('a');
    Await("table on the clipboard",
          [] { return QGuiApplication::clipboard()->text().contains("SAGE\tTDBH"); });
    TabTo("push button: Graph Diameter");
    PressKey(kSpace);
    ExpectFocus("push button: Close");
    TabTo("push button: Chart Options");
    PressKey(kSpace);
    ExpectFocus("text: X Axis Max");
    TypeKeys("80");
    TabTo("push button: Accept");
    PressKey(kEnter);
    Await("longer axis", [this] {
        return bus_.DescriptionOf(Find("Chart", "chart: Chart").address).contains("0 to 80");
    });
    TabTo("push button: Cancel");
    PressKey(kSpace);
    AwaitActive("Chart");
    TabTo("push button: Save Graph");
    PressKey(kSpace);
    ExpectFocus("text: Select a filename to save as with no extension:");
    TypeKeys("graph");
    PressKey(kEnter);
    AwaitFile("graph.bmp");
}

TEST_F(KeyboardTest, TheLinksOfTheSteps) {
    ExpectFocus("push button: 1 Choose Model");
    PressKey(kSpace);
    ExpectFocus("radio button: Softwood");
    TabTo("push button: 3 Dominant Species");
    PressKey(kSpace);
    ExpectFocus("list: Select a species to model");
    PressKey(kDown);
    Find(kMain, "push button: 4 Site Index (@50)");
    TabTo("push button: 4 Site Index (@50)");
    PressKey(kSpace);
    ExpectFocus("list: Land Capability");
    TabTo("link: Goto Manual Now");
    PressKey(kEnter);
    AwaitFile("opened");
}

TEST_F(KeyboardTest, ADefinition) {
    ExpectFocus("push button: 1 Choose Model");
    Choose(kMain, 'h', {'d'});
    ExpectFocus("list: List of terms");
    PressKey(kDown);
    Find("Help - Definitions", "label: Land Capability (LC)");
}

TEST_F(KeyboardTest, ABatchUpToItsReport) {
    ExpectFocus("push button: 1 Choose Model");
    Choose(kMain, 'm', {'b'});
    TabTo("push button: Select File");
    PressKey(kSpace);
    ExpectFocus("text: File name:");
    TypeKeys(PathOf("ten-stands.qvb"));
    PressKey(kEnter);
    AwaitActive(kMain);
    TabTo("list: Plot# Unit Regen Species/stock Site Rotation Treatments");
    PressKey(kDown);
    PressKey(kDown);
    Find(kMain, "push button: Edit Selected Sequence");
    TabTo("push button: Edit Selected Sequence");
    TabTo("push button: Start");
    PressKey(kSpace);
    AwaitFile("edited");
    EXPECT_EQ(BytesOf("edited").toStdString(), PathOf("ten-stands.txt").toStdString());
    EXPECT_TRUE(BytesOf("ten-stands.txt").contains("N-4"));
}

}  // namespace arbolith::accessibility
