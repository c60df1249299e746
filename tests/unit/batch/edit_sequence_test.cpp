#include "run_definition/apply_steps.h"
#include "run_definition/reset.h"
#include "unit/batch/batch_testing.h"
#include "unit/platform/expect_error.h"

namespace arbolith {

namespace {

class EditSequenceTest : public BatchTest {
protected:
    EditSequenceTest() {
        run.probeTreatments = [] {};
        run.onReset = [this] { ForgetBatch(batch); };
        ResetInput(run);
        run.form.Batch.SetVisible(true);
        run.form.Qvly.SetVisible(false);
    }

    void Edit(const std::string& line) {
        Fill({line});
        batch.panel.Batch_Seq.SetListIndex(0);
        EditSequence(batch);
    }
};

}  // namespace

TEST_F(EditSequenceTest, ASpeciesThatIsNotKnownIsAskedFor) {
    // Every species that the search comes by is selected.
    run.form.lstSpecies.onClick = [this] { ApplyStep3(run); };
    Edit("1\tS\tY\tY\tRM\t6\t0.0\t1\t0.0\t0.0\t80\t0.0\t0\t0\t0\t0\t0\t0\t0\t100\t");
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(host.boxes[0].text,
              "Invalid tree species input detected.  This may be the result of a corrupt or "
              "outdated batch file.  Please re-select species.");
    EXPECT_EQ(host.boxes[0].title, "Batch Input Error");
    EXPECT_EQ(host.boxes[0].icon, BoxIcon::kExclamation);
    EXPECT_EQ(run.form.lstSpecies.ListIndex(), -1);
    EXPECT_EQ(run.form.Step3_Spec.Caption(), "");
    EXPECT_EQ(run.StepErrorStep, 3);
    EXPECT_FALSE(run.form.Run.Enabled());
    EXPECT_FALSE(run.form.Batch.Visible());
    EXPECT_TRUE(run.form.Step3.Visible());
    // The rest of the sequence is there.
    EXPECT_EQ(run.form.Lcap.Text(), "6");
    EXPECT_EQ(run.form.txtRotAge.Text(), "80");
    EXPECT_EQ(run.StepsReached, 7);
}

TEST_F(EditSequenceTest, ANameOfASpeciesStandsForItsCodeAndIsNotFound) {
    Edit("1\tS\tY\tY\tRed Pine\t6\t0.0\t1\t0.0\t0.0\t80\t0.0\t0\t0\t0\t0\t0\t0\t0\t100\t");
    EXPECT_EQ(run.form.lstSpecies.ListIndex(), -1);
}

TEST_F(EditSequenceTest, ALineThatIsTooShortIsARunTimeError) {
    EXPECT_ERROR(9, Edit("1\tS\tY\tY"));
    EXPECT_EQ(run.form.Run.Caption(), "Apply");
    EXPECT_EQ(batch.SeqPlots[0], "1");
    EXPECT_ERROR(9, Edit(""));
}

TEST_F(EditSequenceTest, AWholeNumberThatDoesNotFitIsAnOverflow) {
    EXPECT_ERROR(6, Edit("1\tS\tY\tY\tRP\t6\t0.0\t1\t0.0\t0.0\t80\t0.0\t0\t0\t0\t0\t0\t0\t0"
                         "\t40000\t"));
}

TEST_F(EditSequenceTest, ApplyingWithoutASelectedRowIsARunTimeError) {
    Fill({Line("1", "S")});
    EXPECT_ERROR(9, ApplySequence(batch));
    EXPECT_EQ(batch.SeqLines[0], Line("1", "S"));
}

TEST_F(EditSequenceTest, WhatApplyingCantWriteStaysInTheBatch) {
    Edit(Line("7", "S"));
    batch.panel.batch_in.SetText(folder.PathOf("a.qvb"));
    folder.Block("a.qvb");
    run.record.STK = 55;
    ApplySequence(batch);
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_TRUE(batch.SeqLines[0].ends_with("\t55\t")) << batch.SeqLines[0];
    EXPECT_EQ(batch.panel.Batch_Seq.ListIndex(), 0);
    EXPECT_EQ(run.form.Run.Caption(), "Run");
    EXPECT_TRUE(run.form.Batch.Visible());
    EXPECT_TRUE(batch.BatchDirty);
}

}  // namespace arbolith
