// What the tests of a batch run stand on: an open batch in an application folder of its own, and a
// model in whose place a text is written.
#pragma once

#include "batch/batch.h"
#include "unit/model_bridge/bridge_testing.h"
#include "unit/platform/fake_host.h"

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

namespace arbolith {

class BatchTest : public testing::Test {
protected:
    BatchTest() {
        batch.panel.batch_out.SetText(folder.PathOf("r.txt"));
        host.model = [this](const ProgramStart& start) {
            const auto output = outputs.find(start.FileName());
            if (output == outputs.end()) return;
            folder.Write(start.FileName() == "SWQVL.exe" ? "_SOFTOUT.TMP" : "_HARDOUT.TMP",
                         output->second);
        };
    }

    /// Opens a batch of these lines.
    void Fill(const std::vector<std::string>& lines) {
        batch.SeqLines.fill("");
        batch.SeqPlots.fill(" ");
        batch.SeqWoods.fill("");
        batch.panel.Batch_Seq.Clear();
        for (std::size_t i = 0; i < lines.size(); ++i) {
            batch.SeqLines[i] = lines[i];
            batch.panel.Batch_Seq.AddItem("row");
        }
    }

    /// A sequence line of a natural white pine or red maple stand.
    static std::string Line(const std::string& plot, const std::string& wood) {
        return plot + "\t" + wood + "\t" + Fields(wood);
    }
    /// Its fields from the units on, with the closing tab.
    static std::string Fields(const std::string& wood) {
        return std::string("Y\tY\t") + (wood == "H" ? "RM" : "WP") +
               "\t3\t0.0\t1\t0.0\t0.0\t80\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t100\t";
    }

    /// A row of a model's output; the variables behind the age are 1.5.
    static std::string Row(const std::string& sequence, const std::string& age) {
        std::string row = sequence + " " + age;
        for (int variable = 2; variable <= 25; ++variable) row += " 1.5";
        return row;
    }
    /// What becomes of it in a text report.
    static std::string ReportRow(const std::string& plot, const std::string& age) {
        return std::string(8 - plot.size(), ' ') + plot + "\t" + std::string(4 - age.size(), ' ') +
               age +
               "\t 1.5\t 1.5\t 1.5\t  1.5\t  1.5\t  1.5\t     1\t   1\t   1\t 1.5\t 1.5\t 1.5\t"
               "    1\t    1\t    1\t    1.5\t    1.5\t    1.5\t    1\t    1\t    1\t    1.5\t"
               "    1.5\t    1.5\r\n";
    }
    /// The head of a block in a text report.
    static std::string ReportHead(const std::string& plot, const std::string& years) {
        return "\r\nPLOT#: " + plot + "\tYTBH: " + years +
               "\r\nPLOT #  \tSAGE\tTDBH\tMDBH\tSDBH\t  TBA\t  MBA\t  SBA\t    TF\t  MF\t  SF\t"
               "  TH\t  MH\t  SH\t TVOL\t MVOL\t SVOL\t   TMAI\t   MMAI\t   SMAI\tCTVOL\tCMVOL\t"
               "CSVOL\t  CTMAI\t  CMMAI\t  CSMAI\r\n";
    }
    /// The first line of a text report.
    static std::string FieldHeads() {
        return "\t\tWOOD\tUNIT\tNAT\tSPEC\tLC\tSI\tFREQ\tXSPC\tYSPC\tRAGE\tRDBH\tT1AGE\tT2AGE\t"
               "T1DBH\tT2DBH\tIBA1\tIBA2\tISD\tSTK%\r\n";
    }

    std::string Report() const { return folder.Read("r.txt"); }

    TestFolder folder;
    FakeHost host;
    Application application{host, folder.Path(), ""};
    RunDefinition run{application};
    Batch batch{run};
    /// What each model writes; one that isn't named writes nothing.
    std::map<std::string, std::string> outputs;
};

inline constexpr const char* kUnknownError =
    "Unknown error. Possible problem with output formatting function, or web browser not found.\n";

}  // namespace arbolith
