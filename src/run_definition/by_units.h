// A text that reads differently in each unit system.
#pragma once

#include "run_definition/run_record.h"

namespace arbolith {

struct ByUnits {
    const char* metric;
    const char* imperial;

    /// "Metric" takes the metric text, any other unit system the imperial one.
    const char* For(const Globals& globals) const {
        return globals.UnitSystem == "Metric" ? metric : imperial;
    }
};

/// A text that reads the same in both.
constexpr ByUnits InBoth(const char* text) {
    return {text, text};
}

}  // namespace arbolith
