// The outside documents that the guidance leads to, in the browser of the desktop.
#pragma once

#include "forms/application.h"

#include <string>

namespace arbolith {

// Where the documents lie on their site.
inline constexpr const char* kNorwaySpruceReport = "/vlrn/forestry/reports/report24.pdf";
inline constexpr const char* kSoftwoodManual = "/vlrn/forestry/handbook/page1.htm";
inline constexpr const char* kHardwoodManual = "/vlrn/forestry/handbook/page2.htm";

/// The address of a document: on the documents site that the program was built for
/// (ARBOLITH_DOCUMENTS_SITE), or without one the file of that path in the folder `help` beside the
/// program.
std::string AddressOf(const Application& application, const std::string& path);

/// Opens an address in the browser, and tells where there is none or it fails.
void Launch_Webpage(Application& application, const std::string& address);

}  // namespace arbolith
