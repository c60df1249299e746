#include "run_definition/guidance.h"

namespace arbolith {

namespace {

constexpr const char* kSelectSpecies =
    "Select the species which is the most dominant in your stand.";
constexpr const char* kSiteBase =
    "Enter the Site Index or Land Capability (LC) based on the Softwood Land Capability curves "
    "found in the Halvorn Forestry Field Handbook (1993; pg1,2).";
constexpr const char* kRotationBase =
    "Enter the length of the simulation as either the ending stump age (Rotation Age) or average "
    "diameter at breast height (Rotation DBH). \n";
constexpr const char* kRotationAgeRange = "Rotation Age: Minimum = 20 years, Maximum = 120 years";
constexpr const char* kRatio = "As well, the ratio between the two dimensions must not exceed 2:1";

bool IsMetric(const RunDefinition& run) {
    return run.globals.UnitSystem == "Metric";
}

// The range of the site index and the classes that it corresponds to, by wood type and species.
std::string SiteIndexRange(const RunDefinition& run) {
    struct Row {
        const char* metric;
        const char* imperial;
        const char* classes;
    };
    static constexpr Row kSoftwood = {"6 m to 30 m. ", "19.7 ft to 98.4 ft. ", "1-13"};
    static constexpr Row kBirchMaple = {"8 m to 20 m. ", "26.2 ft to 65.6 ft. ", "1-3"};
    static constexpr Row kAspen = {"8 m to 24 m. ", "26.2 ft to 78.7 ft. ", "1-5"};
    static constexpr Row kOther = {"8 m to 24 m. ", "26.2 ft to 78.7 ft. ", "1-4"};
    const auto& species = run.form.Step3_Spec.Caption();
    const auto* row = &kOther;
    if (run.record.WDTYPE == "Softwood") {
        row = &kSoftwood;
    } else if (species == "White Birch" || species == "Red Maple") {
        row = &kBirchMaple;
    } else if (species == "Trembling Aspen" || species == "Largetooth Aspen") {
        row = &kAspen;
    }
    return std::string("The Site Index can range from ") +
           (IsMetric(run) ? row->metric : row->imperial) +
           "This corresponds to Land Capabilities ranging from " + row->classes +
           " cubic meters per hectare year.";
}

}  // namespace

void GuideStep2(RunDefinition& run) {
    auto& form = run.form;
    if (run.record.WDTYPE != "Softwood") {
        form.Help2.SetCaption("Plantation option not enabled for hardwood model.");
    } else if (!form.chkPlant.Value()) {
        form.Help2.SetCaption("");
    } else if (IsMetric(run)) {
        form.Help2.SetCaption(
            std::string("Please enter X and Y dimension spacings of minimum lengths: 1.2 m x 1.2 m "
                        "(6729/ha) and of maximum lengths: 3.0 m x 3.0 m (1077/ha).\n") +
            kRatio + ".");
    } else {
        form.Help2.SetCaption(
            std::string("Please enter X and Y dimension spacings of minimum lengths: 4 ft x 4 ft "
                        "(2723/ac) and of maximum lengths: 10 ft x 10 ft (436/ac).\n") +
            kRatio + " for either dimension.");
    }
}

void GuideStep3(RunDefinition& run) {
    auto& form = run.form;
    const bool norwaySpruce = form.lstSpecies.Text() == "Norway Spruce";
    form.Help3.SetCaption(
        norwaySpruce ? std::string(kSelectSpecies) +
                           "\nNorway Spruce will normally achieve four (4) LC classes higher than "
                           "other (native) species."
                     : kSelectSpecies);
    form.NSpruceHelp.SetVisible(norwaySpruce);
}

void GuideStep4(RunDefinition& run) {
    auto& form = run.form;
    form.Help4.SetCaption(kSiteBase);
    if (!form.choose_Site.Value()) return;
    // The softwood text drops the base text, the hardwood text keeps it.
    const std::string base = run.record.WDTYPE == "Softwood" ? "" : kSiteBase;
    form.Help4.SetCaption(base + "\n" + SiteIndexRange(run));
}

void GuideStep6(RunDefinition& run) {
    auto& form = run.form;
    if (!form.Choose_Swd.Value()) {
        form.Help6.SetCaption(
            std::string("Enter the length of the simulation as a Rotation Age.\n") +
            kRotationAgeRange);
    } else if (form.Step6_opt1.Value()) {
        form.Help6.SetCaption(std::string(kRotationBase) + kRotationAgeRange);
    } else {
        form.Help6.SetCaption(std::string(kRotationBase) +
                              (form.choose_Metric.Value()
                                   ? "Rotation DBH: Minimum = 10 cm, Maximum = 50 cm"
                                   : "Rotation DBH: Minimum = 4 in, Maximum = 20 in"));
    }
}

void GuideStep7(RunDefinition& run) {
    auto& form = run.form;
    std::string text =
        "Enter the age or diameter at which a precommerical or commercial thinning is to be "
        "simulated.  ";
    if (IsMetric(run)) {
        text +=
            "Specify precommercial thinning (performed before stand is 9 m tall) in spacing.  "
            "Specified spacing must be between 1.2 m and 3.0 m for softwood and 1.8 m and 3.0 m "
            "for hardwood.  "
            "Specify commercial thinning (performed after stand averages 14 cm in diameter) as a "
            "percentage basal area reduction.  ";
    } else {
        text +=
            "Specify precommercial thinning (performed before stand is 30 ft tall) in spacing.  "
            "Specified spacing must be between 4 ft and 10 ft for softwood and 6 and 10 ft for "
            "hardwood.  "
            "Specify commercial thinning (performed after stand averages 5.5 inches in diameter) "
            "as a percentage basal area reduction.  ";
    }
    text += "Basal area reductions must be between 10 and 60 percent.";
    if (run.record.WDTYPE == "Hardwood" || run.SoftwoodT2Allowed || form.Adv_Mode.Checked())
        text += "\nNote: Treatment 2 can only be a commercial thinning.";
    form.Help7.SetCaption(text);
}

void GuideFreshForm(RunDefinition& run) {
    auto& form = run.form;
    form.Help1.SetCaption("");
    form.Help2.SetCaption("");
    form.Help3.SetCaption(kSelectSpecies);
    form.Help4.SetCaption("");
    form.Help5.SetCaption(
        "Enter expected stocking at rotation as a percentage from 1% to 100% (inclusive). "
        "This is the proportion of the stand area without openings. "
        "All full stocking yields(100% stocking) are multiplied by this percentage to give actual "
        "yields.");
    form.Help7.SetCaption(
        "Enter the age or diameter at which a precommerical or commercial thinning is to be "
        "simulated. "
        "Specify precommercial thinning (performed before stand is 9 m tall) in spacing. "
        "Specified spacing must be between 1.2 m and 3.0 m for softwood & 1.8 m and 3.0 m for "
        "hardwood. "
        "Specify commercial thinning (performed after stand averages 14 cm in diameter) as a "
        "percentage basal area reduction. "
        "Basal area reductions must be between 10 and 60 percent.");
}

}  // namespace arbolith
