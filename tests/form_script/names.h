// Names as scripts write them: a form, a control of a form, a member of a control array, and a
// property of any of these.
#pragma once

#include "forms/application.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace arbolith {

/// A word with whole numbers in brackets behind it, such as `Cell(1,2)`.
struct IndexedWord {
    std::string word;
    std::vector<int> indexes;

    bool operator==(const IndexedWord&) const = default;
};

/// Nothing where the brackets don't hold whole numbers parted by commas, or don't end the text.
std::optional<IndexedWord> ReadIndexedWord(std::string_view text);

/// A name and one of its properties.
struct PropertyName {
    std::string name;      ///< `Form`, `Form.Control` or `Control`.
    std::string property;  ///< As written, for example `Cell(1,1)` or `Axis(1).Minimum`.
};

/// Takes NAME.PROPERTY apart; the last word is the property, and `Axis(n)` belongs to it. Nothing
/// where one of the two is missing.
std::optional<PropertyName> ReadPropertyName(std::string_view text);

/// Whether this is one of the program's forms, created or not.
bool IsFormName(std::string_view name);

/// The form of this name; null while it was not created.
Form* FindForm(const Application& application, std::string_view name);

/// The form or control of a name; the form may be left out for the main form. Null where it doesn't
/// exist now.
Control* FindControl(const Application& application, std::string_view name);

}  // namespace arbolith
