// The terms that the definitions window explains: what stands in its list, their headings and
// texts.
#pragma once

#include "model_bridge/variables.h"
#include "run_definition/by_units.h"

#include <array>

namespace arbolith {

struct DefinitionTerm {
    const char* key;    ///< What the term is found by.
    const char* label;  ///< Behind the key in the list; empty for none.
    ByUnits heading;
    ByUnits text;
};

/// The result variables, in their fixed order.
extern const std::array<DefinitionTerm, kVariableCodes.size()> kVariableTerms;

/// The two measures of a site.
extern const std::array<DefinitionTerm, 2> kSiteTerms;

/// Stands for a key that has no term.
extern const DefinitionTerm kUndefinedTerm;

}  // namespace arbolith
