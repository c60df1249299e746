// The reader of batch files: whatever a file holds, reading it ends without an error that escapes,
// the rows stand for the lines that were taken, and what was read can be written and read again.
// Every row can be taken into the step form.
#include "batch/batch.h"
#include "batch/sequence_commands.h"
#include "fuzz/counting_host.h"
#include "fuzz/fuzzer.h"
#include "platform/runtime_error.h"
#include "shell/program.h"
#include "unit/platform/temporary_folder.h"

#include <algorithm>
#include <filesystem>

namespace arbolith {

namespace {

class Reading {
public:
    // The name of a report could lead anywhere: a run ends before it comes to that.
    Reading() {
        program_.Start();
        std::filesystem::create_directory(folder_.PathOf("_SOFT.TMP"));
    }

    void Open(const std::string& bytes) {
        host_.boxes = 0;
        batch_.BatchPath.clear();
        Read("stands.qvb", bytes);
        Require(host_.boxes <= kMostBoxes, "a reading shows few boxes");
        Require(panel_.form.Batch.Visible() && !panel_.form.Qvly.Visible(), "the panel shows");
        Require(Rows() <= kSequences, "a batch holds no more than fits");
        if (!batch_.BatchPath.empty()) WriteAgain();
        EditSome();
    }

private:
    // A failed read, and a failed run.
    static constexpr int kMostBoxes = 2;
    static constexpr int kEdited = 3;

    int Rows() const { return panel_.Batch_Seq.ListCount(); }

    void Read(const std::string& name, const std::string& bytes) {
        folder_.Write(name, bytes);
        ReadBatch(batch_, folder_.PathOf(name));
    }

    // The lines that have a row come back, if nothing in them ends an item.
    void WriteAgain() {
        std::vector<std::string> lines(batch_.SeqLines.begin(), batch_.SeqLines.begin() + Rows());
        panel_.batch_out.SetText(folder_.PathOf("report.txt"));
        WriteBatch(batch_, folder_.PathOf("again.qvb"));
        Require(!batch_.BatchDirty, "a batch that was read can be written");
        ReadBatch(batch_, folder_.PathOf("again.qvb"));
        const bool isPlain = std::none_of(lines.begin(), lines.end(), [](const std::string& line) {
            return line.empty() || line.find_first_of(",\"\r\n") != std::string::npos ||
                   line == "sequences:";
        });
        if (!isPlain) return;
        Require(Rows() == static_cast<int>(lines.size()), "every sequence comes back");
        Require(std::equal(lines.begin(), lines.end(), batch_.SeqLines.begin(), IsSameLine),
                "a line comes back as it was");
    }

    // An empty label comes back as a blank one, and blanks before a label don't come back.
    static bool IsSameLine(const std::string& written, const std::string& read) {
        const auto begin = written.find_first_not_of(" \t");
        const auto readBegin = read.find_first_not_of(" \t");
        return begin != std::string::npos && readBegin != std::string::npos &&
               written.substr(begin) == read.substr(readBegin);
    }

    void EditSome() {
        for (int row = 0; row < std::min(Rows(), kEdited); ++row) {
            panel_.Batch_Seq.SetListIndex(row);
            try {
                EditSequence(batch_);
                CopySequence(batch_);
            } catch (const RuntimeError&) {
                // Told in a box by the event that it ended.
            }
        }
    }

    TemporaryFolder folder_;
    CountingHost host_;
    Application application_{host_, folder_.Path(), ""};
    Program program_{application_};
    Batch& batch_ = program_.GetBatch();
    BatchPanel& panel_ = batch_.panel;
};

}  // namespace

void FuzzOne(const std::string& input) {
    static Reading reading;
    reading.Open(input);
}

const std::vector<std::string>& FuzzWords() {
    static const std::vector<std::string> words = {
        "sequences:\r\n",
        "output ",
        "default",
        "default html",
        "default txt",
        "autorun ",
        "true",
        "false",
        "#",
        "1\tS\tY\tY\tRS\t6\t0.0\t1\t0.0\t0.0\t80\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0."
        "0\t100\t\r\n",
        " \tH\tN\tN\tSM\t0\t60\t1\t0\t0\t90\t0\t40\t60\t0\t0\t30\t25\t0\t90\t\r\n",
        "S",
        "H",
        "Y",
        "N",
        "WP",
        "RO",
        "0",
        "0.0",
        "1.8",
        "20",
        "55",
        "80",
        "-1",
        "32767",
        "32768",
        "1E400",
        std::string(400, '9'),
        ",",
        "\"",
        "\r\n",
        "\n",
        "\r",
        "\t",
        " ",
        std::string(1, '\0'),
        "\xEF\xBB\xBF"};
    return words;
}

}  // namespace arbolith
