#include "qt/accessible_names.h"

#include "forms/controls.h"
#include "qt/texts.h"

#include <algorithm>
#include <array>

namespace arbolith {

namespace {

struct ToldName {
    const char* form;
    const char* control;
    const char* name;
};

// Where neither a caption nor the label in front says enough.
constexpr std::array kToldNames{
    ToldName{"Output", "Table", "Yield Table"},
    ToldName{"Chart_Custom", "cmbDomainSelect", "X-Axis Variable"},
    ToldName{"Chart_Opt", "XMax", "X Axis Max"},
    ToldName{"Chart_Opt", "XMin", "X Axis Min"},
    ToldName{"Chart_Opt", "XDMaj", "X Axis Major Div"},
    ToldName{"Chart_Opt", "XDMin", "X Axis Minor Div"},
    ToldName{"Chart_Opt", "YMax", "Y Axis Max"},
    ToldName{"Chart_Opt", "YMin", "Y Axis Min"},
    ToldName{"Chart_Opt", "YDMaj", "Y Axis Major Div"},
    ToldName{"Chart_Opt", "YDMin", "Y Axis Minor Div"},
};

const ToldName* ToldNameOf(const Control& control) {
    const auto found =
        std::find_if(kToldNames.begin(), kToldNames.end(), [&](const ToldName& told) {
            return control.Name() == told.control && control.Owner().Name() == told.form;
        });
    return found == kToldNames.end() ? nullptr : found;
}

// A colon or blanks at the end are for the eye.
QString Plain(QString text) {
    text = text.simplified();
    if (text.endsWith(u':')) text.chop(1);
    return text.trimmed();
}

bool WrapsLines(const Control& control) {
    return control.Kind() == ControlKind::kLabel &&
           static_cast<const Label&>(control).GetLook().wraps;
}

// A text of several lines has no access key.
QString CaptionOf(const Control& control) {
    const QString caption = ToShownText(control.Caption());
    return Plain(WrapsLines(control) ? caption : WithoutAccessKey(caption));
}

bool SaysSomething(const QString& caption) {
    return std::any_of(caption.begin(), caption.end(), [](QChar c) { return c.isLetter(); });
}

bool IsLabelling(const Control& other, const Control& control) {
    const auto kind = other.Kind();
    const bool canLabel = kind == ControlKind::kLabel || kind == ControlKind::kOption ||
                          kind == ControlKind::kCheckBox;
    return canLabel && &other.Parent() == &control.Parent() && SaysSomething(CaptionOf(other));
}

QString LabelBefore(const Control& control) {
    const auto& controls = control.Owner().Controls();
    const auto itself = std::find(controls.rbegin(), controls.rend(), &control);
    const auto found = std::find_if(itself, controls.rend(), [&](const Control* other) {
        return other != &control && IsLabelling(*other, control);
    });
    return found == controls.rend() ? QString() : CaptionOf(**found);
}

QString LabelBehind(const Control& control) {
    const auto& controls = control.Owner().Controls();
    const auto itself = std::find(controls.begin(), controls.end(), &control);
    const auto found = std::find_if(
        itself, controls.end(), [&](const Control* other) { return IsLabelling(*other, control); });
    return found == controls.end() ? QString() : CaptionOf(**found);
}

bool IsField(const Control& control) {
    return control.TakesFocus() || control.Kind() == ControlKind::kProgressBar ||
           control.Kind() == ControlKind::kLabel;
}

QString NameOfField(const Control& control) {
    QString label = LabelBefore(control);
    if (!label.isEmpty() || control.Kind() == ControlKind::kLabel) return label;
    const QString frame = CaptionOf(control.Parent());
    return frame.isEmpty() ? ToQString(control.Name()) : frame;
}

}  // namespace

QString AccessibleNameOf(const Control& control) {
    if (const ToldName* told = ToldNameOf(control)) return told->name;
    QString caption = CaptionOf(control);
    if (caption.isEmpty()) {
        if (control.Kind() == ControlKind::kFrame) return {};
        return IsField(control) ? NameOfField(control) : ToQString(control.Name());
    }
    // A button with a number stands in front of what it opens.
    if (control.Kind() == ControlKind::kButton && !SaysSomething(caption))
        return Plain(caption + u' ' + LabelBehind(control));
    return caption;
}

}  // namespace arbolith
