// What all controls have in common: a name, a place in a frame, whether they show and can be used,
// and the events that a person or the program raises on them.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace arbolith {

class Application;
class Form;

enum class ControlKind {
    kForm,
    kFrame,
    kLabel,
    kButton,
    kOption,
    kCheckBox,
    kTextBox,
    kListBox,
    kComboBox,
    kMenuItem,
    kTimer,
    kProgressBar,
    kPicture,
    kGrid,
    kChart,
};

/// A colour as the forms keep it: blue, green, red from the highest byte down, or a system colour.
using Colour = std::uint32_t;
inline constexpr Colour kButtonFace = 0x8000000F;

/// Left, top, width and height in twips (15 to the pixel), relative to the parent's inside.
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Place&) const = default;
};

using Handler = std::function<void()>;
/// A key press: the handler sets the key to 0 to drop it.
using KeyHandler = std::function<void(int& key)>;

/// One control of a form. Setters change the state at once; those that a kind's rules name raise
/// its event before they return, and nothing is raised when nothing changes.
class Control {
public:
    Control(ControlKind kind, Control& parent, std::string name, std::string caption, Place place);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    ControlKind Kind() const { return kind_; }
    const std::string& Name() const { return name_; }
    /// The index in a control array, -1 for a control of its own.
    int Index() const { return index_; }
    void SetIndex(int index) { index_ = index; }
    /// The frame or form that holds it; a form is its own parent.
    Control& Parent() const { return *parent_; }
    Form& Owner() const { return *form_; }

    const std::string& Caption() const { return caption_; }
    /// Raises the change event of a label.
    void SetCaption(const std::string& caption);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    Colour BackColor() const { return backColor_; }
    void SetBackColor(Colour colour);
    const std::string& Tag() const { return tag_; }
    void SetTag(const std::string& tag);
    const Place& GetPlace() const { return place_; }
    void SetPlace(const Place& place);

    /// Whether it, every frame around it and its form are visible.
    bool Showing() const;
    /// Whether a person can act on it: showing, and enabled with every frame around it.
    bool Usable() const;
    /// Whether it takes the keyboard focus.
    virtual bool TakesFocus() const;
    bool HasFocus() const;

    Handler onClick;
    Handler onDoubleClick;
    Handler onChange;
    Handler onGotFocus;
    Handler onLostFocus;
    KeyHandler onKeyPress;  ///< A character key, by its 8-bit code.
    KeyHandler onKeyDown;   ///< Delete (46), Insert (45) and the like, by their key number.

    /// Runs a handler unless events are held back.
    void Raise(const Handler& handler) const;

protected:
    /// For a form, which is its own parent; it isn't made yet, so it is only noted.
    Control(Form& itself, std::string name, std::string caption, Place place);

    Application& App() const;
    /// Tells the views that the state has changed.
    void Touch();

private:
    friend class Form;
    friend class Application;

    ControlKind kind_;
    std::string name_;
    int index_ = -1;
    Control* parent_;
    Form* form_;
    std::string caption_;
    std::string tag_;
    Place place_;
    Colour backColor_ = kButtonFace;
    bool visible_ = true;
    bool enabled_ = true;
    bool touched_ = false;
};

}  // namespace arbolith
