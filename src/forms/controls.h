// The control kinds of the forms but for the grid and the chart, which have files of their own.
// Setting a control from code raises its event just as a person's action does.
#pragma once

#include "forms/control.h"
#include "forms/form.h"

#include <cstddef>
#include <string>
#include <vector>

namespace arbolith {

/// Holds other controls, with a caption on its edge; a frame without a caption draws nothing.
class Frame : public Control {
public:
    Frame(Control& parent, std::string name, std::string caption = "", Place place = {});
};

enum class Alignment { kLeft, kRight, kCentre };

/// Where a column of a text begins. In a line of text a run of tabs leads to the next column that
/// stands behind a tab, a run of blanks to the next one before that.
struct TextColumn {
    int left = 0;  ///< In thousandths of the list's width.
    bool behindTab = false;
};
using TextColumns = std::vector<TextColumn>;

/// A text that a person reads. A greyed out label is a disabled one.
class Label : public Control {
public:
    /// How the text stands; fixed when the form is made.
    struct Look {
        Alignment alignment = Alignment::kLeft;
        bool wraps = false;
        bool bold = false;
        int points = 0;         ///< Font size, 0 for the desktop's own.
        bool link = false;      ///< Underlined, with a hand over it; keys reach it and follow it.
        bool bordered = false;  ///< Looks like a button; keys reach it and press it.
        /// The heading of a list with these columns: runs of blanks lead from one to the next.
        TextColumns columns = {};
    };

    Label(Control& parent, std::string name, std::string caption = "", Place place = {});
    Label(Control& parent, std::string name, std::string caption, Place place, Look look);

    const Look& GetLook() const { return look_; }
    bool TakesFocus() const override { return look_.link || look_.bordered; }

private:
    Look look_;
};

class Button : public Control {
public:
    Button(Control& parent, std::string name, std::string caption = "", Place place = {});

    /// Whether Enter anywhere on the form presses it.
    bool IsDefault() const { return default_; }
    void SetDefault(bool isDefault) { default_ = isDefault; }
    /// Whether it stands out as the one whose content is open.
    bool IsMarked() const { return marked_; }
    void SetMarked(bool marked);

private:
    bool default_ = false;
    bool marked_ = false;
};

/// An option button. Options exclude each other only by what their click handlers do.
class Option : public Control {
public:
    Option(Control& parent, std::string name, std::string caption = "", Place place = {});

    bool Value() const { return value_; }
    /// Switching on raises the click; switching off raises nothing.
    void SetValue(bool value);

private:
    bool value_ = false;
};

class CheckBox : public Control {
public:
    CheckBox(Control& parent, std::string name, std::string caption = "", Place place = {});

    bool Value() const { return value_; }
    /// A change raises the click.
    void SetValue(bool value);

private:
    bool value_ = false;
};

/// A text field of one line. The length limit binds what a person types or pastes; a text set by
/// the program is taken whole.
class TextBox : public Control {
public:
    /// `maxLength` 0 means no limit.
    TextBox(Control& parent, std::string name, Place place = {}, std::size_t maxLength = 0);

    const std::string& Text() const { return text_; }
    /// A change raises the change event, with the caret at the start.
    void SetText(const std::string& text);
    std::size_t MaxLength() const { return maxLength_; }

    std::size_t SelStart() const { return selStart_; }
    std::size_t SelLength() const { return selLength_; }
    /// Limited to the text.
    void Select(std::size_t start, std::size_t length);
    void SelectAll() { Select(0, text_.size()); }
    /// Whether getting the focus selects the whole text.
    bool SelectsAllOnFocus() const { return selectsAllOnFocus_; }
    void SetSelectsAllOnFocus(bool selects) { selectsAllOnFocus_ = selects; }

    /// The text after a person's edit with the caret behind what was put in, cut to the limit: what
    /// is too long goes from before the caret.
    void EditByPerson(std::string text, std::size_t caret);
    /// Whether one more character in place of the selection stays within the limit.
    bool HasRoomForKey() const;

private:
    std::string text_;
    std::size_t maxLength_;
    std::size_t selStart_ = 0;
    std::size_t selLength_ = 0;
    bool selectsAllOnFocus_ = false;
};

/// Rows of text, one of which may be selected. Also the list of a combo box.
class ListBox : public Control {
public:
    /// How the rows stand; fixed when the form is made.
    struct Look {
        std::string font = {};     ///< Empty for the desktop's own.
        TextColumns columns = {};  ///< None: rows are plain text.
    };

    ListBox(Control& parent, std::string name, Place place = {});
    ListBox(Control& parent, std::string name, Place place, Look look);

    const Look& GetLook() const { return look_; }
    const std::vector<std::string>& List() const { return rows_; }
    int ListCount() const { return static_cast<int>(rows_.size()); }
    int ListIndex() const { return index_; }
    /// Selects a row (-1 for none). A move to another row raises the click. Throws an invalid call
    /// outside the list.
    void SetListIndex(int index);
    /// The selected row's text, empty for none.
    std::string Text() const;

    void AddItem(const std::string& text);
    /// Removing the selected row selects none; removing another keeps the selected entry.
    void RemoveItem(int index);
    void ReplaceItem(int index, const std::string& text);
    void Clear();

protected:
    ListBox(ControlKind kind, Control& parent, std::string name, Place place);

private:
    Look look_;
    std::vector<std::string> rows_;
    int index_ = -1;
};

class ComboBox : public ListBox {
public:
    ComboBox(Control& parent, std::string name, Place place = {});
};

/// A menu or an entry of one. An "&" stands before the access key; the caption "-" is a separator.
class MenuItem : public Control {
public:
    /// A menu of the form's menu bar, or an entry of another menu.
    MenuItem(Control& parent, std::string name, std::string caption, std::string shortcut = "");

    bool Checked() const { return checked_; }
    void SetChecked(bool checked);
    /// A key such as "Ctrl+A", empty for none.
    const std::string& Shortcut() const { return shortcut_; }
    bool IsSeparator() const { return Caption() == "-"; }

private:
    std::string shortcut_;
    bool checked_ = false;
};

class Timer : public Control {
public:
    Timer(Control& parent, std::string name, int interval);

    /// Milliseconds.
    int Interval() const { return interval_; }
    void SetInterval(int interval);

    Handler onTimer;

private:
    int interval_;
};

class ProgressBar : public Control {
public:
    ProgressBar(Control& parent, std::string name, Place place, int max);

    int Max() const { return max_; }
    void SetMax(int max);
    double Value() const { return value_; }
    void SetValue(double value);

private:
    int max_;
    double value_ = 0;
};

/// A picture that the view draws; the caption is the text on it.
class Picture : public Control {
public:
    Picture(Control& parent, std::string name, std::string caption, Place place);
};

}  // namespace arbolith
