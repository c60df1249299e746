#include "cli/batch_lines.h"

#include "batch/batch_text.h"
#include "platform/code_page.h"

#include <algorithm>

namespace arbolith::console {

namespace {

constexpr int kFileNumber = 1;

std::vector<std::string> SequenceItems(Batch& batch, const std::string& path) {
    auto items = ReadItems(batch.run.application.Files(), kFileNumber, path);
    items.erase(items.begin(), items.begin() + static_cast<long>(FirstSequence(items)));
    std::erase(items, "");
    return items;
}

std::string Quoted(const std::string& line) {
    return '"' + ToUtf8(line) + '"';
}

// The read ended at the first line that has no row.
std::string WhyNotRead(Batch& batch, const std::vector<std::string>& items) {
    if (items.size() > kSequences)
        return "it holds more than " + std::to_string(kSequences) + " stands";
    int rows = batch.panel.Batch_Seq.ListCount();
    for (std::size_t i = 0; i < items.size(); ++i) {
        const bool isSequence = !batch.SeqLines[i].empty();
        if (isSequence && rows == 0)
            return "a field of the stand " + Quoted(items[i]) + " can't be understood";
        if (isSequence) --rows;
        if (!isSequence && rows == 0) return Quoted(items[i]) + " is no stand";
    }
    return "it can't be read as a batch file";
}

}  // namespace

LineJudgement JudgeLines(Batch& batch, const std::string& path) {
    const auto items = SequenceItems(batch, path);
    LineJudgement judgement;
    judgement.isRead = batch.BatchPath == path;
    if (!judgement.isRead) {
        judgement.reason = WhyNotRead(batch, items);
        return judgement;
    }
    const auto rows = static_cast<std::size_t>(batch.panel.Batch_Seq.ListCount());
    for (std::size_t i = 0; i < items.size(); ++i) {
        // What is no stand may stand behind as many stands as there can be.
        if (i < batch.SeqLines.size() && !batch.SeqLines[i].empty()) continue;
        judgement.leftOut.push_back(items[i]);
        judgement.breaksTheBatch = judgement.breaksTheBatch || i < rows;
    }
    return judgement;
}

}  // namespace arbolith::console
