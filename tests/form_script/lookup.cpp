#include "form_script/lookup.h"

#include "form_script/properties.h"

namespace arbolith {

Control& Find(const Stage& stage, const std::string& name) {
    if (Control* control = FindControl(stage.application, name)) return *control;
    const auto formName = name.substr(0, name.find('.'));
    if (IsFormName(formName) && FindForm(stage.application, formName) == nullptr)
        throw StepFailed("that the form " + formName + " was not created yet");
    throw StepFailed("nothing of the name " + name);
}

Value ReadNamedProperty(Stage& stage, const PropertyName& name) {
    const bool isSight = name.property == "Visible" || name.property == "Showing";
    if (isSight && IsFormName(name.name) && FindForm(stage.application, name.name) == nullptr)
        return false;
    const Control& control = Find(stage, name.name);
    auto state = ReadProperty(control, name.property);
    if (const auto shown = stage.driver.Shown(control, name.property))
        return AsKindOf(state, *shown);
    return state;
}

Value ReadVariable(const Stage& stage, const std::string& name) {
    const auto word = ReadIndexedWord(name);
    const auto found = word ? stage.variables.find(word->word) : stage.variables.end();
    if (found == stage.variables.end() || found->second.indexes != word->indexes.size())
        throw StepFailed("no variable " + name);
    return found->second.read(word->indexes);
}

}  // namespace arbolith
