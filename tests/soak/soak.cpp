// The program on its real windows in the hands of someone who never tires: action after action by
// chance, session after session, with everything watched that a long day brings out. A crash, an
// error that escapes, a wait without end and memory that grows are findings.
//
//     soak --folder DIR --samples DIR [--seconds N | --actions N] [--seed N] [--log FILE]
//
// The folder holds the models; what a session needs is put there from the samples and what it left
// is taken away. The log is a form script of the session that is on.
#include "form_script/on_windows.h"
#include "shell/program.h"
#include "soak/memory.h"
#include "soak/tireless_host.h"
#include "soak/walk.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <unistd.h>
#include <vector>

namespace arbolith {
namespace {

constexpr unsigned kSecondsPerAction = 120;
constexpr unsigned long kMostActionsOfASession = 3000;
constexpr double kMegabyte = 1024.0 * 1024.0;

struct Options {
    std::filesystem::path folder;
    std::filesystem::path samples;
    std::filesystem::path log = "soak.script";
    std::chrono::seconds time = std::chrono::hours(2);
    unsigned long actions = 0;  ///< In all; 0 for as many as the time allows.
    unsigned seed = 1;
};

Options ReadOptions(const std::vector<std::string>& words) {
    Options options;
    for (std::size_t i = 0; i < words.size(); i += 2) {
        const auto& word = words[i];
        if (i + 1 == words.size()) throw std::invalid_argument(word + " needs a value");
        const auto& value = words[i + 1];
        if (word == "--folder") {
            options.folder = std::filesystem::absolute(value);
        } else if (word == "--samples") {
            options.samples = std::filesystem::absolute(value);
        } else if (word == "--log") {
            options.log = std::filesystem::absolute(value);
        } else if (word == "--seconds") {
            options.time = std::chrono::seconds(std::stoul(value));
        } else if (word == "--actions") {
            options.actions = std::stoul(value);
        } else if (word == "--seed") {
            options.seed = static_cast<unsigned>(std::stoul(value));
        } else {
            throw std::invalid_argument("unknown option " + word);
        }
    }
    if (options.folder.empty() || options.samples.empty())
        throw std::invalid_argument("--folder and --samples are needed");
    return options;
}

/// What all sessions together have come to.
struct Tally {
    unsigned long actions = 0;
    std::vector<Memory> atRest;  ///< After each session.
    std::map<std::string, int> boxes;
    std::map<std::string, int> refused;
};

void Add(std::map<std::string, int>& sums, const std::map<std::string, int>& counts) {
    for (const auto& [name, count] : counts) sums[name] += count;
}

class Soak {
public:
    Soak(Options options, Host& inner, const MakeDriver& makeDriver)
        : options_(std::move(options)),
          inner_(inner),
          makeDriver_(makeDriver),
          dice_(options_.seed),
          began_(std::chrono::steady_clock::now()) {}

    /// Whether nothing was found.
    bool Run() {
        while (GoesOn()) {
            PrepareFolder();
            RunOneSession();
            tally_.atRest.push_back(MeasureMemory());
            Tell();
        }
        TellCounts("boxes", tally_.boxes);
        TellCounts("refused actions", tally_.refused);
        return IsMemoryFlat();
    }

private:
    bool GoesOn() const {
        if (options_.actions > 0) return tally_.actions < options_.actions;
        return std::chrono::steady_clock::now() - began_ < options_.time;
    }

    // The models stay, all else is as it was before the first session.
    void PrepareFolder() {
        for (const auto& entry : std::filesystem::directory_iterator(options_.folder))
            if (entry.path().extension() != ".exe") std::filesystem::remove_all(entry.path());
        for (const auto& entry : std::filesystem::directory_iterator(options_.samples))
            if (entry.path().extension() == ".qvn" || entry.path().extension() == ".qvb")
                std::filesystem::copy(entry.path(), options_.folder);
    }

    void RunOneSession() {
        std::ofstream log(options_.log);
        TirelessHost host(inner_, options_.folder.string(), dice_);
        Application application(host, options_.folder.string(), "");
        const auto driver = makeDriver_(application);
        Program program(application);
        Walk walk(application, *driver, dice_, log);
        // Someone who goes on while a model runs.
        bool waiting = false;
        host.onWait = [&] {
            if (std::exchange(waiting, true)) return;
            if (dice_.Below(4) == 0) walk.TakeStep();
            waiting = false;
        };
        program.Start();
        driver->Tick(program.GetSplash().Timer1);
        const auto most = 200 + dice_.Below(kMostActionsOfASession);
        for (std::size_t i = 0; i < most && GoesOn() && !application.HasEnded(); ++i) {
            alarm(kSecondsPerAction);
            walk.TakeStep();
            alarm(0);
            ++tally_.actions;
        }
        Add(tally_.boxes, host.Boxes());
        Add(tally_.refused, walk.Refused());
    }

    void Tell() const {
        const auto passed = std::chrono::steady_clock::now() - began_;
        const auto& memory = tally_.atRest.back();
        std::printf(
            "%ld min: %lu actions, %zu sessions; at rest %.2f MB of heap, %.0f MB resident\n",
            static_cast<long>(std::chrono::duration_cast<std::chrono::minutes>(passed).count()),
            tally_.actions, tally_.atRest.size(), static_cast<double>(memory.heap) / kMegabyte,
            static_cast<double>(memory.resident) / kMegabyte);
        std::fflush(stdout);
    }

    static void TellCounts(const char* title, const std::map<std::string, int>& counts) {
        std::printf("%s:\n", title);
        for (const auto& [text, count] : counts) std::printf("%8d  %s\n", count, text.c_str());
    }

    // Compares the sessions of the second quarter with those of the last one: by then all that is
    // made once has been made.
    bool IsMemoryFlat() const {
        const auto quarter = tally_.atRest.size() / 4;
        if (quarter < 5) {
            std::printf("too few sessions to judge the memory by\n");
            return true;
        }
        const auto heapOf = [&](std::size_t first) {
            std::vector<std::size_t> heaps;
            for (std::size_t i = first; i < first + quarter; ++i)
                heaps.push_back(tally_.atRest[i].heap);
            std::nth_element(heaps.begin(), heaps.begin() + static_cast<long>(quarter / 2),
                             heaps.end());
            return static_cast<double>(heaps[quarter / 2]);
        };
        constexpr double kMost = 1.05;
        const double growth = heapOf(3 * quarter) / heapOf(quarter);
        std::printf("heap at rest, last quarter over the second: %.3f (at most %.2f)\n", growth,
                    kMost);
        return growth <= kMost;
    }

    Options options_;
    Host& inner_;
    const MakeDriver& makeDriver_;
    Dice dice_;
    std::chrono::steady_clock::time_point began_;
    Tally tally_;
};

int RunWith(const std::vector<std::string>& words) {
    try {
        const auto options = ReadOptions(words);
        std::filesystem::current_path(options.folder);
        return OnWindows(std::nullopt, [&](Host& host, const MakeDriver& makeDriver) {
            KeepNoPictures();
            return Soak(options, host, makeDriver).Run() ? 0 : 1;
        });
    } catch (const std::exception& error) {
        std::fprintf(stderr, "soak: %s\n", error.what());
    }
    return 2;
}

}  // namespace
}  // namespace arbolith

int main(int argc, char** argv) {
    return arbolith::RunWith({argv + 1, argv + argc});
}
