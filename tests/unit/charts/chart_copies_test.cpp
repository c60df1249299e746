// The chart on the clipboard, in files and on paper, and what can go wrong on the way.
#include "charts/chart_copies.h"

#include "unit/charts/charts_testing.h"
#include "unit/platform/expect_error.h"
#include "unit/platform/temporary_folder.h"

namespace arbolith {
namespace {

class ChartCopiesTest : public ChartsTest {
protected:
    ChartCopiesTest() { graphs.GraphCustom("SAGE,TDBH", ""); }

    std::string BoxText() const { return host.boxes.empty() ? "" : host.boxes.back().text; }
    bool Exists(const std::string& name) const {
        return std::filesystem::exists(folder.PathOf(name));
    }

    TemporaryFolder folder;
    const std::string data = "Age (years)\tTDBH\r\n5\t2.5\r\n10\t7.25";
    const std::string failed =
        "Error saving...  Ensure that the file exists and is not in use by another program.";
};

TEST_F(ChartCopiesTest, DrawThePictureInOneFixedSize) {
    Size drawn;
    application.drawChart = [&](const arbolith::Chart&, Size size) {
        drawn = size;
        return std::make_shared<const BlankDrawing>(size);
    };
    CopyGraph(chart.Get());
    EXPECT_EQ(drawn, (Size{10000, 10000}));
    EXPECT_EQ(host.ClipboardText(), data);
    EXPECT_EQ(chart.Get().Chart.GetPlace().width, 6495);
}

TEST_F(ChartCopiesTest, AreImpossibleOfAChartBeyondSixteenBits) {
    auto place = chart.Get().Chart.GetPlace();
    place.height = 32768;
    chart.Get().Chart.SetPlace(place);
    EXPECT_ERROR(6, CopyGraph(chart.Get()));
    EXPECT_ERROR(6, PrintGraph(chart.Get()));
    SaveGraph(chart.Get());
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_TRUE(host.prompts.empty());
}

TEST_F(ChartCopiesTest, GoIntoTwoFiles) {
    const auto name = folder.PathOf("chart");
    host.answerText = name;
    SaveGraph(chart.Get());
    EXPECT_EQ(BoxText(), "The files: " + name + ".bmp & " + name + ".txt were saved successfully.");
    EXPECT_EQ(folder.Read("chart.txt"), data + "\r\n");
    EXPECT_EQ(folder.Read("chart.bmp"), BlankDrawing({10000, 10000}).BitmapFile());
}

TEST_F(ChartCopiesTest, LeaveThingsOnTheClipboardWithoutAName) {
    SaveGraph(chart.Get());
    EXPECT_EQ(host.prompts,
              std::vector<std::string>{"Select a filename to save as with no extension:"});
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(host.ClipboardText(), data);
    EXPECT_TRUE(host.ClipboardPicture());
}

TEST_F(ChartCopiesTest, TellFileErrorsOfTheUsualSetOnly) {
    host.answerText = folder.PathOf("missing/chart");
    SaveGraph(chart.Get());
    EXPECT_EQ(BoxText(), failed);
    host.boxes.clear();
    host.answerText = folder.PathOf("a?b");
    SaveGraph(chart.Get());
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(ChartCopiesTest, CloseFileNumber1EvenWhereItIsAnothers) {
    application.Files().OpenForOutput(1, folder.PathOf("run.tmp"));
    host.answerText = folder.PathOf("chart");
    SaveGraph(chart.Get());
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_TRUE(Exists("chart.bmp"));
    EXPECT_FALSE(Exists("chart.txt"));
    EXPECT_NO_THROW(application.Files().OpenForOutput(1, folder.PathOf("next.tmp")));
}

TEST_F(ChartCopiesTest, LeaveFileNumber1AloneWithoutAName) {
    application.Files().OpenForOutput(1, folder.PathOf("run.tmp"));
    SaveGraph(chart.Get());
    EXPECT_ERROR(55, application.Files().OpenForOutput(1, folder.PathOf("next.tmp")));
}

TEST_F(ChartCopiesTest, WriteNothingOfWhatAnotherProgramHasCopiedMeanwhile) {
    host.answerText = folder.PathOf("chart");
    host.whileAsking = [this] { host.SetClipboardText("something else"); };
    SaveGraph(chart.Get());
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_FALSE(Exists("chart.bmp"));
    EXPECT_FALSE(Exists("chart.txt"));
}

TEST_F(ChartCopiesTest, GoToThePrinter) {
    PrintGraph(chart.Get());
    EXPECT_EQ(host.printed, (std::vector<Size>{{10000, 10000}}));
    EXPECT_EQ(BoxText(), "Chart sent to default printer.");
    host.hasPrinter = false;
    EXPECT_ERROR(482, PrintGraph(chart.Get()));
    EXPECT_EQ(host.boxes.size(), 1u);
}

}  // namespace
}  // namespace arbolith
