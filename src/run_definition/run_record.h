// The inputs of one run as last committed from the form.
#pragma once

#include <cstdint>
#include <string>

namespace arbolith {

/// One run. Lengths, diameters and areas are in the unit system of the run; nothing is ever
/// converted. The names are those of the fields of the run line.
struct RunRecord {
    std::string WDTYPE;      ///< "Softwood" or "Hardwood".
    bool NatFlag = true;     ///< Natural regeneration.
    bool PlantFlag = false;  ///< Always the opposite of NatFlag.
    double SPX = 0;          ///< Plantation spacing, m / ft; 0 when natural.
    double SPY = 0;
    double FREQ = 0;          ///< Stems per hectare / acre of a plantation, 2 decimals.
    std::string SPEC;         ///< The species' name.
    bool LcFlag = true;       ///< Site given as a Land Capability class.
    bool SiFlag = false;      ///< Always the opposite of LcFlag.
    std::int16_t LC = 0;      ///< Class number; 0 when a site index is used.
    double SIB = 0;           ///< Site index at age 50, m / ft; 0 when a class is used.
    std::int16_t STK = 0;     ///< Expected stocking, per cent (the field STK%).
    bool RotAgeFlag = true;   ///< Rotation by age.
    bool RotDbhFlag = false;  ///< Always the opposite of RotAgeFlag.
    std::int16_t RAGE = 0;    ///< Rotation age, years; 0 when by diameter.
    double RDBH = 0;          ///< Rotation diameter, cm / in; 0 when by age.
    double T1Age = 0;         ///< Treatment 1, years.
    double T1DBH = 0;         ///< Treatment 1, cm / in.
    double T1IBA = 0;         ///< Treatment 1, per cent of basal area removed.
    double ISD = 0;           ///< Treatment 1, spacing left by a precommercial thinning, m / ft.
    double T2Age = 0;         ///< Treatment 2, years.
    double T2DBH = 0;         ///< Always 0: treatment 2 is never given by diameter.
    double T2IBA = 0;         ///< Treatment 2, per cent of basal area removed.
};

/// What all forms read.
struct Globals {
    std::string UnitSystem;  ///< "Metric" or "Imperial".
};

}  // namespace arbolith
