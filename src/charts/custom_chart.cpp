#include "charts/custom_chart.h"

#include "forms/application.h"
#include "model_bridge/variables.h"

#include <algorithm>
#include <cstddef>

namespace arbolith {

namespace {

constexpr Size kClientSize = {9000, 6135};
constexpr int kFamilyWidth = 2040;
constexpr int kFamilyHeight = 1680;
constexpr int kPitch = 375;

// It can stand on both axes.
constexpr const char* kOnBothAxes = "SDBH";

const char* CodeOf(int column) {
    return kVariableCodes.at(static_cast<std::size_t>(column - 1));
}

}  // namespace

VariableFamily::VariableFamily(Control& parent, const char* frameName, const char* caption,
                               const char* arrayName, int first, int left, int top)
    : firstColumn(first),
      frame(parent, frameName, caption, {left, top, kFamilyWidth, kFamilyHeight}),
      boxes{CheckBox(frame, arrayName, CodeOf(first), {240, 360, 1560, kPitch}),
            CheckBox(frame, arrayName, CodeOf(first + 1), {240, 360 + kPitch, 1560, kPitch}),
            CheckBox(frame, arrayName, CodeOf(first + 2), {240, 360 + 2 * kPitch, 1560, kPitch})} {
    for (int index = 0; auto& box : boxes) box.SetIndex(index++);
}

CustomChart::CustomChart(Application& application, GraphBuilder& graphs)
    : Form(application, "Chart_Custom", "Custom Chart Options", kClientSize), graphs_(graphs) {
    for (const char* code : kVariableCodes) cmbDomainSelect.AddItem(code);
    cmbDomainSelect.SetListIndex(0);
}

std::array<CheckBox*, 24> CustomChart::Boxes() {
    std::array<CheckBox*, 24> boxes{};
    for (auto* family : {&DBH, &BA, &F, &H, &VOL, &MAI, &CVOL, &CMAI})
        for (std::size_t i = 0; i < family->boxes.size(); ++i)
            boxes.at(static_cast<std::size_t>(family->firstColumn) - 2 + i) = &family->boxes.at(i);
    return boxes;
}

void CustomChart::ClearYChecks() {
    for (CheckBox* box : Boxes()) box->SetValue(false);
}

void CustomChart::EnableYChecks() {
    for (CheckBox* box : Boxes()) box->SetEnabled(true);
}

void CustomChart::DisableYCheck(CheckBox& box) {
    box.SetValue(false);
    box.SetEnabled(false);
}

void CustomChart::ChooseDomain() {
    EnableYChecks();
    const auto domain = cmbDomainSelect.Text();
    if (domain == kOnBothAxes) return;
    for (CheckBox* box : Boxes())
        if (box->Caption() == domain) DisableYCheck(*box);
}

void CustomChart::DrawChoice() {
    std::string columns = cmbDomainSelect.Text();
    bool none = true;
    for (const CheckBox* box : Boxes()) {
        if (!box->Value()) continue;
        none = false;
        columns += "," + box->Caption();
    }
    if (none) {
        GetApplication().ShowBox("You must select at least one Y-Axis Variable to graph.", "",
                                 BoxIcon::kExclamation);
        return;
    }
    Hide();
    graphs_.GraphCustom(columns, "");
}

void CustomChart::CancelChoice() {
    ClearYChecks();
    Hide();
}

}  // namespace arbolith
