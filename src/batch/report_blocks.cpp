#include "batch/report_blocks.h"

#include "batch/html_report.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

#include <utility>

namespace arbolith {

namespace {

// A model's row is longer, the years to breast height of a block are shorter.
constexpr std::size_t kShortestRow = 11;

/// The lines of a model's output. Blank lines behind the last one don't count.
class OutputLines {
public:
    OutputLines(NumberedFiles& files, int number) : files_(files), number_(number) { ReadAhead(); }

    /// Takes the next line; false where there is none.
    bool Take(std::string& line) {
        if (blanksAhead_ > 0) {
            --blanksAhead_;
            line.clear();
            return true;
        }
        if (!hasLineAhead_) return false;
        line.swap(lineAhead_);
        ReadAhead();
        return true;
    }
    /// Whether the line that was taken is the last one.
    bool TookLast() const { return !hasLineAhead_; }

private:
    void ReadAhead() {
        hasLineAhead_ = false;
        while (!hasLineAhead_ && !files_.AtEndOfFile(number_)) {
            lineAhead_ = files_.ItemRead(number_);
            hasLineAhead_ = !lineAhead_.empty();
            if (!hasLineAhead_) ++blanksAhead_;
        }
        if (!hasLineAhead_) blanksAhead_ = 0;
    }

    NumberedFiles& files_;
    int number_;
    std::string lineAhead_;
    bool hasLineAhead_ = false;
    std::size_t blanksAhead_ = 0;
};

/// Writes the blocks in the format that is chosen at each moment: it may change while a model runs.
class BlockWriter {
public:
    explicit BlockWriter(Batch& batch) : batch_(batch) {}

    void AddHead(std::string_view line) {
        if (IsHtml() && !firstTable_) Print(kTableEnd);
        firstTable_ = false;
        ytbh_ = Trimmed(line);
        tablePending_ = true;
    }

    void AddRow(std::string_view line) {
        SplitRow(line, datavals_);
        const int sequence = ToInt16(WholePart(Val(datavals_[0])));
        const auto& plot = EntryAt(batch_.SeqPlots, sequence);
        if (std::exchange(tablePending_, false)) PrintHead(plot, sequence);
        if (WholePart(Val(datavals_[1])) < 1) return;
        BatchIntegerize(datavals_);
        PrintRow(plot);
    }

private:
    bool IsHtml() const { return batch_.panel.batchHTML.Value(); }
    void Print(std::string_view text) {
        batch_.run.application.Files().PrintLine(kReportFile, text);
    }

    void PrintHead(const std::string& plot, int sequence) {
        if (IsHtml()) {
            Print(BatchGetHTMLTableHeader(batch_.run, ytbh_, plot,
                                          EntryAt(batch_.SeqLines, sequence)));
            return;
        }
        Print("");
        Print("PLOT#: " + plot + "\tYTBH: " + ytbh_);
        Print(std::string(kPlotHead) + "\t" + VariableHeads());
    }

    void PrintRow(const std::string& plot) {
        if (IsHtml()) {
            PutRowOutput(datavals_, htmlRow_);
            Print(htmlRow_);
            return;
        }
        BatchGetDataLengths(datavals_, plot, datalengths_);
        Print(BatchGetLineOutput(datavals_, plot, datalengths_));
    }

    Batch& batch_;
    DataValues datavals_;
    DataLengths datalengths_{};
    std::string ytbh_;
    std::string htmlRow_;
    bool tablePending_ = false;  ///< A head was read and isn't written yet.
    bool firstTable_ = true;     ///< No head was read yet.
};

}  // namespace

// Values are a few characters long: a search of the library's for each costs more than looking.
void SplitRow(std::string_view row, DataValues& datavals) {
    row = Trimmed(row);
    const char* at = row.data();
    const char* const end = at + row.size();
    for (std::size_t i = 0; i + 1 < datavals.size(); ++i) {
        const char* const value = at;
        while (at != end && *at != ' ') ++at;
        if (at == end) throw RuntimeError(ErrorNumber::kInvalidCall);
        datavals[i].assign(value, at);
        while (*at == ' ') ++at;
    }
    datavals.back().assign(at, end);
}

void ForEachOutputLine(NumberedFiles& files, int outputFile,
                       const std::function<void(std::string_view)>& head,
                       const std::function<void(std::string_view)>& row) {
    OutputLines lines(files, outputFile);
    for (std::string line; lines.Take(line);) {
        const bool isRow = line.size() >= kShortestRow || lines.TookLast();
        (isRow ? row : head)(line);
    }
}

void WriteBlocks(Batch& batch, int outputFile) {
    BlockWriter blocks(batch);
    ForEachOutputLine(
        batch.run.application.Files(), outputFile,
        [&blocks](std::string_view line) { blocks.AddHead(line); },
        [&blocks](std::string_view line) { blocks.AddRow(line); });
}

}  // namespace arbolith
