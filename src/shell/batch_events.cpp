// The events of the batch view: control, event, and what runs, in order.
#include "batch/pickers.h"
#include "batch/sequence_commands.h"
#include "shell/events.h"

namespace arbolith {

namespace {

constexpr int kInsertKey = 45;
constexpr int kDeleteKey = 46;

void WireFiles(Batch& batch) {
    auto& panel = batch.panel;
    panel.batch_in.onChange = panel.batch_out.onChange = [&batch] { RefreshBatchPanel(batch); };
    panel.batchFileBtn.onClick = [&batch] { PickBatch(batch); };
    panel.newBatBtn.onClick = [&batch] {
        NewBatch(batch);
        RefreshBatchPanel(batch);
    };
    panel.editBatBtn.onClick = [&batch] { EditBatch(batch); };
    panel.outFileBtn.onClick = [&batch] { PickReport(batch); };
    panel.viewBatBtn.onClick = [&batch] { ViewReport(batch); };
    panel.batchHTML.onClick = [&batch] { FollowReportFormat(batch); };
}

void WireSequences(Batch& batch) {
    auto& panel = batch.panel;
    panel.Batch_Seq.onClick = [&panel] {
        EnableRowCommands(panel, panel.Batch_Seq.ListCount() > 0);
    };
    panel.Batch_Seq.onDoubleClick = panel.editSeqBtn.onClick = [&batch] { EditSequence(batch); };
    panel.Batch_Seq.onKeyDown = [&batch](int& key) {
        if (key == kInsertKey) MakeSequence(batch);
        if (key == kDeleteKey) DeleteRow(batch);
    };
    panel.Append_Make_Btn.onClick = [&batch] { MakeSequence(batch); };
    panel.Del_Seq_Btn.onClick = [&batch] { DeleteSequence(batch); };
    panel.Copy_Seq_Btn.onClick = [&batch] { CopySequence(batch); };
    panel.PlotNum_btn.onClick = [&batch] { AskForPlotNumber(batch); };
    panel.ok_btn.onClick = [&batch] { TakePlotNumber(batch); };
    panel.can_btn.onClick = [&batch] { LeavePlotNumber(batch); };
}

void WireRunAndModes(Batch& batch) {
    auto& form = batch.panel.form;
    form.Batch_Mnu.onClick = [&batch] {
        auto& modes = batch.panel.form;
        modes.Batch_Mnu.SetChecked(true);
        modes.Single_Mnu.SetChecked(false);
        ShowBatchView(batch.panel);
    };
    batch.panel.StartBtn_Bat.onClick = [&batch] { StartBatch(batch); };
    batch.panel.Cancel_Btn_Bat.onClick = [&form] { ShowSingleRunView(form); };
    form.Append_Btn.onClick = [&batch] { AppendMadeSequence(batch); };
    form.CancelAppend.onClick = [&batch] { CancelMaking(batch); };
    form.AppendToBatch_Mnu.onClick = [&batch] { AppendToPickedBatch(batch); };
}

}  // namespace

void WireBatch(Batch& batch) {
    WireFiles(batch);
    WireSequences(batch);
    WireRunAndModes(batch);
}

}  // namespace arbolith
