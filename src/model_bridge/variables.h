// The 25 result variables in the fixed order in which a model writes them: their codes and units.
#pragma once

#include "run_definition/by_units.h"

#include <array>

namespace arbolith {

inline constexpr std::array<const char*, 25> kVariableCodes = {
    "SAGE", "TDBH",  "MDBH",  "SDBH",  "TBA",   "MBA",   "SBA",  "TF",   "MF",
    "SF",   "TH",    "MH",    "SH",    "TVOL",  "MVOL",  "SVOL", "TMAI", "MMAI",
    "SMAI", "CTVOL", "CMVOL", "CSVOL", "CTMAI", "CMMAI", "CSMAI"};

/// The units of the variables.
inline constexpr std::array<ByUnits, kVariableCodes.size()> kVariableUnits = {
    {{"years", "years"},
     {"cm", "in"},
     {"cm", "in"},
     {"cm", "in"},
     {"m\xB2/ha", "ft\xB2/acre"},
     {"m\xB2/ha", "ft\xB2/acre"},
     {"m\xB2/ha", "ft\xB2/acre"},
     {"stems/ha", "stems/acre"},
     {"stems/ha", "stems/acre"},
     {"stems/ha", "stems/acre"},
     {"m", "ft"},
     {"m", "ft"},
     {"m", "ft"},
     {"m\xB3/ha", "ft\xB3/acre"},
     {"m\xB3/ha", "ft\xB3/acre"},
     {"m\xB3/ha", "fbm/acre"},
     {"m\xB3/ha/yr", "ft\xB3/acre/yr"},
     {"m\xB3/ha/yr", "ft\xB3/acre/yr"},
     {"m\xB3/ha/yr", "fbm/acre/yr"},
     {"m\xB3/ha", "ft\xB3/acre"},
     {"m\xB3/ha", "ft\xB3/acre"},
     {"m\xB3/ha", "fbm/acre"},
     {"m\xB3/ha/yr", "ft\xB3/acre/yr"},
     {"m\xB3/ha/yr", "ft\xB3/acre/yr"},
     {"m\xB3/ha/yr", "fbm/acre/yr"}}};

/// Table columns of the variables that are looked at by place; column 0 is the fixed one.
inline constexpr int kColumnSage = 1;
inline constexpr int kColumnTf = 8;

}  // namespace arbolith
