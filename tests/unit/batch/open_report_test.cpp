// Who gets the finished report.
#include "batch/open_report.h"

#include "unit/batch/batch_testing.h"
#include "unit/platform/expect_error.h"

namespace arbolith {
namespace {

class OpenReportTest : public BatchTest {};

TEST_F(OpenReportTest, GivesATextToTheEditorAndDoesNotWait) {
    OpenReport(batch);
    ASSERT_EQ(host.starts.size(), 1u);
    EXPECT_EQ(host.starts[0].FileName(), "notepad");
    EXPECT_EQ(host.starts[0].arguments, std::vector<std::string>{folder.PathOf("r.txt")});
    EXPECT_EQ(host.starts[0].mode, 0);
    EXPECT_EQ(host.waits, 0);
    EXPECT_TRUE(host.opened.empty());
}

TEST_F(OpenReportTest, FailsWith53WithoutAnEditor) {
    host.canStart = false;
    EXPECT_ERROR(53, OpenReport(batch));
}

TEST_F(OpenReportTest, GivesAPageToTheDesktop) {
    batch.panel.batchHTML.SetValue(true);
    OpenReport(batch);
    EXPECT_EQ(host.opened, std::vector<std::string>{folder.PathOf("r.txt")});
    EXPECT_TRUE(host.starts.empty());
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(OpenReportTest, TellsThatThereIsNoBrowser) {
    batch.panel.batchHTML.SetValue(true);
    host.openResult = OpenResult::kNoOpener;
    OpenReport(batch);
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text, "Could not find associated Browser");
    EXPECT_EQ(host.boxes[0].title, "Browser Not Found");
    EXPECT_EQ(host.boxes[0].icon, BoxIcon::kExclamation);
}

TEST_F(OpenReportTest, TellsThatTheBrowserFailed) {
    batch.panel.batchHTML.SetValue(true);
    host.openResult = OpenResult::kFailed;
    OpenReport(batch);
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text, "Web Page not Opened");
    EXPECT_EQ(host.boxes[0].title, "URL Failed");
    EXPECT_EQ(host.boxes[0].icon, BoxIcon::kExclamation);
}

}  // namespace
}  // namespace arbolith
