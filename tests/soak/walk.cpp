#include "soak/walk.h"

#include "form_script/script.h"
#include "soak/sensible_texts.h"

#include <algorithm>
#include <ostream>
#include <vector>

namespace arbolith {

namespace {

constexpr int kTwipsPerPixel = 15;

std::string NameOf(const Control& control) {
    const auto& form = control.Owner();
    std::string name = control.Name();
    if (&control != &form) name = form.Name() + "." + name;
    if (control.Index() >= 0) name += "(" + std::to_string(control.Index()) + ")";
    return name;
}

// What ends the program, hides a form or empties all fields: done seldom, or nothing else would be.
bool Leaves(const Control& control) {
    const auto& name = control.Name();
    return name.starts_with("Exit") || name.starts_with("Close") || name == "Clear";
}

/// How often a person turns to a control, against others.
std::size_t WeightOf(const Control& control) {
    if (!control.Usable()) return 0;
    const bool acts = control.onClick != nullptr;
    switch (control.Kind()) {
        case ControlKind::kTextBox:
            return 60;
        case ControlKind::kListBox:
        case ControlKind::kComboBox:
            return 40;
        case ControlKind::kOption:
        case ControlKind::kCheckBox:
        case ControlKind::kGrid:
        case ControlKind::kChart:
            return 15;
        case ControlKind::kButton:
            return Leaves(control) ? 1 : 30;
        case ControlKind::kLabel:
        case ControlKind::kPicture:
            return acts ? 10 : 0;
        case ControlKind::kMenuItem:
            if (!acts) return 0;
            return Leaves(control) ? 1 : 10;
        case ControlKind::kForm:
        case ControlKind::kFrame:
        case ControlKind::kTimer:
        case ControlKind::kProgressBar:
            return 0;
    }
    return 0;
}

}  // namespace

void Walk::TakeStep() {
    Form* form = ChooseForm();
    if (form == nullptr) return;
    try {
        Control* control = OneIn(40) ? nullptr : ChooseControl(*form);
        if (control == nullptr) {
            MoveWindow(*form);
        } else {
            ActOn(*control);
        }
    } catch (const ActionRefused& refusal) {
        ++refused_[refusal.what()];
        log_ << "# refused: " << refusal.what() << std::endl;
    }
}

// The active form mostly; now and then another one that shows.
Form* Walk::ChooseForm() {
    if (application_.HasEnded()) return nullptr;
    if (Form* active = application_.ActiveForm(); active != nullptr && !OneIn(4)) return active;
    std::vector<Form*> usable;
    std::copy_if(application_.Forms().begin(), application_.Forms().end(),
                 std::back_inserter(usable), [](const Form* form) { return form->Usable(); });
    return usable.empty() ? nullptr : usable[dice_.Below(usable.size())];
}

Control* Walk::ChooseControl(const Form& form) {
    std::size_t sum = 0;
    for (const Control* control : form.Controls()) sum += WeightOf(*control);
    auto left = dice_.Below(sum);
    for (Control* control : form.Controls()) {
        const auto weight = WeightOf(*control);
        if (left < weight) return control;
        left -= weight;
    }
    return nullptr;
}

void Walk::ActOn(Control& control) {
    switch (control.Kind()) {
        case ControlKind::kTextBox:
            return Edit(static_cast<TextBox&>(control));
        case ControlKind::kListBox:
        case ControlKind::kComboBox:
            return PickRow(static_cast<ListBox&>(control));
        case ControlKind::kGrid:
            return DragOver(static_cast<Grid&>(control));
        case ControlKind::kChart:
            return PickPoint(static_cast<Chart&>(control));
        default:
            return Press(control);
    }
}

void Walk::Press(Control& control) {
    if (control.TakesFocus() && OneIn(6)) {
        Log("press " + NameOf(control) + " Space");
        driver_.Press(control, {Key::kSpace, 0});
    } else {
        Log("click " + NameOf(control));
        driver_.Click(control);
    }
}

void Walk::Edit(TextBox& box) {
    const auto text = SensibleText(box.Name(), dice_);
    if (OneIn(8)) {
        Log("paste " + NameOf(box) + " " + Quoted(text));
        driver_.Paste(box, text);
    } else if (OneIn(8)) {
        constexpr std::pair<const char*, Key::Name> kKeys[] = {
            {"Enter", Key::kEnter}, {"Backspace", Key::kBackspace}, {"Delete", Key::kDelete},
            {"Tab", Key::kTab},     {"Insert", Key::kInsert},       {"Escape", Key::kEscape},
            {"Ctrl+C", Key::kCopy}, {"Ctrl+A", Key::kSelectAll},
        };
        const auto& [name, key] = kKeys[dice_.Below(std::size(kKeys))];
        Log("press " + NameOf(box) + " " + name);
        driver_.Press(box, {key, 0});
    } else {
        Log("type " + NameOf(box) + " " + Quoted(text));
        driver_.Type(box, text);
    }
}

void Walk::PickRow(ListBox& list) {
    if (list.ListCount() == 0) return;
    if (list.Kind() == ControlKind::kListBox && list.ListIndex() >= 0 && OneIn(4)) {
        Log("doubleclick " + NameOf(list));
        return driver_.DoubleClick(list);
    }
    const int row = From(0, list.ListCount() - 1);
    Log("select " + NameOf(list) + " " + std::to_string(row));
    driver_.SelectRow(list, row);
}

void Walk::DragOver(Grid& grid) {
    if (grid.Rows() <= grid.FixedRows() || grid.Cols() <= grid.FixedCols()) return;
    int at[4];
    std::string step = "drag " + NameOf(grid);
    for (int i = 0; i < 4; ++i) {
        at[i] = i % 2 == 0 ? From(grid.FixedRows(), grid.Rows() - 1)
                           : From(grid.FixedCols(), grid.Cols() - 1);
        step += " " + std::to_string(at[i]);
    }
    Log(step);
    driver_.DragCells(grid, at[0], at[1], at[2], at[3]);
}

void Walk::PickPoint(Chart& chart) {
    const int series = From(1, 6);
    const int point = From(1, 24);
    Log("point " + NameOf(chart) + " " + std::to_string(series) + " " + std::to_string(point));
    driver_.PickPoint(chart, series, point);
}

void Walk::MoveWindow(Form& form) {
    const auto name = form.Name();
    if (OneIn(8)) {
        Log("close " + name);
        driver_.Close(form);
    } else if (OneIn(2)) {
        Log("reread");
        driver_.ComeBack(form);
    } else {
        const Size size{From(600, 1000) * kTwipsPerPixel, From(400, 700) * kTwipsPerPixel};
        Log("resize " + name + " " + std::to_string(size.width) + " " +
            std::to_string(size.height));
        driver_.Resize(form, size);
    }
}

void Walk::Log(const std::string& step) {
    log_ << step << std::endl;
}

}  // namespace arbolith
