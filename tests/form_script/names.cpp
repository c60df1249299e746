#include "form_script/names.h"

#include "form_script/value.h"
#include "platform/text.h"

#include <algorithm>
#include <array>

namespace arbolith {

namespace {

constexpr std::string_view kMainForm = "QvlySwd";
constexpr std::array<std::string_view, 7> kFormNames = {
    "frmSplash", kMainForm, "Output", "Chart_Frm", "Chart_Opt", "Chart_Custom", "Help_defin"};

// Cuts off what stands behind the last point; nothing where there is no point.
std::optional<std::string_view> TakeLastWord(std::string_view& text) {
    const auto point = text.rfind('.');
    if (point == std::string_view::npos) return std::nullopt;
    const auto last = text.substr(point + 1);
    text = text.substr(0, point);
    return last;
}

}  // namespace

std::optional<IndexedWord> ReadIndexedWord(std::string_view text) {
    const auto bracket = text.find('(');
    IndexedWord word{std::string(text.substr(0, bracket)), {}};
    if (word.word.empty()) return std::nullopt;
    if (bracket == std::string_view::npos) return word;
    if (text.back() != ')') return std::nullopt;
    for (const auto& piece : Split(text.substr(bracket + 1, text.size() - bracket - 2), ',')) {
        const auto index = ReadWholeNumber(piece);
        if (!index) return std::nullopt;
        word.indexes.push_back(*index);
    }
    return word;
}

std::optional<PropertyName> ReadPropertyName(std::string_view text) {
    auto name = text;
    const auto last = TakeLastWord(name);
    if (!last || last->empty() || name.empty()) return std::nullopt;
    auto owner = name;
    const auto before = TakeLastWord(owner);
    if (before && before->starts_with("Axis(") && !owner.empty()) name = owner;
    return PropertyName{std::string(name), std::string(text.substr(name.size() + 1))};
}

bool IsFormName(std::string_view name) {
    return std::find(kFormNames.begin(), kFormNames.end(), name) != kFormNames.end();
}

Form* FindForm(const Application& application, std::string_view name) {
    const auto& forms = application.Forms();
    const auto found = std::find_if(forms.begin(), forms.end(),
                                    [&](const Form* form) { return form->Name() == name; });
    return found == forms.end() ? nullptr : *found;
}

Control* FindControl(const Application& application, std::string_view name) {
    if (Form* form = FindForm(application, name)) return form;
    auto formName = name;
    auto controlName = TakeLastWord(formName);
    if (!controlName) {
        controlName = name;
        formName = kMainForm;
    }
    const Form* form = FindForm(application, formName);
    const auto word = ReadIndexedWord(*controlName);
    if (form == nullptr || !word || word->indexes.size() > 1) return nullptr;
    return form->Find(word->word, word->indexes.empty() ? -1 : word->indexes.front());
}

}  // namespace arbolith
