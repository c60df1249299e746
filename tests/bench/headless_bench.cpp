// What the program adds to a model's own time, without windows: a single run, the treatment probe,
// and the processor time of waiting; and what it adds to the bare reading of a batch. --check turns
// the limits into the exit code.
#include "bench/application_folder.h"
#include "bench/bare_batch.h"
#include "bench/bare_exchange.h"
#include "bench/headless_program.h"
#include "bench/measure.h"

#include <cstring>
#include <filesystem>
namespace arbolith::bench {

namespace {

constexpr double kRunLimit = 1.5;
constexpr double kProbeLimit = 1.3;
constexpr double kWaitLimit = 0.005;
constexpr double kBatchLimit = 5;

double RunRatio() {
    const ApplicationFolder folder;
    HeadlessProgram headless(folder.Path());
    ExchangeBare(folder.Path(), "SWQVL.exe", kWhitePineLine);
    return MedianRatio([&] { headless.user.Click(headless.Form().Run); },
                       [&] { RunBareModel(folder.Path(), "SWQVL.exe"); });
}

double ProbeRatio() {
    const ApplicationFolder folder;
    HeadlessProgram headless(folder.Path());
    int age = 40;
    return MedianRatio(
        [&] {
            age = age == 40 ? 41 : 40;
            headless.user.Edited(headless.Form().Age1, std::to_string(age), 2);
        },
        [&] { ExchangeBare(folder.Path(), "SWQVL.exe", kWhitePineLine); });
}

// Processor time of a run with a model of five seconds, over the time it took.
double WaitRatio() {
    const ApplicationFolder models;
    ExchangeBare(models.Path(), "SWQVL.exe", kWhitePineLine);
    const ApplicationFolder folder(SLEEPING_MODEL, SLEEPING_MODEL);
    std::filesystem::copy_file(models.Path() + "/_OUTPUT.TMP", folder.Path() + "/_OUTPUT.TMP");
    HeadlessProgram headless(folder.Path());
    const double before = ProcessorSeconds();
    const double waited = Seconds([&] { headless.user.Click(headless.Form().Run); });
    return (ProcessorSeconds() - before) / waited;
}

// The largest batch there can be, into the panel.
double BatchReadRatio() {
    const ApplicationFolder folder;
    HeadlessProgram headless(folder.Path());
    return MedianRatio([&] { headless.Read(FULL_BATCH); }, [] { ReadAndSplitBare(FULL_BATCH); });
}

int Main(bool check) {
    Report report;
    report.AtMost("single run, click to filled table / bare model", RunRatio(), kRunLimit);
    report.AtMost("probe on a change of Age1 / bare exchange", ProbeRatio(), kProbeLimit);
    report.AtMost("processor time of waiting / time waited", WaitRatio(), kWaitLimit);
    report.AtMost("batch of 1025 into the panel / bare read and split", BatchReadRatio(),
                  kBatchLimit);
    return check && !report.AllHold() ? 1 : 0;
}

}  // namespace

}  // namespace arbolith::bench

int main(int argc, char** argv) {
    return arbolith::bench::Main(argc > 1 && std::strcmp(argv[1], "--check") == 0);
}
