// Timing two things in turn, so that a drift of the machine's speed falls on both, and judging the
// ratio of their medians.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <sys/resource.h>
#include <vector>

namespace arbolith::bench {

inline constexpr int kWarmUps = 5;
inline constexpr int kMeasurements = 41;

/// Seconds that something takes.
inline double Seconds(const std::function<void()>& something) {
    const auto start = std::chrono::steady_clock::now();
    something();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The processor time that this process has taken so far, in seconds.
inline double ProcessorSeconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& t) {
        return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

inline double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// The median time of `ours` over that of `floor`.
inline double MedianRatio(const std::function<void()>& ours, const std::function<void()>& floor) {
    std::vector<double> ourTimes;
    std::vector<double> floorTimes;
    for (int i = -kWarmUps; i < kMeasurements; ++i) {
        const double floorTime = Seconds(floor);
        const double ourTime = Seconds(ours);
        if (i < 0) continue;
        floorTimes.push_back(floorTime);
        ourTimes.push_back(ourTime);
    }
    return Median(ourTimes) / Median(floorTimes);
}

/// Prints ratios against their limits and remembers whether all were met.
class Report {
public:
    void AtMost(const std::string& name, double ratio, double limit) {
        Print(name, ratio, "most", limit, ratio <= limit);
    }
    void AtLeast(const std::string& name, double ratio, double limit) {
        Print(name, ratio, "least", limit, ratio >= limit);
    }
    bool AllHold() const { return allHold_; }

private:
    void Print(const std::string& name, double ratio, const char* kind, double limit, bool holds) {
        std::printf("%-58s %8.4f  (at %s %g)%s\n", name.c_str(), ratio, kind, limit,
                    holds ? "" : "  MISSED");
        allHold_ = allHold_ && holds;
    }

    bool allHold_ = true;
};

}  // namespace arbolith::bench
