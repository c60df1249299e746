#include "form_script/timed_process.h"

#include "unit/platform/temporary_folder.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>

namespace arbolith {

using namespace std::chrono_literals;

class TimedProcessTest : public ::testing::Test {
protected:
    TimedProcessTest() {
        mkfifo(folder.PathOf("go").c_str(), 0600);
        folder.WriteProgram("waiting", "read line < go");
        process = StartProcess({folder.PathOf("waiting"), {}, folder.Path(), 0});
    }

    void LetEnd() { std::ofstream(folder.PathOf("go")) << "go\n"; }

    static void WaitFor(const Process& waited) {
        pollfd end{waited.EndDescriptor(), POLLIN, 0};
        poll(&end, 1, -1);
    }

    TemporaryFolder folder;
    std::unique_ptr<Process> process;
};

TEST_F(TimedProcessTest, EndsWithItsProcess) {
    TimedProcess timed(*process, 1h);
    EXPECT_FALSE(timed.HasEnded());
    LetEnd();
    WaitFor(timed);
    EXPECT_TRUE(timed.HasEnded());
    EXPECT_FALSE(timed.TimeIsUp());
}

TEST_F(TimedProcessTest, LooksEndedWhenTheTimeIsUp) {
    TimedProcess timed(*process, 1ms);
    WaitFor(timed);
    EXPECT_TRUE(timed.HasEnded());
    EXPECT_TRUE(timed.TimeIsUp());
    EXPECT_FALSE(process->HasEnded());
    LetEnd();
    WaitFor(*process);
}

TEST_F(TimedProcessTest, HasNoTimeWithALimitOfNothing) {
    for (const auto limit : {0ns, -5000ns}) {
        TimedProcess timed(*process, limit);
        WaitFor(timed);
        EXPECT_TRUE(timed.TimeIsUp());
    }
    LetEnd();
    WaitFor(*process);
}

}  // namespace arbolith
