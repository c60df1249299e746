#include "batch/sequence_commands.h"

#include "model_bridge/run_command.h"
#include "run_definition/reset.h"
#include "run_definition/step_engine.h"

#include <algorithm>

namespace arbolith {

namespace {

using Field = SequenceField;

// Moves the lines behind a removed row up, as far as they follow without a gap.
void CloseGap(SequenceTexts& lines, int removed) {
    const auto gap = lines.begin() + removed;
    const auto end = std::find(gap + 1, lines.end(), "");
    if (gap + 1 == end) return;
    std::move(gap + 1, end, gap);
    (end - 1)->clear();
}

void RemoveRow(Batch& batch, int row) {
    batch.panel.Batch_Seq.RemoveItem(row);
    CloseGap(batch.SeqLines, row);
}

// The line with another text in its first field.
std::string WithPlot(const std::string& plot, const std::string& line) {
    return plot + line.substr(SequenceFields(line)[Field::kPlot].size());
}

void TakeLabelsFromLines(Batch& batch) {
    const int count = batch.panel.Batch_Seq.ListCount();
    for (int row = 0; row < count; ++row) {
        const SequenceFields fields(EntryAt(batch.SeqLines, row));
        EntryAt(batch.SeqPlots, row) = fields[Field::kPlot];
        EntryAt(batch.SeqWoods, row) = fields[Field::kWood];
    }
    std::fill(batch.SeqPlots.begin() + count, batch.SeqPlots.end(), " ");
    std::fill(batch.SeqWoods.begin() + count, batch.SeqWoods.end(), " ");
}

void ShowPlotNumber(BatchPanel& panel, bool visible) {
    for (Control* control : std::initializer_list<Control*>{&panel.Label9, &panel.plotn,
                                                            &panel.ok_btn, &panel.can_btn})
        control->SetVisible(visible);
}

void ShowMaking(MainForm& form, bool isMaking) {
    form.Run.SetVisible(!isMaking);
    form.Append_Btn.SetVisible(isMaking);
    form.CancelAppend.SetVisible(isMaking);
}

}  // namespace

void DeleteRow(Batch& batch) {
    auto& list = batch.panel.Batch_Seq;
    const int row = list.ListIndex();
    if (row == -1) return;
    RemoveRow(batch, row);
    if (row < list.ListCount()) list.SetListIndex(row);
}

void DeleteSequence(Batch& batch) {
    auto& list = batch.panel.Batch_Seq;
    const int row = list.ListIndex();
    batch.BatchDirty = true;
    if (row == -1) return;
    RemoveRow(batch, row);
    TakeLabelsFromLines(batch);
    list.SetListIndex(std::min(row, list.ListCount() - 1));
}

void CopySequence(Batch& batch) {
    auto& list = batch.panel.Batch_Seq;
    if (list.ListIndex() == -1) return;
    const auto line = WithPlot(" ", EntryAt(batch.SeqLines, list.ListIndex()));
    const int copy = list.ListCount();
    EntryAt(batch.SeqPlots, copy) = " ";
    EntryAt(batch.SeqWoods, copy) = SequenceFields(line)[Field::kWood];
    EntryAt(batch.SeqLines, copy) = line;
    list.AddItem(DescribeSequence(batch.run, line));
    list.SetListIndex(copy);
}

void AskForPlotNumber(Batch& batch) {
    auto& panel = batch.panel;
    if (panel.Batch_Seq.ListIndex() == -1) return;
    ShowPlotNumber(panel, true);
    batch.run.application.SetFocus(panel.plotn);
    const auto& plot = EntryAt(batch.SeqPlots, panel.Batch_Seq.ListIndex());
    if (plot.empty()) return;
    panel.plotn.SetText(plot);
    panel.plotn.SelectAll();
}

void TakePlotNumber(Batch& batch) {
    auto& panel = batch.panel;
    const int row = panel.Batch_Seq.ListIndex();
    const auto& plot = panel.plotn.Text();
    batch.BatchDirty = true;
    EntryAt(batch.SeqPlots, row) = plot;
    auto& line = EntryAt(batch.SeqLines, row);
    line = WithPlot(plot, line);
    panel.Batch_Seq.ReplaceItem(row, DescribeSequence(batch.run, line));
    LeavePlotNumber(batch);
}

void LeavePlotNumber(Batch& batch) {
    batch.panel.plotn.SetText("");
    ShowPlotNumber(batch.panel, false);
}

void MakeSequence(Batch& batch) {
    auto& form = batch.panel.form;
    ShowSingleRunView(form);
    ShowMaking(form, true);
    form.Append_Btn.SetEnabled(false);
    ResetInput(batch.run);
}

void CancelMaking(Batch& batch) {
    auto& form = batch.panel.form;
    ResetInput(batch.run);
    ShowBatchView(batch.panel);
    ShowMaking(form, false);
    RefreshBatchPanel(batch);
}

void AppendMadeSequence(Batch& batch) {
    if (!CommitFaultlessRun(batch.run)) return;
    AppendRunToBatch(batch, batch.panel.batch_in.Text());
    ShowMaking(batch.panel.form, false);
}

void ShowBatchView(BatchPanel& panel) {
    auto& form = panel.form;
    const bool wasHidden = !form.Batch.Visible();
    form.Batch.SetVisible(true);
    form.Qvly.SetVisible(false);
    // What the keys are told for; from a path field Delete would take a character of the path.
    if (wasHidden) form.GetApplication().SetFocus(panel.Batch_Seq);
}

void ShowSingleRunView(MainForm& form) {
    form.Batch.SetVisible(false);
    form.Qvly.SetVisible(true);
}

}  // namespace arbolith
