// What the program adds to a model's own time, without windows: a single run, the treatment probe,
// and the processor time of waiting. --check turns the limits into the exit code.
#include "bench/application_folder.h"
#include "bench/bare_exchange.h"
#include "bench/measure.h"
#include "bench/white_pine.h"
#include "platform/headless_host.h"
#include "shell/program.h"

#include <cstring>
#include <filesystem>
namespace arbolith::bench {

namespace {

constexpr double kRunLimit = 1.5;
constexpr double kProbeLimit = 1.3;
constexpr double kWaitLimit = 0.005;

struct HeadlessProgram {
    explicit HeadlessProgram(const std::string& folder)
        : application(host, folder, ""), program(application), user(application) {
        program.Start();
        user.Tick(program.GetSplash().Timer1);
        EnterWhitePine(user, Form());
    }
    MainForm& Form() { return program.Run().form; }

    HeadlessHost host;
    Application application;
    Program program;
    UserActions user;
};

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

int Main(bool check) {
    Report report;
    report.AtMost("single run, click to filled table / bare model", RunRatio(), kRunLimit);
    report.AtMost("probe on a change of Age1 / bare exchange", ProbeRatio(), kProbeLimit);
    report.AtMost("processor time of waiting / time waited", WaitRatio(), kWaitLimit);
    return check && !report.AllHold() ? 1 : 0;
}

}  // namespace

}  // namespace arbolith::bench

int main(int argc, char** argv) {
    return arbolith::bench::Main(argc > 1 && std::strcmp(argv[1], "--check") == 0);
}
