// A whole batch run: labels, the models' input, the models' calls, the report, the failures.
#include "unit/batch/batch_testing.h"

#include <filesystem>
#include <new>

namespace arbolith {
namespace {

class RunBatchTest : public BatchTest {
protected:
    // The boxes of the run, as texts.
    std::vector<std::string> Boxes() const {
        std::vector<std::string> texts;
        for (const auto& box : host.boxes) {
            EXPECT_EQ(box.title, "");
            EXPECT_EQ(box.icon, BoxIcon::kNone);
            texts.push_back(box.text);
        }
        return texts;
    }
    void ExpectClosed() {
        EXPECT_TRUE(batch.panel.StartBtn_Bat.Enabled());
        for (const int file : {1, 4, 5, 9})
            EXPECT_NO_THROW(application.Files().OpenForOutput(file, folder.PathOf("free.txt")));
    }
    void RunExpecting(const std::string& text) {
        host.boxes.clear();
        RunBatch(batch);
        EXPECT_EQ(Boxes(), std::vector<std::string>{text});
        ExpectClosed();
        for (const int file : {1, 4, 5, 9}) application.Files().CloseQuietly(file);
    }
    std::string MissingOutput() const {
        return "File Specified for output does not exist.\nFile: " + batch.panel.batch_out.Text();
    }
    // The values of the bars, softwood, hardwood and overall.
    std::vector<double> Progress() const {
        return {batch.panel.SwdProg.Value(), batch.panel.HwdProg.Value(),
                batch.panel.TotalProg.Value()};
    }
};

TEST_F(RunBatchTest, SendsEachWoodToItsModelAndReportsHardwoodFirst) {
    Fill({Line("1", "S"), Line("2", "H"), Line("3", "S")});
    outputs["SWQVL.exe"] = "4.5\r\n" + Row("0", "5") + "\r\n5.5\r\n" + Row("2", "10") + "\r\n";
    outputs["HWQVL.exe"] = "3.5\r\n" + Row("1", "5") + "\r\n";
    RunBatch(batch);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(folder.Read("_SOFT.TMP"), "0\t" + Fields("S") + "\r\n2\t" + Fields("S") + "\r\n");
    EXPECT_EQ(folder.Read("_HARD.TMP"), "1\t" + Fields("H") + "\r\n");
    EXPECT_EQ(Report(), FieldHeads() + "# Plot # " + Line("1", "S") + "\r\n# Plot # " +
                            Line("2", "H") + "\r\n# Plot # " + Line("3", "S") + "\r\n" +
                            ReportHead("2", "3.5") + ReportRow("2", "5") + ReportHead("1", "4.5") +
                            ReportRow("1", "5") + ReportHead("3", "5.5") + ReportRow("3", "10"));
    ASSERT_EQ(host.starts.size(), 3u);
    EXPECT_EQ(host.starts[0].FileName(), "SWQVL.exe");
    EXPECT_EQ(host.starts[0].mode, 1);
    EXPECT_EQ(host.starts[1].FileName(), "HWQVL.exe");
    EXPECT_EQ(host.starts[1].mode, 1);
    EXPECT_EQ(host.starts[2].FileName(), "notepad");
}

TEST_F(RunBatchTest, TellsEachModelItsFiles) {
    Fill({Line("1", "S"), Line("2", "H")});
    std::vector<std::string> told;
    host.model = [&](const ProgramStart&) { told.push_back(folder.Read("_PATHINF.TMP")); };
    RunBatch(batch);
    ASSERT_EQ(told.size(), 2u);
    EXPECT_EQ(told[0],
              folder.PathOf("_SOFT.TMP") + "\r\n" + folder.PathOf("_SOFTOUT.TMP") + "\r\n");
    EXPECT_EQ(told[1],
              folder.PathOf("_HARD.TMP") + "\r\n" + folder.PathOf("_HARDOUT.TMP") + "\r\n");
}

TEST_F(RunBatchTest, NumbersUnlabelledSequencesAboveTheHighestLabel) {
    Fill({Line("5", "S"), Line(" ", "S"), Line("x12", "S"), Line("", "S"), Line("5", "S")});
    outputs["SWQVL.exe"] = "1\r\n" + Row("1", "5") + "\r\n1\r\n" + Row("3", "5") + "\r\n";
    RunBatch(batch);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(batch.SeqPlots[0], "5");
    EXPECT_EQ(batch.SeqPlots[1], "6");
    EXPECT_EQ(batch.SeqPlots[2], "x12");
    EXPECT_EQ(batch.SeqPlots[3], "7");
    EXPECT_EQ(batch.SeqPlots[4], "5");
    // A blank label stays in its line, which loses its closing tab.
    const auto blank = Line(" ", "S");
    EXPECT_EQ(Report(), FieldHeads() + "# Plot # " + Line("5", "S") + "\r\n# Plot # 6" +
                            blank.substr(0, blank.size() - 1) + "\r\n# Plot # " + Line("x12", "S") +
                            "\r\n# Plot # 7" + Line("", "S") + "\r\n# Plot # " + Line("5", "S") +
                            "\r\n" + ReportHead("6", "1") + ReportRow("6", "5") +
                            ReportHead("7", "1") + ReportRow("7", "5"));
    EXPECT_EQ(batch.SeqLines[1], blank);
    // The label has no part in what the model reads.
    EXPECT_EQ(folder.Read("_SOFT.TMP").substr(0, Fields("S").size() + 4),
              "0\t" + Fields("S") + "\r\n");
}

TEST_F(RunBatchTest, NumbersOnFromTheWholePartOfALabel) {
    Fill({Line("2.9", "X"), Line(" ", "X"), Line("-40000", "X")});
    RunBatch(batch);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(batch.SeqPlots[1], "3");
}

TEST_F(RunBatchTest, CallsNoModelWithoutAnExactWoodLetter) {
    Fill({Line("1", "s"), Line("2", "SS"), Line("3", "h")});
    RunBatch(batch);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(folder.Read("_SOFT.TMP"), "");
    EXPECT_EQ(folder.Read("_HARD.TMP"), "");
    EXPECT_EQ(batch.SeqWoods[1], "SS");
    EXPECT_EQ(Report(), FieldHeads() + "# Plot # " + Line("1", "s") + "\r\n# Plot # " +
                            Line("2", "SS") + "\r\n# Plot # " + Line("3", "h") + "\r\n");
    EXPECT_EQ(host.starts.size(), 1u);
    EXPECT_EQ(Progress(), (std::vector<double>{0, 0, 100}));
}

TEST_F(RunBatchTest, ReplacesWhatItWroteBefore) {
    folder.Write("_SOFT.TMP", std::string(1000, 'x'));
    folder.Write("_HARD.TMP", std::string(1000, 'x'));
    folder.Write("_HARDOUT.TMP", "left alone");
    folder.Write("r.txt", std::string(100000, 'x'));
    Fill({Line("1", "S")});
    outputs["SWQVL.exe"] = "1\r\n" + Row("0", "5") + "\r\n";
    RunBatch(batch);
    EXPECT_EQ(folder.Read("_SOFT.TMP"), "0\t" + Fields("S") + "\r\n");
    EXPECT_EQ(folder.Read("_HARD.TMP"), "");
    EXPECT_EQ(folder.Read("_HARDOUT.TMP"), "left alone");
    EXPECT_EQ(Report(), FieldHeads() + "# Plot # " + Line("1", "S") + "\r\n" +
                            ReportHead("1", "1") + ReportRow("1", "5"));
}

TEST_F(RunBatchTest, WritesAPageWithHardwoodFirst) {
    batch.panel.batchHTML.SetValue(true);
    Fill({Line("1", "S"), Line(" ", "H")});
    outputs["SWQVL.exe"] = "1\r\n" + Row("0", "5") + "\r\n";
    outputs["HWQVL.exe"] = "2\r\n" + Row("1", "5") + "\r\n";
    RunBatch(batch);
    EXPECT_TRUE(host.boxes.empty());
    const auto page = Report();
    EXPECT_TRUE(page.starts_with("<!DOCTYPE HTML"));
    EXPECT_NE(page.find("<BODY>\r\n\r\n<TABLE BORDER"), std::string::npos);
    EXPECT_NE(page.find("  </TR>\r\n</TABLE><br>\r\n\r\n<TABLE BORDER"), std::string::npos);
    EXPECT_TRUE(page.ends_with("</TABLE><br>\r\n\r\n</BODY>\r\n</HTML>\r\n\r\n"));
    EXPECT_LT(page.find("Plot number: [2]"), page.find("Plot number: [1]"));
    EXPECT_EQ(page.find("# Plot #"), std::string::npos);
    EXPECT_EQ(host.opened, std::vector<std::string>{folder.PathOf("r.txt")});
}

TEST_F(RunBatchTest, WritesAPageWithoutTablesWhereNoModelIsCalled) {
    batch.panel.batchHTML.SetValue(true);
    Fill({Line("1", "X")});
    RunBatch(batch);
    EXPECT_TRUE(Report().ends_with("<BODY>\r\n\r\n</BODY>\r\n</HTML>\r\n\r\n"));
}

TEST_F(RunBatchTest, MovesTheBarsWithTheModels) {
    Fill({Line("1", "S"), Line("2", "H")});
    std::vector<std::vector<double>> seen;
    host.whileWaiting = [&] { seen.push_back(Progress()); };
    outputs["SWQVL.exe"] = outputs["HWQVL.exe"] = "1\r\n" + Row("0", "5") + "\r\n";
    RunBatch(batch);
    EXPECT_EQ(seen, (std::vector<std::vector<double>>{{25, 0, 25}, {50, 25, 75}}));
    EXPECT_EQ(Progress(), (std::vector<double>{50, 50, 100}));
}

TEST_F(RunBatchTest, KeepsTheCommandsClosedUntilTheReportIsWritten) {
    Fill({Line("1", "S")});
    outputs["SWQVL.exe"] = "1\r\n" + Row("0", "5") + "\r\n";
    auto& panel = batch.panel;
    const std::vector<Control*> commands = {
        &panel.StartBtn_Bat, &panel.Cancel_Btn_Bat, &panel.batchFileBtn,
        &panel.newBatBtn,    &panel.outFileBtn,     &run.form.File_Mnu,
        &run.form.Run_Mnu,   &panel.viewBatBtn,     &panel.editBatBtn};
    host.whileWaiting = [&] {
        for (const Control* command : commands) EXPECT_FALSE(command->Enabled());
        EXPECT_TRUE(panel.Batch_Seq.Enabled());
        EXPECT_TRUE(panel.batchHTML.Enabled());
    };
    RunBatch(batch);
    EXPECT_EQ(host.waits, 1);
    for (const Control* command : commands) EXPECT_TRUE(command->Enabled());
}

TEST_F(RunBatchTest, ShowsAChangeOfTheListDuringTheRun) {
    Fill({Line("1", "S"), Line("2", "S")});
    outputs["SWQVL.exe"] = "1\r\n" + Row("0", "5") + "\r\n1\r\n" + Row("1", "5") + "\r\n";
    host.whileWaiting = [&] { batch.SeqPlots[1] = "new"; };
    RunBatch(batch);
    EXPECT_NE(Report().find("PLOT#: new\t"), std::string::npos);
}

TEST_F(RunBatchTest, TakesTheFormatThatIsChosenWhileTheReportIsWritten) {
    Fill({Line("1", "S")});
    outputs["SWQVL.exe"] = "1\r\n" + Row("0", "5") + "\r\n";
    host.whileWaiting = [&] { batch.panel.batchHTML.SetValue(true); };
    RunBatch(batch);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_TRUE(
        Report().starts_with(FieldHeads() + "# Plot # " + Line("1", "S") + "\r\n<!DOCTYPE HTML"));
    EXPECT_TRUE(Report().ends_with("</HTML>\r\n\r\n"));
}

TEST_F(RunBatchTest, LeavesQuietlyWhenTheProgramEndsMeanwhile) {
    Fill({Line("1", "S")});
    host.whileWaiting = [&] { application.End(); };
    EXPECT_THROW(RunBatch(batch), ProgramEnded);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(host.starts.size(), 1u);
}

TEST_F(RunBatchTest, FailsOnAReportThatCannotBeCreated) {
    Fill({Line("1", "S")});
    for (const auto* placeholder : {kNoOutputSelected, kOutputError}) {
        batch.panel.batch_out.SetText(placeholder);
        RunExpecting(kUnknownError);
    }
    batch.panel.batch_out.SetText(folder.PathOf("missing/r.txt"));
    RunExpecting(MissingOutput());
    batch.panel.batch_out.SetText(folder.Path());
    RunExpecting(MissingOutput());
    batch.panel.batch_out.SetText("");
    RunExpecting(MissingOutput());
    EXPECT_TRUE(host.starts.empty());
}

TEST_F(RunBatchTest, FailsOnAnInputFileThatCannotBeCreated) {
    Fill({Line("1", "S")});
    folder.Block("_HARD.TMP");
    RunExpecting(MissingOutput());
    EXPECT_FALSE(folder.Holds("r.txt"));
}

TEST_F(RunBatchTest, NamesTheReportWhereAModelWroteNoOutput) {
    Fill({Line("1", "S"), Line("2", "H")});
    outputs["SWQVL.exe"] = "1\r\n" + Row("0", "5") + "\r\n";
    RunExpecting(MissingOutput());
    EXPECT_EQ(Progress(), (std::vector<double>{50, 50, 100}));
    // The report stays as far as it got, and isn't opened.
    EXPECT_EQ(Report(), FieldHeads() + "# Plot # " + Line("1", "S") + "\r\n# Plot # " +
                            Line("2", "H") + "\r\n");
    EXPECT_EQ(host.starts.size(), 2u);
}

TEST_F(RunBatchTest, ReadsAnOlderOutputAsIfItWereNew) {
    Fill({Line("1", "S")});
    host.canStart = false;
    folder.Write("_SOFTOUT.TMP", "1\r\n" + Row("0", "5") + "\r\n");
    RunExpecting(MissingOutput());  // only the editor is missing: the report is complete
    EXPECT_TRUE(Report().ends_with(ReportRow("1", "5")));
    EXPECT_EQ(Progress(), (std::vector<double>{50, 0, 100}));
}

TEST_F(RunBatchTest, FailsOnALongLabelInATextOnly) {
    Fill({Line("ninechars", "S")});
    outputs["SWQVL.exe"] = "1\r\n" + Row("0", "5") + "\r\n";
    RunExpecting(kUnknownError);
    EXPECT_TRUE(Report().ends_with(ReportHead("ninechars", "1")));
    EXPECT_EQ(Progress(), (std::vector<double>{50, 0, 50}));
    batch.panel.batchHTML.SetValue(true);
    host.boxes.clear();
    RunBatch(batch);
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(RunBatchTest, FailsOnWhatIsNoTable) {
    Fill({Line("1", "S")});
    const auto row = Row("0", "5");
    for (const auto& output :
         {"1\r\n" + row.substr(0, row.rfind(' ')), "1\r\n" + row + "\r\n1\r\n",
          "1\r\n" + Row("1025", "5"), std::string("garbage\0\xFF\n and more", 20)}) {
        outputs["SWQVL.exe"] = output;
        RunExpecting(kUnknownError);
    }
}

TEST_F(RunBatchTest, OverflowsOnLabelsAndNumbersOutsideSixteenBits) {
    Fill({Line("32768", "S")});
    RunExpecting(kUnknownError);
    Fill({Line("32767", "S"), Line(" ", "S")});
    RunExpecting(kUnknownError);
    EXPECT_EQ(Report(), FieldHeads() + "# Plot # " + Line("32767", "S") + "\r\n");
    Fill({Line("32767", "X")});
    host.boxes.clear();
    RunBatch(batch);
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(RunBatchTest, FailsOnASlotWithoutALineAndOnALineThatIsTooShort) {
    Fill({Line("1", "S"), "", Line("3", "S")});
    RunExpecting(kUnknownError);
    EXPECT_FALSE(folder.Holds("r.txt"));
    Fill({"1\t"});
    RunExpecting(kUnknownError);
    EXPECT_TRUE(folder.Holds("r.txt"));
}

TEST_F(RunBatchTest, FailsOnAFullDisk) {
    Fill({Line("1", "S")});
    outputs["SWQVL.exe"] = "1\r\n" + Row("0", "5") + "\r\n";
    folder.FillUp("r.txt");
    RunExpecting(kUnknownError);
    batch.panel.batch_out.SetText(folder.PathOf("other.txt"));
    folder.FillUp("_SOFT.TMP");
    RunExpecting(kUnknownError);
}

TEST_F(RunBatchTest, FailsWhereTheMemoryIsUsedUp) {
    Fill({Line("1", "S")});
    host.model = [](const ProgramStart&) { throw std::bad_alloc(); };
    RunExpecting(kUnknownError);
}

TEST_F(RunBatchTest, LeavesTheImageAsItWasButForPlotsAndWoods) {
    const auto line = Line(" ", "S");
    Fill({line});
    batch.BatchDirty = false;
    batch.BatchPath = "b.qvb";
    outputs["SWQVL.exe"] = "1\r\n" + Row("0", "5") + "\r\n";
    RunBatch(batch);
    EXPECT_EQ(batch.SeqLines[0], line);
    EXPECT_EQ(batch.SeqPlots[0], "1");
    EXPECT_EQ(batch.SeqWoods[0], "S");
    EXPECT_FALSE(batch.BatchDirty);
    EXPECT_EQ(batch.BatchPath, "b.qvb");
}

TEST_F(RunBatchTest, StartsFromEmptyBars) {
    Fill({Line("1", "H")});
    batch.panel.SwdProg.SetValue(50);
    batch.panel.HwdProg.SetValue(50);
    batch.panel.TotalProg.SetValue(100);
    outputs["HWQVL.exe"] = "1\r\n" + Row("0", "5") + "\r\n";
    StartBatch(batch);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(Progress(), (std::vector<double>{0, 50, 100}));
}

TEST_F(RunBatchTest, StartsNothingWithoutAReportsNameOrSequences) {
    batch.panel.TotalProg.SetValue(100);
    StartBatch(batch);
    Fill({Line("1", "S")});
    batch.panel.batch_out.SetText(kNoOutputSelected);
    StartBatch(batch);
    EXPECT_EQ(Boxes(), (std::vector<std::string>{"Error: No Sequences To Run",
                                                 "Please select an output file. "}));
    EXPECT_EQ(Progress(), (std::vector<double>{0, 0, 0}));
    EXPECT_TRUE(host.starts.empty());
    EXPECT_FALSE(folder.Holds("_SOFT.TMP"));
}

TEST_F(RunBatchTest, RunsAFullBatch) {
    std::vector<std::string> lines(1025, Line(" ", "S"));
    Fill(lines);
    auto& output = outputs["SWQVL.exe"];
    for (int i = 0; i < 1025; ++i) output += "1\r\n" + Row(std::to_string(i), "5") + "\r\n";
    RunBatch(batch);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_TRUE(Report().ends_with(ReportHead("1025", "1") + ReportRow("1025", "5")));
}

}  // namespace
}  // namespace arbolith
