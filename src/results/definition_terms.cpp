#include "results/definition_terms.h"

namespace arbolith {

// Headings that name another variable than their own, and slips in the texts, are known to users as
// they stand.
const std::array<DefinitionTerm, kVariableCodes.size()> kVariableTerms = {{
    {kVariableCodes[0],  // SAGE
     "- (Stump Age)",
     InBoth("Stump Height Age (SAGE):"),
     {"The average stand age in years at stump height ( 15 cm above ground level) ",
      "The average stand age in years at stump height ( 6\" above ground level) "}},
    {kVariableCodes[1],  // TDBH
     "- (Total Diameter)",
     InBoth("Total Diameter (TDBH):"),
     {"The quadratic mean diameter (Husch et al, 1982). The diameter at breast height (DBHob) of "
      "the tree of average basal area based on trees greater than 1 cm DBHob.",
      "The quadratic mean diameter (Husch et al, 1982). The diameter at breast height (DBHob) of "
      "the tree of average basal area based on trees greater than 1/2\" DBHob."}},
    {kVariableCodes[2],  // MDBH
     "- (Merchantable Diameter)",
     InBoth("Merchantable Diameter (MDBH):"),
     {"The DBHob of the tree of average basal area based on trees greater than 9 cm DBHob.",
      "The DBHob of the tree of average basal area based on trees greater than 3.5\" DBHob."}},
    {kVariableCodes[3],  // SDBH
     "- (Sawlog Diameter)",
     InBoth("Sawlog Diameter (SDBH):"),
     {"For Softwoods - The DBHob of the tree of average basal area based on trees greater than 14 "
      "cm DBHob.       For Hardwoods - The DBHob of the tree of average basal area based on trees "
      "greater than 25 cm DBHob.",
      "For Softwoods - The DBHob of the tree of average basal area based on trees greater than "
      "5.5\" DBHob.       For Hardwoods - The DBHob of the tree of average basal area based on "
      "trees greater than 10\" DBHob."}},
    {kVariableCodes[4],  // TBA
     "- (Total Basal Area)",
     InBoth("Total Basal Area (TBA):"),
     {"The cross-sectional area, at breast height, of trees greater than 1 cm DBHob, per unit "
      "area.",
      "The cross-sectional area, at breast height, of trees greater than 1/2\" DBHob, per unit "
      "area."}},
    {kVariableCodes[5],  // MBA
     "- (Merchantable Basal Area)",
     InBoth("Merchantable Basal Area (BMA):"),
     {"The cross sectional area, at breast height, of trees greater than 9 cm DBHob, per unit area",
      "The cross sectional area, at breast height, of trees greater than 3.5\" DBHob, per unit "
      "area"}},
    {kVariableCodes[6],  // SBA
     "- (Sawlog Basal Area)",
     InBoth("Sawlog Basal Area (SBA):"),
     {"For Softwoods - The cross-sectional area, at breast height, of trees greater thn 14 cm "
      "DBHob, per unit area.  For Hardwoods - The cross-sectional area, at breast height, of trees "
      "greater thn 25 cm DBHob, per unit area.",
      "For Softwoods - The cross-sectional area, at breast height, of trees greater thn 5.5\" "
      "DBHob, per unit area.  For Hardwoods - The cross-sectional area, at breast height, of trees "
      "greater thn 10\" DBHob, per unit area."}},
    {kVariableCodes[7],  // TF
     "- (Total Frequency)",
     InBoth("Total Tree Frequency (TF):"),
     {"The number of trees per unit area, greater than 1 cm DBHob.",
      "The number of trees per unit area, greater than 0.5\" DBHob."}},
    {kVariableCodes[8],  // MF
     "- (Merchantable Frequency)",
     InBoth("Merchantable Tree Frequency (MF):"),
     {"The number of trees per unit area, greater than 9 cm DBHob.",
      "The number of trees per unit area, greater than 3.5\" DBHob."}},
    {kVariableCodes[9],  // SF
     "- (Sawlog Frequency)",
     InBoth("Sawlog Tree Frequency (SF):"),
     {"For Softwoods - The number of trees per unit area, greater than 14 cm DBHob.  For Hardwoods "
      "- The number of trees per unit area, greater than 25 cm DBHob.",
      "For Softwoods - The number of trees per unit area, greater than 5.5\" DBHob.  For Hardwoods "
      "- The number of trees per unit area, greater than 10\" DBHob."}},
    {kVariableCodes[10],  // TH
     "- (Total Height)",
     InBoth("Total Height (TH):"),
     {"Total Lorey's height (Husch el al, 1982). The height of the tree of average basal area "
      "based on trees exceeding 1 cm DBHob.",
      "Total Lorey's height (Husch el al, 1982). The height of the tree of average basal area "
      "based on trees exceeding 1/2\" DBHob."}},
    {kVariableCodes[11],  // MH
     "- (Merchantable Height)",
     InBoth("Merchantable Height (MH):"),
     {"The height of the tree of average basal area based on trees exceeding 9 cm DBHob.",
      "The height of the tree of average basal area based on trees exceeding 3.5\" DBHob."}},
    {kVariableCodes[12],  // SH
     "- (Sawlog Height)",
     InBoth("Sawlog Height (SH):"),
     {"For Softwoods - The height of the tree of average basal area based on trees exceeding 14 cm "
      "DBHob.  For Hardwoods - The height of the tree of average basal area based on trees "
      "exceeding 25 cm DBHob.",
      "For Softwoods - The height of the tree of average basal area based on trees exceeding 5.5\" "
      "DBHob.  For Hardwoods - The height of the tree of average basal area based on trees "
      "exceeding 10\" DBHob."}},
    {kVariableCodes[13],  // TVOL
     "- (Total Volume)",
     InBoth("Total Volume (TVOL):"),
     {"The inside-bark bole-volume in solid cubic metres per hectare, of trees 1 cm DBHob and "
      "greater, as determined from Honer's (1983) volume equations (including the stump and top). "
      "This does not include volume harvested in commercial thinnings.",
      "The inside-bark bole-volume in solid cubic feet per acre, of trees 1/2\" DBHob and greater, "
      "as determined from Honer's (1967) volume equations (including the stump and top). This does "
      "not include volume harvested in commercial thinnings."}},
    {kVariableCodes[14],  // MVOL
     "- (Merchantable Volume)",
     InBoth("Merchantable Volume (MVOL):"),
     {"The inside-bark bole volume in solid cubic metres per hectare, of trees greater than 9 cm "
      "DBHob, as determined from Honer's volume equations. The merchantable bole excludes the "
      "stump (15 cm height) and top (portion of the bole less than 7.6 cm diameter inside bark "
      "[Dib]). This does not include volume harvested in commercial thinnings.",
      "The inside-bark bole volume in solid cubic feet per acre, of trees greater than 3.5\" "
      "DBHob, as determined from Honer's volume equations. The merchantable bole excludes the "
      "stump (6\" height) and top (portion of the bole less than 3\" diameter inside bark [Dib]). "
      "This does not include volume harvested in commercial thinnings."}},
    {kVariableCodes[15],  // SVOL
     "- (Sawlog Volume)",
     InBoth("Sawlog Volume (SVOL):"),
     {"For Softwoods - The inside-bark bole volume in solid cubic metres per hectare, of trees "
      "greater than 14 cm DBHob, as determined from Honer's volume equations. The merchantable "
      "bole excludes the stump (15 cm height) and top (portion of the bole less than 10 cm "
      "diameter inside bark [Dib]). This does not include volume harvested in commercial "
      "thinnings.  For Hardwoods - The inside-bark bole volume in solid cubic metres per hectare, "
      "of trees greater than 25 cm DBHob, as determined from Honer's volume equations. The "
      "merchantable bole excludes the stump (15 cm height) and top (portion of the bole less than "
      "20 cm diameter inside bark [Dib]). This does not include volume harvested in commercial "
      "thinnings.",
      "For Softwoods - The number of board feet (fbm) per acre, for trees greater than 5.5\" cm "
      "DBHob, as determined from Honer's volume equations. These values are based on the New "
      "Brunswick Log Rule. Stumps (6\" cm height) and tops (portion of the bole less than 4\" Dib) "
      "are excluded.  For Hardwoods - The inside-bark bole volume in cubic metres per hectare, of "
      "trees greater than 10\" DBHob, as determined from Honer's volume equations. The "
      "merchantable bole excludes the stump (6\" height) and top (portion of the bole less than "
      "8\" diameter inside bark [Dib]):solid cubic metres per hectare is converted to fbm per "
      "acre.  This does not include volume harvested in commercial thinnings."}},
    {kVariableCodes[16],  // TMAI
     "- (Total Mean Annual Increment)",
     InBoth("Total Mean Annual Increment (TMAI):"),
     {"The total volume accumulated per unit time taken to grow this volume measured in cubic "
      "metres per hectare per year.",
      "The total volume accumulated per unit time taken to grow this volume measured in cubic feet "
      "per acre per year."}},
    {kVariableCodes[17],  // MMAI
     "- (Merchantable Mean Annual Increment)",
     InBoth("Merchantable Mean Annual Increment (TMAI):"),
     {"The merchantable volume accumulated per unit time taken to grow this volume measured in "
      "cubic metres per hectare per year.",
      "The merchantable volume accumulated per unit time taken to grow this volume measured in "
      "cubic feet per acre per year."}},
    {kVariableCodes[18],  // SMAI
     "- (Sawlog Mean Annual Increment)",
     InBoth("Sawlog Mean Annual Increment (TMAI):"),
     {"The sawlog volume accumulated per unit time taken to grow this volume measured in cubic "
      "metres per hectare per year.",
      "The sawlog volume accumulated per unit time taken to grow this volume measured in cubic "
      "feet per acre per year."}},
    {kVariableCodes[19],  // CTVOL
     "- (Cumulative Total Volume)",
     InBoth("Cumulative Total Volume (CTVOL):"),
     {"The cumulative total volume including standing volume plus the volume havested in any "
      "previous commercial thinnings in cubic metres per hectare.",
      "The cumulative total volume including standing volume plus the volume havested in any "
      "previous commercial thinnings in cubic feet per acre."}},
    {kVariableCodes[20],  // CMVOL
     "- (Cumulative Merchantable Volume)",
     InBoth("Cumulative Merchantable Volume (CMVOL):"),
     {"The cumulative merchanatable volume including standing volume plus the volume havested in "
      "any previous commercial thinnings in cubic metres per hectare.",
      "The cumulative merchanatable volume including standing volume plus the volume havested in "
      "any previous commercial thinnings in cubic feet per acre."}},
    {kVariableCodes[21],  // CSVOL
     "- (Cumulative Sawlog Volume)",
     InBoth("Cumulative Sawlog Volume (CSVOL):"),
     {"The cumulative sawlog volume including standing volume plus the volume havested in any "
      "previous commercial thinnings in cubic metres per hectare.",
      "The cumulative sawlog volume including standing volume plus the volume havested in any "
      "previous commercial thinnings in board feet per acre."}},
    {kVariableCodes[22],  // CTMAI
     "- (Cumulative Total Mean Annual Increment)",
     {"Cumulative Total MAI (CTMAI):", "Cumulative Total Mean Annual Increment (CTMAI):"},
     {"The total volume accumulated including volume harvested in previous commercial thinnings "
      "per unit time it takes to grow this volume in cubic metres per hectare per year.",
      "The total volume accumulated including volume harvested in previous commercial thinnings "
      "per unit time it takes to grow this volume in cubic feet per acre per year."}},
    {kVariableCodes[23],  // CMMAI
     "- (Cumulative Merchantable Mean Annual Increment)",
     {"Cumulative Merchantable MAI (CTMAI):",
      "Cumulative Merchantable Mean Annual Increment (CTMAI):"},
     {"The merchanatble volume accumulated including volume harvested in previous commercial "
      "thinnings per unit time it takes to grow this volume in cubic metres per hectare per year.",
      "The merchanatble volume accumulated including volume harvested in previous commercial "
      "thinnings per unit time it takes to grow this volume in cubic feet per acre per year."}},
    {kVariableCodes[24],  // CSMAI
     "- (Cumulative Sawlog Mean Annual Increment)",
     {"Cumulative Sawlog MAI (CTMAI):", "Cumulative Sawlog Mean Annual Increment (CTMAI):"},
     {"The sawlog volume accumulated including volume harvested in previous commercial thinnings "
      "per unit time it takes to grow this volume in cubic metres per hectare per year.",
      "The sawlog volume accumulated including volume harvested in previous commercial thinnings "
      "per unit time it takes to grow this volume in board feet per acre per year."}},
}};

const std::array<DefinitionTerm, 2> kSiteTerms = {{
    {"Land Capability", "", InBoth("Land Capability (LC):"),
     InBoth("The estimated productivity of a site in terms of Peak Mean Annual Increment (PMAI) "
            "specified in solid cubic metres per hectare per year.  Determined from Dominant "
            "Height and Breast Height Age curves found in Forestry Field Handbook (Halvorn, "
            "1993).")},
    {"Site Index",
     "",
     InBoth("Site Index (50) Breast Height Age:"),
     {"The projected average total height of the 5 tallest free growing trees at 50 years of at "
      "Breast Height (1.3 m above ground level).  Used as an indicator of site productivity and "
      "determined from the Forestry Field Handbook (Halvorn, 1993).",
      "The projected average total height of the 5 tallest free growing trees at 50 years of at "
      "Breast Height (4.5 ft above ground level).  Used as an indicator of site productivity and "
      "determined from the Forestry Field Handbook (Halvorn, 1993)."}},
}};

const DefinitionTerm kUndefinedTerm = {"", "", InBoth("<undefined term>"),
                                       InBoth("No definition exists for this item.")};

}  // namespace arbolith
