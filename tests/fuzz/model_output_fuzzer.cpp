// The readers of a model's output: whatever a model writes, a batch run, a single run and the
// treatment probe end in one of the told ways, with their files closed and the program usable.
#include "batch/batch.h"
#include "bench/white_pine.h"
#include "fuzz/counting_host.h"
#include "fuzz/fuzzer.h"
#include "platform/runtime_error.h"
#include "shell/program.h"
#include "unit/platform/temporary_folder.h"

namespace arbolith {

namespace {

// Every program is over at once, and reports are saved under the given name.
class FuzzHost : public CountingHost {
public:
    std::optional<FileChoice> ChooseFile(const FileQuestion&) override { return choice; }
    OpenResult Open(const std::string&) override { return OpenResult::kOpened; }
    std::unique_ptr<Process> Start(const ProgramStart&) override {
        return std::make_unique<EndedProcess>();
    }
    void WaitForEnd(Process&, const std::function<bool()>&) override {}

    FileChoice choice;

private:
    class EndedProcess : public Process {
    public:
        bool HasEnded() override { return true; }
        int EndDescriptor() const override { return -1; }
    };
};

constexpr const char* kSequences[] = {
    "1\tS\tY\tN\tWP\t6\t0.0\t1736\t2.4\t2.4\t80\t0.0\t40.0\t60.0\t0.0\t0.0\t25.0\t25.0\t0.0\t100\t",
    " \tH\tN\tY\tRM\t0\t51\t1\t0.0\t0.0\t90\t0.0\t20.0\t0.0\t0.0\t0.0\t0.0\t0.0\t7.0\t75\t"};

class Outputs {
public:
    Outputs() {
        program_.Start();
        user_.Tick(program_.GetSplash().Timer1);
        bench::EnterWhitePine(user_, program_.Run().form);
        batch_.panel.batch_out.SetText(folder_.PathOf("report.txt"));
        int slot = 0;
        for (const auto* line : kSequences) {
            EntryAt(batch_.SeqLines, slot++) = line;
            batch_.panel.Batch_Seq.AddItem("row");
        }
    }

    void Read(const std::string& output) {
        for (const auto* name : {"_OUTPUT.TMP", "_SOFTOUT.TMP", "_HARDOUT.TMP"})
            folder_.Write(name, output);
        RunWholeBatch(false);
        RunWholeBatch(true);
        Probe();
        RunSingle();
    }

private:
    void RunWholeBatch(bool html) {
        auto& panel = batch_.panel;
        panel.batchHTML.SetValue(html);
        host_.boxes = 0;
        StartBatch(batch_);
        Require(host_.boxes <= 1, "a batch run shows at most one box");
        Require(panel.StartBtn_Bat.Enabled(), "the panel is usable again");
        RequireFreeNumbers();
        if (host_.boxes > 0) return;
        Require(panel.TotalProg.Value() == panel.TotalProg.Max(), "a whole run fills its bar");
        const auto report = folder_.Read(html ? "report.html" : "report.txt");
        Require(report.starts_with(html ? "<!DOCTYPE" : "\t\tWOOD\t"), "a report has its head");
        Require(!html || report.ends_with("</HTML>\r\n\r\n"), "a page has its end");
    }

    // A new time of treatment asks the model what is possible.
    void Probe() {
        auto& form = program_.Run().form;
        host_.boxes = 0;
        form.Age1.SetText("40");
        form.Age1.SetText("");
        Require(host_.boxes == 0, "a probe says nothing of an output that it can't read");
        RequireFreeNumbers();
    }

    void RunSingle() {
        host_.boxes = 0;
        user_.Click(program_.Run().form.Run);
        Require(host_.boxes == 0, "a run says nothing of an output that it can't read");
        RequireFreeNumbers();
        auto& output = program_.Results().output.Get();
        if (!output.form.Visible()) return;
        Require(output.form.Table.Rows() >= 2, "a table has its codes");
        Save(output, 1, "table.txt");
        Save(output, 2, "table.html");
        output.form.Hide();
    }

    void Save(Output& output, int filter, const std::string& name) {
        host_.choice = {folder_.PathOf(name), filter};
        output.form.Save_Mnu.Raise(output.form.Save_Mnu.onClick);
        Require(!folder_.Read(name).empty(), "a table can be saved");
    }

    void RequireFreeNumbers() {
        auto& files = application_.Files();
        for (const int number : {1, 2, 4, 5, 9}) {
            Require(ErrorOfOpening(number) == 0, "a file number is free again");
            files.Close(number);
        }
    }
    int ErrorOfOpening(int number) {
        try {
            application_.Files().OpenForInput(number, folder_.PathOf("_OUTPUT.TMP"));
            return 0;
        } catch (const RuntimeError& error) {
            return static_cast<int>(error.Number());
        }
    }

    TemporaryFolder folder_;
    FuzzHost host_;
    Application application_{host_, folder_.Path(), ""};
    Program program_{application_};
    UserActions user_{application_};
    Batch& batch_ = program_.GetBatch();
};

}  // namespace

void FuzzOne(const std::string& input) {
    static Outputs outputs;
    outputs.Read(input);
}

const std::vector<std::string>& FuzzWords() {
    static const std::vector<std::string> words = {
        "0 5 1.5 1.5 1.5 1.5 1.5 1.5 1.5 1.5 1.5 1.5 1.5 1.5 1.5 1.5 1.5 1.5 1.5 1.5 1.5 1.5 1.5 "
        "1.5 1.5 1.5\r\n",
        "1 40 20 20 20 20 20 20 900 900 900 8 8 8 1 1 1 1 1 1 1 1 1 1 1 1\r\n",
        "4.5\r\n",
        "0",
        "0.0",
        "-1",
        "1024",
        "1025",
        "32768",
        "1E5",
        "1E400",
        std::string(400, '9'),
        std::string(40000, '7'),
        "NaN",
        "inf",
        "+",
        "-.",
        ",",
        "\"",
        "\r\n",
        "\n",
        "\r",
        "\t",
        " ",
        std::string(1, '\0'),
        "\x1A",
        "\xFF",
        "\xEF\xBB\xBF"};
    return words;
}

}  // namespace arbolith
