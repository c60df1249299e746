#include "forms/user_actions.h"

#include <algorithm>

namespace arbolith {

namespace {

constexpr int kBackspaceCode = 8;
constexpr int kEnterCode = 13;
constexpr int kEscapeCode = 27;
constexpr int kInsertKey = 45;
constexpr int kDeleteKey = 46;

// The 8-bit code that a key raises a key press with; 0 for a key that raises none.
int CharacterOf(Key key) {
    switch (key.name) {
        case Key::kCharacter:
            return key.character;
        case Key::kEnter:
            return kEnterCode;
        case Key::kBackspace:
            return kBackspaceCode;
        case Key::kSpace:
            return ' ';
        case Key::kEscape:
            return kEscapeCode;
        default:
            return 0;
    }
}

int KeyPressed(Control& control, int key) {
    if (control.onKeyPress) control.onKeyPress(key);
    return key;
}

void KeyDown(Control& control, Key key) {
    int number = key.name == Key::kDelete ? kDeleteKey : key.name == Key::kInsert ? kInsertKey : 0;
    if (number != 0 && control.onKeyDown) control.onKeyDown(number);
}

// Whether a key acts on a control of this kind as a click does. The only labels with the focus are
// links and those that look like buttons.
bool Activates(Key key, ControlKind kind) {
    switch (kind) {
        case ControlKind::kButton:
        case ControlKind::kLabel:
            if (key.name == Key::kEnter) return true;
            break;
        case ControlKind::kOption:
        case ControlKind::kCheckBox:
            break;
        default:
            return false;
    }
    return CharacterOf(key) == ' ';
}

// The menus above an entry, outermost first.
std::vector<MenuItem*> MenusAbove(const Control& item) {
    std::vector<MenuItem*> menus;
    for (Control* above = &item.Parent(); above->Kind() == ControlKind::kMenuItem;
         above = &above->Parent())
        menus.insert(menus.begin(), static_cast<MenuItem*>(above));
    return menus;
}

// The usable menu entry that a key is the shortcut of; null for none.
MenuItem* ItemOfShortcut(const Form& form, Key key) {
    const char* shortcut = key.name == Key::kSelectAll ? "Ctrl+A"
                           : key.name == Key::kCopy    ? "Ctrl+C"
                                                       : nullptr;
    if (shortcut == nullptr) return nullptr;
    for (Control* control : form.Controls()) {
        if (control->Kind() != ControlKind::kMenuItem || !control->Usable()) continue;
        auto* item = static_cast<MenuItem*>(control);
        if (item->Shortcut() == shortcut) return item;
    }
    return nullptr;
}

}  // namespace

void UserActions::RequireUsable(const Control& control) const {
    if (application_.HasEnded()) throw ActionRefused("the program has ended");
    if (!control.Showing()) throw ActionRefused(control.Name() + " is not showing");
    if (!control.Usable()) throw ActionRefused(control.Name() + " is disabled");
}

void UserActions::Activate(Form& form) {
    RequireUsable(form);
    application_.Enter([&] { application_.Activate(form); });
}

void UserActions::ComeBack(Form& form) {
    application_.Enter([&] {
        // A form that was not the active one gets both events by becoming it.
        if (application_.ActiveForm() != &form) {
            application_.Activate(form);
            return;
        }
        form.Raise(form.onActivate);
        if (Control* focused = form.FocusControl()) focused->Raise(focused->onGotFocus);
    });
}

// Activates the form and moves the focus, as every action on a control does first.
void UserActions::Approach(Control& control, bool takesFocus) {
    RequireUsable(control);
    application_.Enter([&] {
        application_.Activate(control.Owner());
        if (takesFocus) application_.SetFocus(control);
    });
    RequireUsable(control);
}

// Keys can walk to a label that can be clicked; a click leaves the focus where it is.
void UserActions::ApproachByMouse(Control& control) {
    Approach(control, control.Kind() != ControlKind::kLabel);
}

void UserActions::Focus(Control& control) {
    if (!control.TakesFocus()) throw ActionRefused(control.Name() + " takes no focus");
    Approach(control);
}

void UserActions::TabTo(Control& control) {
    Focus(control);
    if (control.Kind() == ControlKind::kTextBox && control.HasFocus())
        static_cast<TextBox&>(control).SelectAll();
}

void UserActions::Act(Control& control) {
    switch (control.Kind()) {
        case ControlKind::kOption:
            static_cast<Option&>(control).SetValue(true);
            break;
        case ControlKind::kCheckBox: {
            auto& box = static_cast<CheckBox&>(control);
            box.SetValue(!box.Value());
            break;
        }
        default:
            control.Raise(control.onClick);
    }
}

void UserActions::Click(Control& control) {
    if (control.Kind() == ControlKind::kMenuItem) {
        for (MenuItem* menu : MenusAbove(control)) {
            RequireUsable(*menu);
            application_.Enter([&] {
                application_.Activate(menu->Owner());
                menu->Raise(menu->onClick);
            });
        }
    }
    ApproachByMouse(control);
    application_.Enter([&] { Act(control); });
}

void UserActions::DoubleClick(Control& control) {
    ApproachByMouse(control);
    const auto* list = dynamic_cast<const ListBox*>(&control);
    if (list != nullptr && list->ListIndex() == -1)
        throw ActionRefused(control.Name() + " has no selected row");
    application_.Enter([&] { control.Raise(control.onDoubleClick); });
}

bool UserActions::TypingReplaces(const TextBox& box) {
    const bool isMarked = !box.Text().empty() && box.SelLength() == box.Text().size();
    return box.SelectsAllOnFocus() || (isMarked && box.Owner().FocusControl() == &box);
}

void UserActions::Type(TextBox& box, const std::string& text) {
    const bool replaces = TypingReplaces(box);
    Focus(box);
    if (replaces) {
        box.SelectAll();
    } else {
        box.Select(box.Text().size(), 0);
    }
    for (const char c : text) {
        RequireUsable(box);
        // What the last key set off may have taken the focus away.
        if (!box.HasFocus()) {
            Focus(box);
            box.Select(box.Text().size(), 0);
        }
        PressInTextBox(box, {Key::kCharacter, static_cast<unsigned char>(c)});
    }
}

bool UserActions::PressDefaultButton(const Form& form) {
    for (Control* control : form.Controls()) {
        if (control->Kind() != ControlKind::kButton || !control->Usable()) continue;
        if (!static_cast<Button*>(control)->IsDefault()) continue;
        Click(*control);
        return true;
    }
    return false;
}

void UserActions::Press(Control& control, Key key) {
    Focus(control);
    if (key.name == Key::kTab || key.name == Key::kBackTab) {
        if (Control* next = Application::NextInTabOrder(control, key.name == Key::kTab))
            TabTo(*next);
        return;
    }
    if (MenuItem* item = ItemOfShortcut(control.Owner(), key)) {
        application_.Enter([&] { item->Raise(item->onClick); });
        return;
    }
    const auto kind = control.Kind();
    if (Activates(key, kind)) {
        Click(control);
        return;
    }
    if (key.name == Key::kEnter && PressDefaultButton(control.Owner())) return;
    application_.Enter([&] { KeyDown(control, key); });
    switch (kind) {
        case ControlKind::kTextBox:
            PressInTextBox(static_cast<TextBox&>(control), key);
            break;
        case ControlKind::kListBox:
        case ControlKind::kComboBox:
            PressInList(static_cast<ListBox&>(control), key);
            break;
        case ControlKind::kGrid:
            PressInGrid(static_cast<Grid&>(control), key);
            break;
        case ControlKind::kOption:
            PressOnOption(static_cast<Option&>(control), key);
            break;
        default:
            break;
    }
}

bool UserActions::AcceptsKey(TextBox& box, unsigned char character) {
    bool accepts = false;
    application_.Enter([&] {
        const int key = KeyPressed(box, character);
        accepts = key == character && (character < ' ' || box.HasRoomForKey());
    });
    return accepts;
}

void UserActions::Edited(TextBox& box, const std::string& text, std::size_t caret) {
    application_.Enter([&] { box.EditByPerson(text, caret); });
}

void UserActions::PutCharacter(TextBox& box, unsigned char character) {
    auto text = box.Text();
    const auto start = box.SelStart();
    text.replace(start, box.SelLength(), 1, static_cast<char>(character));
    box.EditByPerson(std::move(text), start + 1);
}

// Takes the selection away or, where there is none, the character before or behind the caret.
void UserActions::TakeCharacter(TextBox& box, bool before) {
    auto start = box.SelStart();
    auto length = box.SelLength();
    if (length == 0) {
        if (before ? start == 0 : start == box.Text().size()) return;
        start -= before ? 1 : 0;
        length = 1;
    }
    auto text = box.Text();
    text.erase(start, length);
    box.EditByPerson(std::move(text), start);
}

void UserActions::PressInTextBox(TextBox& box, Key key) {
    if (key.name == Key::kSelectAll) {
        application_.Enter([&] { box.SelectAll(); });
    } else if (key.name == Key::kCopy) {
        if (box.SelLength() > 0)
            application_.GetHost().SetClipboardText(
                box.Text().substr(box.SelStart(), box.SelLength()));
    } else if (key.name == Key::kDelete) {
        application_.Enter([&] { TakeCharacter(box, false); });
    } else if (const int code = CharacterOf(key); code != 0) {
        const auto character = static_cast<unsigned char>(code);
        if (!AcceptsKey(box, character)) return;
        application_.Enter([&] {
            if (character == kBackspaceCode) TakeCharacter(box, true);
            if (character >= ' ') PutCharacter(box, character);
        });
    }
}

void UserActions::PressInList(ListBox& list, Key key) {
    application_.Enter([&] {
        const int last = list.ListCount() - 1;
        const int index = list.ListIndex();
        if (key.name == Key::kUp) {
            if (last >= 0) list.SetListIndex(std::max(0, index - 1));
        } else if (key.name == Key::kDown) {
            if (last >= 0) list.SetListIndex(std::min(last, index + 1));
        } else if (const int code = CharacterOf(key); code != 0) {
            if (KeyPressed(list, code) == 0 || code <= ' ') return;
            // A letter goes to the next row that begins with it, round the end.
            for (int step = 1; step <= list.ListCount(); ++step) {
                const int row = (std::max(index, -1) + step) % list.ListCount();
                const auto& text = list.List()[static_cast<std::size_t>(row)];
                if (text.empty() ||
                    std::tolower(static_cast<unsigned char>(text[0])) != std::tolower(code))
                    continue;
                list.SetListIndex(row);
                return;
            }
        }
    });
}

void UserActions::PressInGrid(Grid& grid, Key key) {
    application_.Enter([&] {
        const int step = key.name == Key::kUp ? -1 : key.name == Key::kDown ? 1 : 0;
        // At the edge too: what was selected shrinks to the current cell.
        if (step != 0 && grid.Rows() > grid.FixedRows())
            grid.SetRow(std::clamp(grid.Row() + step, grid.FixedRows(), grid.Rows() - 1));
        if (const int code = CharacterOf(key); code != 0) KeyPressed(grid, code);
    });
}

// The arrow keys choose the neighbour among the options of the same frame.
void UserActions::PressOnOption(Option& option, Key key) {
    if (key.name != Key::kUp && key.name != Key::kDown) {
        if (const int code = CharacterOf(key); code != 0)
            application_.Enter([&] { KeyPressed(option, code); });
        return;
    }
    std::vector<Control*> group;
    for (Control* control : option.Owner().Controls())
        if (control->Kind() == ControlKind::kOption && &control->Parent() == &option.Parent() &&
            control->Usable())
            group.push_back(control);
    const auto at = std::find(group.begin(), group.end(), &option) - group.begin();
    const auto next = at + (key.name == Key::kDown ? 1 : -1);
    if (next >= 0 && next < static_cast<std::ptrdiff_t>(group.size()))
        Click(*group[static_cast<std::size_t>(next)]);
}

void UserActions::Paste(TextBox& box, const std::string& text) {
    Focus(box);
    application_.GetHost().SetClipboardText(text);
    auto pasted = text.substr(0, box.MaxLength() == 0 ? text.size() : box.MaxLength());
    const auto caret = pasted.size();
    Edited(box, pasted, caret);
}

void UserActions::SelectRow(ListBox& list, int index) {
    if (index < 0 || index >= list.ListCount())
        throw ActionRefused(list.Name() + " has no row " + std::to_string(index));
    Focus(list);
    application_.Enter([&] { list.SetListIndex(index); });
}

void UserActions::DragCells(Grid& grid, int row, int col, int rowSel, int colSel) {
    const auto inside = [&](int r, int c) {
        return r >= grid.FixedRows() && c >= grid.FixedCols() && r < grid.Rows() && c < grid.Cols();
    };
    if (!inside(row, col)) throw ActionRefused("the anchor is no ordinary cell of " + grid.Name());
    if (!inside(rowSel, colSel))
        throw ActionRefused("the end is no ordinary cell of " + grid.Name());
    Focus(grid);
    application_.Enter([&] {
        grid.SetRow(row);
        grid.SetCol(col);
        grid.SetRowSel(rowSel);
        grid.SetColSel(colSel);
        grid.Raise(grid.onClick);
    });
}

void UserActions::PickPoint(Chart& chart, int series, int point) {
    Approach(chart);
    if (!chart.HasPoint(series, point))
        throw ActionRefused(chart.Name() + " has no such data point");
    application_.Enter([&] {
        if (chart.onPointActivated) chart.onPointActivated(series, point);
    });
}

void UserActions::Resize(Form& form, Size clientSize) {
    RequireUsable(form);
    application_.Enter([&] { form.SetClientSize(clientSize); });
}

void UserActions::Close(Form& form) {
    RequireUsable(form);
    application_.Enter([&] {
        if (form.onClose) {
            form.onClose();
        } else {
            form.Hide();
        }
    });
}

void UserActions::Tick(Timer& timer) {
    if (!timer.Enabled() || application_.HasEnded())
        throw ActionRefused(timer.Name() + " is disabled");
    application_.Enter([&] { timer.Raise(timer.onTimer); });
}

}  // namespace arbolith
