// The codes of the 25 result variables in the fixed order in which a model writes them.
#pragma once

#include <array>

namespace arbolith {

inline constexpr std::array<const char*, 25> kVariableCodes = {
    "SAGE", "TDBH",  "MDBH",  "SDBH",  "TBA",   "MBA",   "SBA",  "TF",   "MF",
    "SF",   "TH",    "MH",    "SH",    "TVOL",  "MVOL",  "SVOL", "TMAI", "MMAI",
    "SMAI", "CTVOL", "CMVOL", "CSVOL", "CTMAI", "CMMAI", "CSMAI"};

/// Table columns of the variables that are looked at by place; column 0 is the fixed one.
inline constexpr int kColumnSage = 1;
inline constexpr int kColumnTf = 8;

}  // namespace arbolith
