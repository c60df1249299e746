// The definitions window: a list of terms, and what the selected one means in the unit system in
// force.
#pragma once

#include "forms/controls.h"
#include "run_definition/run_record.h"

namespace arbolith {

/// The form Help_defin. Its list is replaced at each opening; heading and text stay until the next
/// term is selected.
struct Definitions : Form {
    /// `globals` must outlive the window.
    Definitions(Application& application, const Globals& globals);

    /// Fills the list with the 25 result variables; none is selected.
    void ShowVariableTerms();
    /// Fills the list with land capability and site index; none is selected.
    void ShowSiteTerms();
    /// Shows the window before the others.
    void Open();
    /// Shows heading and text of the selected term.
    void ShowSelectedTerm();

    Label defin1{*this, "defin1", "List of terms:", {120, 120, 6600, 285}};
    ListBox definition_list{
        *this, "definition_list", {120, 480, 6600, 6180}, {.columns = {{0, true}, {165, true}}}};
    Label defin2{*this, "defin2", "Definition:", {6960, 120, 5400, 285}};
    Label definTitle{
        *this, "definTitle", "", {6960, 480, 5400, 480}, {.wraps = true, .bold = true}};
    Label definition{*this, "definition", "", {6960, 1080, 5400, 5580}, {.wraps = true}};

private:
    const Globals& globals_;
};

}  // namespace arbolith
