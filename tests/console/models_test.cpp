#include "console/console_run.h"

#include <filesystem>

namespace arbolith {

namespace fs = std::filesystem;

class Models : public ConsoleTest {
public:
    Models() {
        work.Write("stand.qvn", StandLines().Text());
        work.Write("stands.qvb", BatchText({SequenceLine("1", "S"), SequenceLine("2", "H")}));
    }
    Ended RunStand() const { return Run({"run", "stand.qvn"}); }
    Ended RunBatch() const { return Run({"batch", "stands.qvb", "--output", "-"}); }
};

TEST_F(Models, AMissingOneIsTold) {
    fs::remove(models.PathOf("SWQVL.exe"));
    for (const auto& ended : {RunStand(), RunBatch()}) {
        EXPECT_EQ(ended.status, 5);
        EXPECT_EQ(ended.output, "");
        EXPECT_EQ(ended.errors,
                  "arbolith-cli: " + models.PathOf("SWQVL.exe") + ": No such file or directory\n");
    }
    EXPECT_TRUE(LeftNothingBehind());
}

TEST_F(Models, OneThatIsNotNeededMayBeMissing) {
    fs::remove(models.PathOf("HWQVL.exe"));
    EXPECT_EQ(RunStand().status, 0);
}

TEST_F(Models, OneThatIsNoProgramIsTold) {
    fs::remove(models.PathOf("SWQVL.exe"));
    models.Write("SWQVL.exe", "no program");
    EXPECT_EQ(RunStand().errors,
              "arbolith-cli: " + models.PathOf("SWQVL.exe") + ": Permission denied\n");
}

TEST_F(Models, OneThatWritesNothingIsTold) {
    ReplaceModels("exit 0");
    const auto stand = RunStand();
    EXPECT_EQ(stand.status, 5);
    EXPECT_TRUE(stand.errors.starts_with("arbolith-cli: SWQVL.exe left no result")) << stand.errors;
    const auto batch = RunBatch();
    EXPECT_EQ(batch.status, 5);
    EXPECT_EQ(batch.errors, "arbolith-cli: SWQVL.exe left no result\n");
}

TEST_F(Models, OneThatCrashesIsTold) {
    ReplaceModels("kill -SEGV $$");
    for (const auto& ended : {RunStand(), RunBatch()}) {
        EXPECT_EQ(ended.status, 5);
        EXPECT_EQ(ended.errors, "arbolith-cli: SWQVL.exe: it was ended by signal 11\n");
    }
}

TEST_F(Models, OneThatWritesGarbageIsTold) {
    const std::string print = R"(printf 'no numbers, but a text\r\n')";
    ReplaceModels(print + " > _OUTPUT.TMP; " + print + " > _SOFTOUT.TMP");
    const auto stand = RunStand();
    EXPECT_EQ(stand.status, 5);
    EXPECT_EQ(stand.errors, "arbolith-cli: SWQVL.exe left a result that can't be used\n");
    const auto batch = RunBatch();
    EXPECT_EQ(batch.status, 5);
    EXPECT_EQ(batch.errors, "arbolith-cli: HWQVL.exe left no result\n");
    ReplaceModels(print + " > _SOFTOUT.TMP; " + print + " > _HARDOUT.TMP");
    EXPECT_EQ(RunBatch().errors,
              "arbolith-cli: SWQVL.exe or HWQVL.exe left a result that can't be used\n");
}

// A row of a stand that the batch doesn't have; as text and as a page it has a place.
TEST_F(Models, OneThatWritesOfAnotherStandIsTold) {
    work.Write("stands.qvb", BatchText({SequenceLine("1", "S")}));
    ReplaceModels(
        R"(printf '4\r\n77 5 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1\r\n' > _SOFTOUT.TMP)");
    const auto ended = RunBatch();
    EXPECT_EQ(ended.status, 5);
    EXPECT_EQ(ended.errors, "arbolith-cli: SWQVL.exe left a result that can't be used\n");
}

// The probes before the run leave results, too.
TEST_F(Models, AnEarlierResultIsNeverTakenForANewOne) {
    StandLines thinned;
    thinned.treatments = "60,0,0.0,0.0,30,0,0.0";
    work.Write("stand.qvn", thinned.Text());
    EXPECT_EQ(RunStand().status, 0);
    ReplaceModels("calls=\"" + models.Path() +
                  "/.calls\"; echo x >> \"$calls\"; if [ $(/usr/bin/wc "
                  "-l < \"$calls\") -lt 5 ]; then exec \"" +
                  std::string(SOFTWOOD_PROGRAM) + "\"; fi");
    const auto ended = RunStand();
    EXPECT_EQ(ended.status, 5) << ended.output;
    EXPECT_TRUE(ended.errors.starts_with("arbolith-cli: SWQVL.exe left no result"));
}

TEST_F(Models, TheirFolderStaysAsItIs) {
    const char* names[] = {"_OUTPUT.TMP", "_REPORT.TMP", "report", "report.out", "stands.txt"};
    for (const auto* name : names) models.Write(name, "not ours");
    EXPECT_EQ(RunStand().status, 0);
    EXPECT_EQ(RunBatch().status, 0);
    for (const auto* name : names) EXPECT_EQ(models.Read(name), "not ours") << name;
    EXPECT_EQ(std::distance(fs::directory_iterator(models.Path()), {}), 7);
}

TEST_F(Models, FilesBesideThemAreInReach) {
    models.Write("table.txt", "7.25");
    ReplaceModels("read years < table.txt; printf '%s\\r\\n' $years > _OUTPUT.TMP");
    const auto ended = RunStand();
    EXPECT_NE(ended.output.find("7.25 Years from Stump"), std::string::npos) << ended.errors;
}

TEST_F(Models, ThatGiveNoRowsAreTold) {
    ReplaceModels(R"(printf '7.25\r\n' > _OUTPUT.TMP)");
    for (const char* format : {"text", "html", "csv"}) {
        const auto ended = Run({"run", "stand.qvn", "--format", format});
        EXPECT_EQ(ended.status, 7);
        EXPECT_EQ(ended.errors, "arbolith-cli: stand.qvn: the stand has no result\n");
        EXPECT_NE(ended.output, "");
    }
}

TEST_F(Models, RunsAtTheSameTimeDontDisturbEachOther) {
    std::vector<pid_t> processes;
    std::vector<std::string> alone;
    for (int i = 0; i < 6; ++i) {
        StandLines stand;
        stand.site = "0.0," + std::to_string(4 + i);
        const auto name = "stand" + std::to_string(i) + ".qvn";
        work.Write(name, stand.Text());
        alone.push_back(Run({"run", name}).output);
    }
    processes.reserve(alone.size());
    for (std::size_t i = 0; i < alone.size(); ++i) {
        const auto number = std::to_string(i);
        processes.push_back(Start({"run", "stand" + number + ".qvn"}, number));
    }
    for (std::size_t i = 0; i < alone.size(); ++i) {
        const auto ended = WaitFor(processes[i], std::to_string(i));
        EXPECT_EQ(ended.status, 0) << ended.errors;
        EXPECT_EQ(ended.output, alone[i]);
    }
}

}  // namespace arbolith
