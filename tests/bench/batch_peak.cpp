// Runs a batch file in an application folder and prints the peak of its own memory in KiB.
//
//     batch_peak FOLDER BATCH
#include "batch/batch.h"
#include "platform/headless_host.h"

#include <cstdio>
#include <fstream>

namespace arbolith {

namespace {

// The kernel's figure for this program alone; that of getrusage may be its parent's.
long PeakKilobytes() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        long peak = 0;
        if (word == "VmHWM:" && status >> peak) return peak;
    }
    return 0;
}

int Main(const std::string& folder, const std::string& path) {
    HeadlessHost host;
    Application application(host, folder, "");
    RunDefinition run(application);
    Batch batch(run);
    ReadBatch(batch, path);
    batch.panel.batch_out.SetText(folder + "/report.txt");
    StartBatch(batch);
    if (batch.panel.TotalProg.Value() != batch.panel.TotalProg.Max()) return 1;
    std::printf("%ld\n", PeakKilobytes());
    return 0;
}

}  // namespace

}  // namespace arbolith

int main(int argc, char** argv) {
    return argc == 3 ? arbolith::Main(argv[1], argv[2]) : 2;
}
