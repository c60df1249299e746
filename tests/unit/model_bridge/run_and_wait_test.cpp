// Starting a program of the application folder and waiting for it.
#include "model_bridge/run_and_wait.h"

#include "unit/model_bridge/bridge_testing.h"
#include "unit/platform/expect_error.h"

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
    EXPECT_EQ(host.ends, 1);
}

TEST_F(RunAndWaitTest, WaitsOnWhileThisProgramLives) {
    host.whileWaiting = [] {};
    RunAndWait(application, "SWQVL.exe", StartMode::kNormal);
    EXPECT_FALSE(host.gaveUp);
}

TEST_F(RunAndWaitTest, TakesTheEditorOfTheFolderAndKeepsTheWorkingDirectory) {
    folder.WriteProgram("notepad", "");
    EditAndWait(application, "batch.qvb");
    ASSERT_EQ(host.starts.size(), 1u);
    EXPECT_EQ(host.starts[0].program, folder.PathOf("notepad"));
    EXPECT_EQ(host.starts[0].arguments, std::vector<std::string>{"batch.qvb"});
    EXPECT_EQ(host.starts[0].folder, "");
    EXPECT_EQ(host.starts[0].mode, 0);
    EXPECT_EQ(host.waits, 1);
}

TEST_F(RunAndWaitTest, TakesTheEditorOfTheSystemWhereTheFolderHoldsNone) {
    EditAndWait(application, "batch.qvb");
    EXPECT_EQ(host.starts.at(0).program, "notepad");
}

TEST_F(RunAndWaitTest, DoesNotWaitForAnEditorThatIsOnlyStarted) {
    StartEditor(application, "report.txt");
    EXPECT_EQ(host.starts.size(), 1u);
    EXPECT_EQ(host.waits, 0);
}

TEST_F(RunAndWaitTest, FailsWith53WithoutAnEditor) {
    host.canStart = false;
    EXPECT_ERROR(53, EditAndWait(application, "batch.qvb"));
    EXPECT_ERROR(53, StartEditor(application, "report.txt"));
}

TEST_F(RunAndWaitTest, UnwindsWhenThisProgramEndsBeforeTheEditor) {
    host.whileWaiting = [this] { application.End(); };
    EXPECT_THROW(EditAndWait(application, "batch.qvb"), ProgramEnded);
}

}  // namespace
}  // namespace arbolith
