// Site classes and what follows from a site index.
#include "models/site.h"

#include "models/numbers.h"

#include <algorithm>
#include <cstddef>

namespace growth {

namespace {

constexpr std::array<double, 13> kGroupS = {8.29,  10.14, 11.85, 13.6,  15.38, 17.06, 18.65,
                                            20.41, 22.04, 23.57, 25.16, 26.64, 28.06};
constexpr std::array<double, 5> kGroupT = {9.3, 13.2, 17.2, 21.8, 28.3};
constexpr std::array<double, 6> kGroupA = {8.6, 11.6, 14.6, 17.5, 20.5, 23.8};
constexpr std::array<double, 4> kGroupB = {9.5, 13.9, 18.8, 25.9};

constexpr double kPlantedShare = 0.75;

}  // namespace

std::span<const double> SiteClasses(SiteGroup group) {
    switch (group) {
        case SiteGroup::T:
            return kGroupT;
        case SiteGroup::A:
            return kGroupA;
        case SiteGroup::B:
            return kGroupB;
        case SiteGroup::S:
            break;
    }
    return kGroupS;
}

double ClassSiteIndex(SiteGroup group, double landClass) {
    const auto classes = SiteClasses(group);
    const auto count = static_cast<double>(classes.size());
    if (landClass <= count) return classes[static_cast<std::size_t>(landClass) - 1];
    const double lastStep = classes.back() - classes[classes.size() - 2];
    return classes.back() + (landClass - count) * lastStep;
}

double FullStocking(const Species& species, double siteIndex) {
    const auto classes = SiteClasses(species.siteGroup);
    const auto above = std::upper_bound(classes.begin(), classes.end(), siteIndex);
    const auto next = static_cast<std::size_t>(above - classes.begin());
    if (next == 0) return species.fullStocking.front();
    if (next == classes.size()) return species.fullStocking[next - 1];
    const double share = (siteIndex - classes[next - 1]) / (classes[next] - classes[next - 1]);
    const double lower = species.fullStocking[next - 1];
    return lower + share * (species.fullStocking[next] - lower);
}

double YearsToBreastHeight(Wood wood, double siteIndex, bool planted) {
    const double years =
        wood == Wood::Softwood ? 2.16 + 110.76 / siteIndex : 0.33 + 38.56 / siteIndex;
    return RoundTo(planted ? kPlantedShare * years : years, 1);
}

}  // namespace growth
