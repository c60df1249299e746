#include "unit/batch/batch_testing.h"

#include <algorithm>

namespace arbolith {

namespace {

class PanelStateTest : public BatchTest {
protected:
    std::vector<Control*> OfARun() {
        auto& panel = batch.panel;
        return {&panel.StartBtn_Bat, &panel.Cancel_Btn_Bat, &panel.batchFileBtn,
                &panel.newBatBtn,    &panel.outFileBtn,     &run.form.File_Mnu,
                &run.form.Run_Mnu,   &panel.viewBatBtn,     &panel.editBatBtn};
    }
};

}  // namespace

TEST_F(PanelStateTest, ARunClosesItsNineControlsAndNoOther) {
    RefreshBatchPanel(batch);
    std::vector<bool> before;
    for (const Control* control : run.form.Controls()) before.push_back(control->Enabled());
    for (const bool enabled : {true, false}) {
        EnableBatchControls(batch, enabled);
        auto own = OfARun();
        for (const Control* control : own) EXPECT_EQ(control->Enabled(), enabled);
        std::size_t i = 0;
        for (const Control* control : run.form.Controls()) {
            const bool isOwn = std::find(own.begin(), own.end(), control) != own.end();
            EXPECT_TRUE(isOwn || control->Enabled() == before[i]) << control->Name();
            ++i;
        }
    }
}

TEST_F(PanelStateTest, ForgettingTouchesOnlyThePathsTheFlagAndTheProgress) {
    Fill({Line("1", "S")});
    batch.panel.Progress.SetEnabled(false);
    batch.panel.batch_in.SetText("a.qvb");
    batch.BatchDirty = true;
    batch.BatchPath = "a.qvb";
    batch.BatchSavePath = "b.qvb";
    ForgetBatch(batch);
    EXPECT_FALSE(batch.BatchDirty);
    EXPECT_EQ(batch.BatchPath, "");
    EXPECT_EQ(batch.BatchSavePath, "");
    EXPECT_TRUE(batch.panel.Progress.Enabled());
    EXPECT_EQ(batch.panel.batch_in.Text(), "a.qvb");
    EXPECT_EQ(batch.panel.Batch_Seq.ListCount(), 1);
    EXPECT_EQ(batch.SeqLines[0], Line("1", "S"));
}

}  // namespace arbolith
