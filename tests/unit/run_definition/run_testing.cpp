#include "unit/run_definition/run_testing.h"

#include "run_definition/apply_steps.h"
#include "run_definition/land_capability.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <unistd.h>

namespace arbolith {

namespace {

constexpr int kVariables = 25;

void WriteModelOutput(const std::string& path, const std::vector<ModelRow>& rows) {
    std::ofstream out(path, std::ios::binary);
    out << "5.0\r\n";
    for (const auto& row : rows) {
        std::array<double, kVariables> values{};
        values[0] = row.sage;
        values[1] = row.tdbh;
        values[2] = row.mdbh;
        values[7] = row.tf;
        values[10] = row.th;
        out << 0;
        for (const double value : values) out << ' ' << value;
        out << "\r\n";
    }
}

}  // namespace

FreshFolder::FreshFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "arbolith-XXXXXX").string();
    path_ = mkdtemp(pattern.data());
}

FreshFolder::~FreshFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

BareRun::BareRun() {
    run.probeTreatments = [this] { ++probes; };
    Choose("Softwood", "Metric");
    form.chkNat.SetValue(true);
    form.choose_Land.SetValue(true);
    form.Step6_opt1.SetValue(true);
    form.Step7_T1Age.SetValue(true);
}

void BareRun::Choose(const std::string& woodType, const std::string& units) {
    form.Choose_Swd.SetValue(woodType == "Softwood");
    form.Choose_Hwd.SetValue(woodType == "Hardwood");
    form.choose_Metric.SetValue(units == "Metric");
    form.choose_Imperial.SetValue(units == "Imperial");
    run.record.WDTYPE = woodType;
    run.globals.UnitSystem = units;
}

void BareRun::SelectSpecies(const std::string& name) {
    LoadSpeciesTables(run.species, run.record.WDTYPE, run.ShortHardwoodList);
    FillSpecies(run);
    const auto& rows = form.lstSpecies.List();
    const auto found = std::find(rows.begin(), rows.end(), name);
    ASSERT_NE(found, rows.end()) << name;
    form.lstSpecies.SetListIndex(static_cast<int>(found - rows.begin()));
    form.Step3_Spec.SetCaption(name);
}

void BareRun::SelectClass(int landCapability) {
    FillLandCapabilities(run, LandCapabilityClasses(run.record.WDTYPE));
    form.Lcap.SetListIndex(landCapability - 1);
}

void BareRun::Plant(const std::string& x, const std::string& y) {
    form.chkNat.SetValue(false);
    form.chkPlant.SetValue(true);
    form.spac1.SetText(x);
    form.spac2.SetText(y);
}

RunningProgram::RunningProgram() {
    program.Start();
    person.Tick(program.GetSplash().Timer1);
}

void RunningProgram::ModelAnswers(std::vector<ModelRow> rows) {
    host.model = [rows = std::move(rows)](const ProgramStart& start) {
        WriteModelOutput(start.folder + "/_OUTPUT.TMP", rows);
    };
}

void RunningProgram::Press(std::initializer_list<int> steps) {
    for (const int step : steps) PressStep(step);
}

void RunningProgram::PressStep(int step) {
    person.Click(*form.Find("Step" + std::to_string(step) + "_Btn"));
}

void RunningProgram::Select(ListBox& list, const std::string& row) {
    const auto& rows = list.List();
    const auto found = std::find(rows.begin(), rows.end(), row);
    ASSERT_NE(found, rows.end()) << row;
    person.SelectRow(list, static_cast<int>(found - rows.begin()));
}

void RunningProgram::EnterSoftwood(const std::string& rotationAge) {
    Press({1, 3});
    Select(form.lstSpecies, "White Pine");
    PressStep(4);
    Select(form.Lcap, "6");
    PressStep(5);
    person.Type(form.Stocking_Index, "100");
    PressStep(6);
    person.Type(form.txtRotAge, rotationAge);
    PressStep(7);
}

void RunningProgram::EnterHardwood(const std::string& rotationAge) {
    PressStep(1);
    person.Click(form.Choose_Hwd);
    PressStep(3);
    Select(form.lstSpecies, "Red Oak");
    PressStep(4);
    Select(form.Lcap, "3");
    PressStep(5);
    person.Type(form.Stocking_Index, "100");
    PressStep(6);
    person.Type(form.txtRotAge, rotationAge);
    PressStep(7);
}

int RunningProgram::Level() const {
    return LevelOf(form);
}

int LevelOf(const MainForm& form) {
    const std::array<bool, 9> enabled = {
        form.Step1_Btn.Enabled(), form.Step2_Btn.Enabled(), form.Step3_Btn.Enabled(),
        form.Step4_Btn.Enabled(), form.Step5_Btn.Enabled(), form.Step6_Btn.Enabled(),
        form.Step7_Btn.Enabled(), form.Run.Enabled(),       form.Append_Btn.Enabled()};
    const auto count = static_cast<int>(std::count(enabled.begin(), enabled.end(), true));
    if (!std::is_sorted(enabled.rbegin(), enabled.rend())) return -1;
    // Level 7 enables two at once, the seventh step's button and Run.
    if (count == 7) return -1;
    return count > 7 ? count - 1 : count;
}

}  // namespace arbolith
