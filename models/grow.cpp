// The order of calculation of a stand.
#include "models/grow.h"

#include "models/height.h"
#include "models/numbers.h"
#include "models/site.h"
#include "models/stocking.h"

#include <algorithm>
#include <cmath>

namespace growth {

namespace {

constexpr double kFewestPlanted = 1.0;
constexpr double kMostPlanted = 100000.0;
constexpr double kHighestStocking = 1000.0;  // percent
constexpr double kMostRemoved = 90.0;        // percent
constexpr double kSmallestDiameter = 1.0;    // cm: a stand below it has no trees yet

constexpr std::array<std::array<int, kVariables>, 2> kDecimals = {{
    {1, 2, 0, 1, 1, 2, 1, 2},  // metric
    {1, 1, 0, 1, 0, 1, 0, 1},  // imperial
}};

bool CanGrow(const Species* species, const StandLine& line) {
    const bool hasSite = line.landClass >= 1.0 || line.siteIndex > 0.0;
    const bool hasLength = line.rotationAge >= 1.0 || line.rotationDiameter > 0.0;
    return species != nullptr && hasSite && hasLength && line.stocking > 0.0;
}

// Site index in m; the class goes before the index.
double SiteIndexOf(const Species& species, const StandLine& line) {
    const double given = line.units == Units::Metric ? line.siteIndex : line.siteIndex * kMPerFoot;
    const double landClass = std::floor(line.landClass);
    const double wanted = landClass >= 1.0 ? ClassSiteIndex(species.siteGroup, landClass) : given;
    return std::clamp(wanted, kLowestSiteIndex, kHighestSiteIndex);
}

// Planted stems per hectare, or 0 for a stand that grows as a natural one.
double PlantedStems(const StandLine& line) {
    if (!line.planted) return 0.0;
    const bool metric = line.units == Units::Metric;
    double stems = line.frequency;
    if (stems <= 0.0 && line.spacingX > 0.0 && line.spacingY > 0.0) {
        const double area = metric ? kSquareMPerHectare : kSquareFeetPerAcre;
        stems = area / (line.spacingX * line.spacingY);
    }
    if (stems <= 0.0) return 0.0;
    if (!metric) stems /= kHectaresPerAcre;
    return std::clamp(stems, kFewestPlanted, kMostPlanted);
}

// What a treatment does and when. Without effect, it is none.
struct Treatment {
    double age = 0.0;       // years; 0 where the diameter decides
    double diameter = 0.0;  // in the unit of the run
    double removal = 0.0;   // share of the stems; 0 for a spacing
    double spacing = 0.0;   // m
    bool pending = false;

    bool IsDue(int standAge, double printedDiameter) const {
        if (!pending) return false;
        return age > 0.0 ? standAge >= age : printedDiameter >= diameter;
    }
};

double RemovedShare(double percent) {
    return percent > 0.0 ? std::min(percent, kMostRemoved) / 100.0 : 0.0;
}

std::array<Treatment, 2> TreatmentsOf(const StandLine& line) {
    Treatment first;
    first.age = line.treatment1Age;
    first.diameter = line.treatment1Diameter;
    first.removal = RemovedShare(line.treatment1Removal);
    first.spacing = line.treatment1Spacing;
    if (line.units == Units::Imperial) first.spacing *= kMPerFoot;
    first.pending =
        (first.age > 0.0 || first.diameter > 0.0) && (first.removal > 0.0 || first.spacing > 0.0);
    Treatment second;
    second.age = line.treatment2Age;
    second.removal = RemovedShare(line.treatment2Removal);
    second.pending = second.age > 0.0 && second.removal > 0.0;
    return {first, second};
}

// From the model's values per hectare to those of a row, for an area unit and a stocking.
struct OutputScale {
    double diameter = 1.0;
    double basalArea = 1.0;
    double stems = 1.0;
    double height = 1.0;
    std::array<double, kSizeClasses> volume = {1.0, 1.0, 1.0};
};

OutputScale ScaleOf(const StandLine& line) {
    const double full = std::min(line.stocking, kHighestStocking) / 100.0;
    if (line.units == Units::Metric) return {1.0, full, full, 1.0, {full, full, full}};
    const double perAcre = full * kHectaresPerAcre;
    const double cubicFeet = perAcre / kCubicMPerCubicFoot;
    return {1.0 / kCmPerInch,
            perAcre / (kMPerFoot * kMPerFoot),
            perAcre,
            1.0 / kMPerFoot,
            {cubicFeet, cubicFeet, perAcre}};
}

// A stand that grows: everything that stays the same over its rows, and its treatments so far.
class GrowingStand {
public:
    GrowingStand(const Species& species, const StandLine& line);

    Yield Grow();

private:
    struct State {
        bool hasTrees = false;
        FullStand full{};
        double height = 0.0;
        StemsAndDiameter stand{};
        AllClasses classes{};
    };

    State StateAt(int age) const;
    Row RowOf(int age, const AllClasses& classes) const;
    void Treat(Treatment& treatment, int age, double printedDiameter, State& state);
    void Harvest(double share, AllClasses& classes);
    int LastAge() const;
    double PrintedDiameter(const State& state) const;

    const StandLine& line;
    double plantedStems;
    double siteIndex;
    double yearsToBreastHeight;
    HeightCurve heights;
    DensityLaw density;
    SizeClassifier classifier;
    OutputScale scale;
    std::array<Treatment, 2> treatments;
    Stocking stocking;
    std::array<double, kSizeClasses> harvested{};
};

GrowingStand::GrowingStand(const Species& species, const StandLine& standLine)
    : line(standLine),
      plantedStems(PlantedStems(standLine)),
      siteIndex(SiteIndexOf(species, standLine)),
      yearsToBreastHeight(YearsToBreastHeight(species.wood, siteIndex, plantedStems > 0.0)),
      heights(species.height, siteIndex),
      density(species.density, FullStocking(species, siteIndex)),
      classifier(species, plantedStems > 0.0, standLine.units),
      scale(ScaleOf(standLine)),
      treatments(TreatmentsOf(standLine)),
      stocking(plantedStems > 0.0 ? plantedStems : species.density.naturalStart) {}

Yield GrowingStand::Grow() {
    Yield yield{yearsToBreastHeight, {}};
    const int last = LastAge();
    yield.rows.reserve(static_cast<std::size_t>(last / kRowStep) + 1);
    const bool endsByDiameter = line.rotationAge < 1.0;
    for (int age = std::min(kRowStep, last);; age = std::min(age + kRowStep, last)) {
        State state = StateAt(age);
        yield.rows.push_back(RowOf(age, state.classes));
        const double printedDiameter = PrintedDiameter(state);
        if (age == last || (endsByDiameter && printedDiameter >= line.rotationDiameter)) break;
        if (!state.hasTrees) continue;
        for (Treatment& treatment : treatments) Treat(treatment, age, printedDiameter, state);
    }
    return yield;
}

int GrowingStand::LastAge() const {
    if (line.rotationAge < 1.0) return kOldestAge;
    return static_cast<int>(std::min(line.rotationAge, static_cast<double>(kOldestAge)));
}

GrowingStand::State GrowingStand::StateAt(int age) const {
    State state;
    const double breastHeightAge = age - yearsToBreastHeight;
    if (breastHeightAge <= 0.0) return state;
    state.height = heights.At(breastHeightAge);
    if (state.height <= kBreastHeight) return state;
    state.full = density.At(state.height);
    state.stand = stocking.At(state.full, age);
    state.hasTrees = state.stand.diameter >= kSmallestDiameter;
    if (state.hasTrees) state.classes = classifier.Classes(state.stand, state.height);
    return state;
}

double GrowingStand::PrintedDiameter(const State& state) const {
    return RoundTo(state.classes[kTotalClass].diameter * scale.diameter,
                   DecimalsOf(kDbh, line.units));
}

Row GrowingStand::RowOf(int age, const AllClasses& classes) const {
    Row row;
    row.age = age;
    for (std::size_t i = 0; i < kSizeClasses; ++i) {
        const ClassValues& values = classes[i];
        const double volume = values.volume * scale.volume[i];
        const double cumulative = volume + harvested[i] * scale.volume[i];
        row.values[kDbh][i] = values.diameter * scale.diameter;
        row.values[kBa][i] = values.basalArea * scale.basalArea;
        row.values[kF][i] = values.stems * scale.stems;
        row.values[kH][i] = values.height * scale.height;
        row.values[kVol][i] = volume;
        row.values[kMai][i] = volume / age;
        row.values[kCvol][i] = cumulative;
        row.values[kCmai][i] = cumulative / age;
    }
    return row;
}

// Carries out a treatment that is due; `state` becomes what it leaves.
void GrowingStand::Treat(Treatment& treatment, int age, double printedDiameter, State& state) {
    if (!treatment.IsDue(age, printedDiameter)) return;
    treatment.pending = false;
    const StemsAndDiameter before = state.stand;
    if (treatment.removal > 0.0) {
        state.stand = Reduced(treatment.removal, before);
        Harvest(treatment.removal, state.classes);
    } else {
        state.stand = SpacedTo(treatment.spacing, before);
        if (state.stand.stems >= before.stems) return;
        state.classes = classifier.Classes(state.stand, state.height);
    }
    stocking.Thin(state.full, age, before, state.stand);
}

// Takes a share of every class. Diameters and heights stay.
void GrowingStand::Harvest(double share, AllClasses& classes) {
    for (std::size_t i = 0; i < kSizeClasses; ++i) {
        ClassValues& values = classes[i];
        harvested[i] += share * values.volume;
        values.stems *= 1.0 - share;
        values.basalArea *= 1.0 - share;
        values.volume *= 1.0 - share;
    }
}

}  // namespace

int DecimalsOf(Variable variable, Units units) {
    return kDecimals[units == Units::Metric ? 0 : 1][variable];
}

Yield GrowStand(Wood wood, const StandLine& line) {
    const Species* const species = FindSpecies(wood, line.species);
    if (!CanGrow(species, line)) return {0.0, {Row{}}};
    return GrowingStand(*species, line).Grow();
}

}  // namespace growth
