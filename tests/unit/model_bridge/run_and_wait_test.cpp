// Starting a program of the application folder and waiting for it.
#include "model_bridge/run_and_wait.h"

#include "unit/model_bridge/bridge_testing.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

class RunAndWaitTest : public testing::Test {
protected:
    TestFolder folder;
    FakeHost host;
    Application application{host, folder.Path(), ""};
};

TEST_F(RunAndWaitTest, CallsTheProgramByItsFullPathInItsFolder) {
    RunAndWait(application, "SWQVL.exe", StartMode::kHidden);
    ASSERT_EQ(host.starts.size(), 1u);
    EXPECT_EQ(host.starts[0].program, folder.PathOf("SWQVL.exe"));
    EXPECT_EQ(host.starts[0].folder, folder.Path());
    EXPECT_TRUE(host.starts[0].arguments.empty());
    EXPECT_EQ(host.starts[0].mode, 1);
    EXPECT_EQ(host.waits, 1);
}

TEST_F(RunAndWaitTest, ShowsTheProgramInTheNormalMode) {
    RunAndWait(application, "HWQVL.exe", StartMode::kNormal);
    EXPECT_EQ(host.starts[0].mode, 0);
}

TEST_F(RunAndWaitTest, EndsAtOnceWhereTheProgramCannotBeStarted) {
    host.canStart = false;
    EXPECT_NO_THROW(RunAndWait(application, "SWQVL.exe", StartMode::kNormal));
    EXPECT_EQ(host.waits, 0);
}

TEST_F(RunAndWaitTest, UnwindsWhenThisProgramEndsMeanwhile) {
    host.whileWaiting = [this] { application.End(); };
    EXPECT_THROW(RunAndWait(application, "SWQVL.exe", StartMode::kNormal), ProgramEnded);
    EXPECT_TRUE(host.gaveUp);
    EXPECT_TRUE(host.ended);
}

TEST_F(RunAndWaitTest, WaitsOnWhileThisProgramLives) {
    host.whileWaiting = [] {};
    RunAndWait(application, "SWQVL.exe", StartMode::kNormal);
    EXPECT_FALSE(host.gaveUp);
}

}  // namespace
}  // namespace arbolith
