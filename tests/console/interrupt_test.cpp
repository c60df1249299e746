#include "console/console_run.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>

namespace arbolith {

class InterruptedRuns : public ConsoleTest {
public:
    // A model that tells its number, asks the console program to end and goes on for long.
    void ModelThatSends(const std::string& signal) const {
        ReplaceModels("echo $$ > \"" + models.Path() + "/id\"; kill -" + signal +
                      " $PPID; exec /bin/sleep 1000");
    }
    // The model is no process any more, or one that nobody has waited for yet.
    bool ModelHasEnded() const {
        const auto id = models.Read("id").substr(0, models.Read("id").find('\n'));
        const auto status = "/proc/" + id + "/cmdline";
        std::ifstream file(status);
        return std::string(std::istreambuf_iterator<char>(file), {}).find("sleep") ==
               std::string::npos;
    }
};

TEST_F(InterruptedRuns, EndInOrder) {
    work.Write("stand.qvn", StandLines().Text());
    work.Write("stands.qvb", BatchText({SequenceLine("1", "S")}));
    work.Write("report.txt", "older");
    for (const auto& [name, number] :
         std::map<std::string, int>{{"INT", SIGINT}, {"TERM", SIGTERM}, {"HUP", SIGHUP}}) {
        ModelThatSends(name);
        for (const auto& words : {std::vector<std::string>{"run", "stand.qvn"},
                                  std::vector<std::string>{"batch", "stands.qvb"}}) {
            const auto ended = Run({words[0], words[1], "--output", "report.txt"});
            EXPECT_EQ(ended.status, 128 + number);
            EXPECT_EQ(ended.errors, "arbolith-cli: ended by a signal\n");
            EXPECT_TRUE(ModelHasEnded());
            EXPECT_TRUE(LeftNothingBehind());
            EXPECT_EQ(work.Read("report.txt"), "older");
        }
    }
}

TEST_F(InterruptedRuns, AModelThatWontEndIsKilled) {
    work.Write("stand.qvn", StandLines().Text());
    ReplaceModels("trap '' TERM; echo $$ > \"" + models.Path() +
                  "/id\"; kill -TERM $PPID; while :; do /bin/sleep 0.1; done");
    EXPECT_EQ(Run({"run", "stand.qvn"}).status, 128 + SIGTERM);
    EXPECT_TRUE(LeftNothingBehind());
}

}  // namespace arbolith
