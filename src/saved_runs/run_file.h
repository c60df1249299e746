// The run file: the text of one run, eight lines of fields between commas. Written from the record,
// read as texts that go back through the form.
#pragma once

#include "run_definition/run_record.h"

#include <array>
#include <string>
#include <string_view>

namespace arbolith {

/// The fields of a run file as they stand there, named as in the record.
struct RunFile {
    std::string WDTYPE;
    std::string UnitSystem;
    std::string natural;  ///< "Yes" or "No".
    std::string planted;
    std::string SPX;
    std::string SPY;
    std::string FREQ;  ///< Not looked at by the form: it follows from the spacings.
    std::string SPEC;
    std::string SIB;
    std::string LC;
    std::string STK;
    std::string RAGE;
    std::string RDBH;
    std::string T1Age;
    std::string T2Age;
    std::string T1DBH;
    std::string T2DBH;  ///< Not looked at by the form: no run has it.
    std::string T1IBA;
    std::string T2IBA;
    std::string ISD;
    bool goesOn = false;  ///< More than blanks stands behind the last field.
};

/// Reads the fields one by one, whatever lines they stand on; what follows the last is ignored.
/// Throws 62 where the text ends before.
RunFile ParseRunFile(std::string_view text);

/// The lines of a run's file. Ages and percentages of basal area lose their decimals.
std::array<std::string, 8> RunFileLines(const RunRecord& record, const std::string& unitSystem);

}  // namespace arbolith
