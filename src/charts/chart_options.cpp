#include "charts/chart_options.h"

#include "forms/application.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

#include <string>
#include <utility>

namespace arbolith {

namespace {

constexpr Size kClientSize = {4440, 3885};

// The number that a field holds, blanks around it left out. Throws a type mismatch for none.
double NumberIn(const TextBox& field) {
    return ParseReal(Trimmed(field.Text()));
}

// One that is too large for any number is one all the same.
bool IsNumber(const TextBox& field) {
    try {
        NumberIn(field);
    } catch (const RuntimeError& error) {
        return error.Number() != ErrorNumber::kTypeMismatch;
    }
    return true;
}

}  // namespace

ChartOptions::ChartOptions(Application& application, AtFirstUse<ChartWindow>& chartWindow)
    : Form(application, "Chart_Opt", "Chart Options", kClientSize), chartWindow_(chartWindow) {
    Max.SetVisible(false);
    XY.SetVisible(false);
    Reload_Click();
}

ChartOptions::AxisFields ChartOptions::FieldsOfX() {
    return {arbolith::Chart::kAxisX, "X", XMax, XMin, XDMaj, XDMin, AutoX, autosetx};
}

ChartOptions::AxisFields ChartOptions::FieldsOfY() {
    return {arbolith::Chart::kAxisY, "Y", YMax, YMin, YDMaj, YDMin, AutoY, autosety};
}

void ChartOptions::ReloadAxis(const AxisFields& fields) {
    const auto& scale = Chart().Axis(fields.axis).Scale;
    fields.automatic.SetValue(fields.autoset);
    fields.max.SetText(DefaultText(Chart().Maximum(fields.axis)));
    fields.min.SetText(DefaultText(Chart().Minimum(fields.axis)));
    fields.majorDivision.SetText(std::to_string(scale.MajorDivision));
    fields.minorDivision.SetText(std::to_string(scale.MinorDivision));
}

void ChartOptions::Reload_Click() {
    for (Control* control : std::initializer_list<Control*>{&XMax, &XMin, &XDMaj, &XDMin, &AutoX})
        control->SetEnabled(chartWindow_.Get().XYEnabled);
    ReloadAxis(FieldsOfX());
    ReloadAxis(FieldsOfY());
    Legend.SetValue(Chart().LegendVisible());
    Grid.SetValue(Chart().Axis(arbolith::Chart::kAxisX).MajorPen != PenStyle::kNone);
}

bool ChartOptions::FieldsAreNumbers(const AxisFields& fields) {
    const std::pair<TextBox*, const char*> places[] = {{&fields.max, "Max"},
                                                       {&fields.min, "Min"},
                                                       {&fields.majorDivision, "Major Div"},
                                                       {&fields.minorDivision, "Minor Div"}};
    for (const auto& [field, place] : places) {
        if (IsNumber(*field)) continue;
        GetApplication().ShowBox(
            std::string("Please enter a number for ") + fields.name + " " + place, "Input Error",
            BoxIcon::kExclamation);
        GetApplication().SetFocus(*field);
        return false;
    }
    return true;
}

void ChartOptions::ApplyAxis(const AxisFields& fields) {
    const auto change = [&](const std::function<void(ToldScale&)>& set) {
        Chart().ChangeAxis(fields.axis, [&](ChartAxis& axis) { set(axis.Scale); });
    };
    change([&](ToldScale& scale) { scale.Auto = fields.autoset; });
    change([&](ToldScale& scale) { scale.Maximum = NumberIn(fields.max); });
    change([&](ToldScale& scale) { scale.Minimum = NumberIn(fields.min); });
    change(
        [&](ToldScale& scale) { scale.MajorDivision = ToInt16(NumberIn(fields.majorDivision)); });
    change(
        [&](ToldScale& scale) { scale.MinorDivision = ToInt16(NumberIn(fields.minorDivision)); });
}

void ChartOptions::ApplyGrid() {
    const auto pen = Grid.Value() ? PenStyle::kDotted : PenStyle::kNone;
    for (int axis = 0; axis < arbolith::Chart::kAxes; ++axis)
        Chart().ChangeAxis(axis, [&](ChartAxis& values) {
            values.MajorPen = pen;
            values.MinorPen = PenStyle::kNone;
        });
}

bool ChartOptions::AcceptFields() {
    if (!FieldsAreNumbers(FieldsOfX()) || !FieldsAreNumbers(FieldsOfY())) return false;
    autosetx = AutoX.Value();
    autosety = AutoY.Value();
    ApplyAxis(FieldsOfX());
    ApplyAxis(FieldsOfY());
    ApplyGrid();
    chartWindow_.Get().Enable_Legend(Legend.Value());
    Reload_Click();
    return true;
}

void ChartOptions::SaveAndHide() {
    if (!AcceptFields()) return;
    GetApplication().ShowBox("Settings Applied");
    Hide();
}

void ChartOptions::CancelEdits() {
    Reload_Click();
    Hide();
}

void ChartOptions::ApplyMax() {
    const auto& maximum = Max.Caption();
    Chart().ChangeAxis(arbolith::Chart::kAxisY, [&](ChartAxis& axis) {
        axis.Scale.Auto = maximum.empty();
        if (!maximum.empty()) axis.Scale.Maximum = Val(maximum);
    });
}

}  // namespace arbolith
