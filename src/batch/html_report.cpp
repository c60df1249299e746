#include "batch/html_report.h"

#include "batch/sequence_line.h"
#include "platform/numbers.h"
#include "platform/version.h"

#include <algorithm>

namespace arbolith {

namespace {

using enum SequenceField;

// Lines of HTML: blanks in front, CR LF behind.
class HtmlLines {
public:
    HtmlLines() { text_.reserve(kUsualSize); }
    template <class... Pieces>
    void Add(std::size_t blanks, const Pieces&... pieces) {
        AddOpen(blanks, pieces...);
        text_ += "\r\n";
    }
    /// A line that the next one goes on with.
    template <class... Pieces>
    void AddOpen(std::size_t blanks, const Pieces&... pieces) {
        text_.append(blanks, ' ');
        (text_.append(pieces), ...);
    }
    std::string Text() && { return std::move(text_); }

private:
    static constexpr std::size_t kUsualSize = 5000;

    std::string text_;
};

/// What is said differently in the two unit systems.
struct UnitTexts {
    const char* name;
    const char* length;
    /// Over the groups of columns, up to the cumulative ones.
    std::array<const char*, 6> groups;
};

constexpr UnitTexts kMetricTexts = {
    "Met",
    "m",
    {"Diameter (cm)", "Basal Area (m&sup2;/ha)", "Freq. (stems/ha)", "Height (m)",
     "Volume (m&sup3;/ha)", "M.A.I. (m&sup3;/ha/yr)"}};

constexpr UnitTexts kImperialTexts = {
    "Imp",
    "ft",
    {"Diameter (in)", "Basal Area (ft&sup2;/acre)", "Freq. (stems/acre)", "Height (ft)",
     "Volume (ft&sup3;/acre)               SVOL (fbm/acre)",
     "M.A.I. (ft&sup3;/acre/yr)          SMAI (fbm/acre/yr)"}};

const UnitTexts& UnitTextsOf(const SequenceFields& fields) {
    return fields[kMet] == "Y" ? kMetricTexts : kImperialTexts;
}

std::string WholeText(const SequenceFields& fields, SequenceField field) {
    return DefaultText(fields.Whole(field));
}

std::string NumberText(const SequenceFields& fields, SequenceField field) {
    return DefaultText(fields.Number(field));
}

std::string RegenerationOf(const SequenceFields& fields) {
    constexpr std::size_t kShownOfSpacing = 3;
    const auto& natural = fields[kNat];
    if (natural == "Y" || (fields[kWood] == "H" && natural == "N")) return "Natural Regeneration";
    if (natural != "N") return "";
    return "Plantation:" + fields[kSpx].substr(0, kShownOfSpacing) + "x" +
           fields[kSpy].substr(0, kShownOfSpacing) + UnitTextsOf(fields).length;
}

std::string SiteOf(const SequenceFields& fields) {
    if (fields.Number(kSib) == 0) return "LCap:" + WholeText(fields, kLc);
    return fields.Whole(kLc) == 0 ? "SI:" + fields[kSib] : "";
}

std::string SpeciesOf(const SequenceFields& fields, RunDefinition& run) {
    const auto& wood = fields[kWood];
    if (wood == "H" || wood == "S")
        LoadSpeciesTables(run.species, wood == "H" ? "Hardwood" : "Softwood",
                          run.ShortHardwoodList);
    return run.species.Species(fields[kSpec]);
}

// What kind of thinning treatment 1 is and when it comes; the time is left out where it isn't
// given.
std::string TimeOfTreatment1(const SequenceFields& fields, const std::string& kind) {
    if (fields.Number(kT1Age) != 0)
        return kind + " thinning at " + WholeText(fields, kT1Age) + " years of age";
    if (fields.Number(kT1Dbh) != 0)
        return kind + " thinning at " + NumberText(fields, kT1Dbh) + " DBH";
    return "";
}

std::string Treatment1Of(const SequenceFields& fields) {
    if (fields.Whole(kT1Iba) != 0)
        return TimeOfTreatment1(fields, "Commercial") + " (" + WholeText(fields, kT1Iba) + "%)";
    if (fields.Number(kIsd) <= 0) return "";
    return TimeOfTreatment1(fields, "Pre-commercial") + " (" + NumberText(fields, kIsd) + " " +
           UnitTextsOf(fields).length + ")";
}

std::string Treatment2Of(const SequenceFields& fields) {
    std::string time;
    if (fields.Number(kT2Age) != 0) {
        time = WholeText(fields, kT2Age);
    } else if (fields.Number(kT2Dbh) != 0) {
        time = NumberText(fields, kT2Dbh);
    } else {
        return "";
    }
    return "Commercial thinning at " + time + " years of age (" + WholeText(fields, kT2Iba) + "%)";
}

std::string DateText(const Date& date) {
    constexpr std::array kMonths = {"January",   "February", "March",    "April",
                                    "May",       "June",     "July",     "August",
                                    "September", "October",  "November", "December"};
    const auto day = std::to_string(date.day);
    return std::string(kMonths.at(static_cast<std::size_t>(date.month - 1))) +
           (day.size() < 2 ? " 0" : " ") + day + ", " + std::to_string(date.year);
}

void AddTitle(HtmlLines& html, const Date& today) {
    html.Add(2, R"(<TR class="h0">)");
    html.Add(4, R"(<TD colspan="25">Halvorn)");
    html.Add(6, "- Arbolith Model - Version ", kVersion, " - ");
    html.Add(7, DateText(today));
    html.Add(4, "</TD></TR>");
}

void AddStand(HtmlLines& html, const SequenceFields& fields, std::string_view plotnum,
              const std::string& species) {
    html.Add(2, R"(<TR class="h1">)");
    html.Add(4, R"(<TD colspan="5"> Plot number: [)", plotnum, "]</TD>");
    html.Add(4, R"(<TD colspan="5" align="right">Plot parameters:</TD>)");
    html.AddOpen(4, R"(<TD colspan="2" align="center">Units: )", UnitTextsOf(fields).name, "</TD>");
    html.Add(4, R"(<TD colspan="4" align="center">Species: )", species, "</TD>");
    html.Add(4, R"(<TD colspan="3" align="center">Stocking: )", WholeText(fields, kStk), "%</TD>");
    html.Add(4, R"(<TD colspan="4" align="center">)", RegenerationOf(fields), "</TD>");
    html.Add(4, R"(<TD colspan="2" align="center">)", SiteOf(fields), "</TD> </TR>");
}

void AddTreatments(HtmlLines& html, const SequenceFields& fields, std::string_view ytbh) {
    const auto cell = [](const std::string& text) { return text.empty() ? " &nbsp; " : text; };
    html.Add(2, R"(<TR class="h1">)");
    html.Add(4, R"(<TD colspan="5">Years to breast height: [)", ytbh, "]</TD>");
    html.Add(4, R"(<TD colspan="5" align="right">Treatment parameters:</TD>)");
    html.Add(4, R"(<TD colspan="8" align="center">)", cell(Treatment1Of(fields)), "</TD>");
    html.Add(4, R"(<TD colspan="7" align="center">)", cell(Treatment2Of(fields)), "</TD></TR>");
    html.Add(2, R"(<TR class="spacer">     <TD colspan="25">&nbsp;</TD>  </TR>)");
}

void AddColumnHeads(HtmlLines& html, const UnitTexts& units) {
    html.Add(2, R"(<TR class="h2">)");
    html.Add(4, R"(<TD rowspan="2" align="center">Stump<br>)");
    html.Add(6, "Age</TD>");
    for (const char* group : units.groups)
        html.Add(4, R"(<TD colspan="3" align="center">)", group, "</TD>");
    html.Add(4, R"(<TD colspan="3" align="center">Cumulative Volume</TD>)");
    html.Add(4, R"(<TD colspan="3" align="center">Cumulative M.A.I.</TD>)");
    html.Add(2, "</TR>");
    html.Add(2, R"(<TR class="h2" align="center">)");
    // The stump age has its head above, over both lines.
    for (std::size_t i = 1; i < kVariableCodes.size(); ++i)
        html.Add(4, "<TD>", kVariableCodes[i], "</TD>");
    html.Add(2, "</TR>");
}

}  // namespace

std::string BatchGetHTMLHeader(bool gridlines) {
    HtmlLines html;
    html.Add(0, R"(<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 3.2//EN">)");
    html.Add(0, "<HTML>");
    html.Add(1, "<HEAD>");
    html.Add(2, "<TITLE></TITLE>");
    html.Add(2, R"(<STYLE TYPE="text/css">)");
    html.Add(5, "<!--");
    html.Add(5, "TABLE {page-break-after: always}");
    html.Add(5, "TR.data { font-size: xx-small; text-align: right }");
    html.Add(5, "TR.h0 { font-size: small; font-weight: bold}");
    html.Add(5, "TR.h1 { font-size: x-small}");
    html.Add(5, "TR.h2 { font-size: xx-small; text-align: center }");
    html.Add(5, "TR.spacer { font-size: 2px; text-align: center }");
    html.Add(5, "TD.data { font-size: xx-small; border-width: ", gridlines ? "1" : "0", "px}");
    html.Add(5, "-->");
    html.Add(5, "</STYLE>");
    html.Add(0, "</HEAD>");
    html.Add(0, "<BODY>");
    return std::move(html).Text();
}

std::string BatchGetHTMLTableHeader(RunDefinition& run, std::string_view ytbh,
                                    std::string_view plotnum, std::string_view params) {
    const SequenceFields fields(params);
    HtmlLines html;
    html.Add(0, R"(<TABLE BORDER cellspacing="0" bgcolor="#FFFFFF" )",
             R"(bordercolor="#CCCCCC" border="1" cellpadding="3">)");
    AddTitle(html, run.application.GetHost().Today());
    AddStand(html, fields, plotnum, SpeciesOf(fields, run));
    AddTreatments(html, fields, ytbh);
    AddColumnHeads(html, UnitTextsOf(fields));
    return std::move(html).Text();
}

void PutRowOutput(const DataValues& datavals, std::string& row) {
    constexpr std::string_view kBefore = "  <TR class=\"data\">\r\n    <TD class=\"data\">";
    constexpr std::string_view kBetween = "</TD>\r\n    <TD class=\"data\">";
    constexpr std::string_view kBehind = "</TD>\r\n  </TR>";
    std::size_t size = kBefore.size() + (datavals.size() - 2) * kBetween.size() + kBehind.size();
    for (std::size_t i = 1; i < datavals.size(); ++i) size += datavals[i].size();
    row.resize(size);
    char* at = std::copy(kBefore.begin(), kBefore.end(), row.data());
    for (std::size_t i = 1; i < datavals.size(); ++i) {
        if (i > 1) at = std::copy(kBetween.begin(), kBetween.end(), at);
        at = std::copy(datavals[i].begin(), datavals[i].end(), at);
    }
    std::copy(kBehind.begin(), kBehind.end(), at);
}

std::string BatchGetRowOutput(const DataValues& datavals) {
    std::string row;
    PutRowOutput(datavals, row);
    return row;
}

}  // namespace arbolith
