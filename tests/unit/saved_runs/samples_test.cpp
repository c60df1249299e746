// The sample stands: each opens, and is the file that the program would write for it.
#include "run_definition/step_engine.h"
#include "saved_runs/run_file.h"
#include "unit/saved_runs/saved_testing.h"

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <vector>

namespace arbolith {
namespace {

std::vector<std::string> Samples() {
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::directory_iterator(ARBOLITH_SAMPLES))
        if (entry.path().extension() == ".qvn") paths.push_back(entry.path().string());
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::string BytesOf(const std::string& path) {
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    return bytes.str();
}

class SampleStand : public SavedRunsTest, public testing::WithParamInterface<std::string> {};

TEST_P(SampleStand, Opens) {
    ReadRunFile(saved, GetParam());
    EXPECT_EQ(saved.RunFilePath, GetParam());
    // All that is missing is the amount of a treatment, which only the model can allow.
    for (const auto& box : host.boxes) EXPECT_NE(box.text.find("reatment #1"), std::string::npos);
    run.StepErrorFlag = false;
    CheckSteps(run, 6);
    EXPECT_FALSE(run.StepErrorFlag) << run.StepErrorText;
    EXPECT_EQ(host.starts.empty(), form.Age1.Text().empty() && form.DBH1.Text().empty());
}

TEST_P(SampleStand, IsWrittenAsItStands) {
    SwitchToAdvancedMode();
    ReadRunFile(saved, GetParam());
    const auto bytes = BytesOf(GetParam());
    const auto file = ParseRunFile(bytes);
    auto record = run.record;
    // A spacing doesn't come back.
    record.ISD = file.ISD == "0.0" ? 0 : std::stod(file.ISD);
    std::string text;
    for (const auto& line : RunFileLines(record, run.globals.UnitSystem)) text += line + "\r\n";
    EXPECT_EQ(text, bytes);
}

INSTANTIATE_TEST_SUITE_P(Samples, SampleStand, testing::ValuesIn(Samples()), [](const auto& test) {
    auto name = std::filesystem::path(test.param).stem().string();
    std::erase(name, '-');
    return name;
});

}  // namespace
}  // namespace arbolith
