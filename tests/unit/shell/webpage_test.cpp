#include "shell/webpage.h"

#include "forms/application.h"
#include "unit/platform/fake_host.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

class WebpageTest : public ::testing::Test {
protected:
    // The one box that opening showed; an empty one for none.
    Box BoxOfOpening() {
        Launch_Webpage(application, "https://example.org/page.htm");
        EXPECT_LE(host.boxes.size(), 1u);
        return host.boxes.empty() ? Box{} : host.boxes.front();
    }

    FakeHost host;
    Application application{host, "/opt/arbolith", ""};
};

TEST_F(WebpageTest, FindsTheDocumentsBesideTheProgram) {
    EXPECT_EQ(AddressOf(application, kNorwaySpruceReport),
              "/opt/arbolith/help/vlrn/forestry/reports/report24.pdf");
    EXPECT_EQ(AddressOf(application, kSoftwoodManual),
              "/opt/arbolith/help/vlrn/forestry/handbook/page1.htm");
    EXPECT_EQ(AddressOf(application, kHardwoodManual),
              "/opt/arbolith/help/vlrn/forestry/handbook/page2.htm");
}

TEST_F(WebpageTest, HandsTheAddressToTheDesktop) {
    EXPECT_EQ(BoxOfOpening().text, "");
    EXPECT_EQ(host.opened, std::vector<std::string>{"https://example.org/page.htm"});
}

TEST_F(WebpageTest, TellsThatThereIsNoBrowser) {
    host.openResult = OpenResult::kNoOpener;
    const auto box = BoxOfOpening();
    EXPECT_EQ(box.text, "Could not find associated Browser");
    EXPECT_EQ(box.title, "Browser Not Found");
    EXPECT_EQ(box.icon, BoxIcon::kExclamation);
}

TEST_F(WebpageTest, TellsThatTheBrowserFailed) {
    host.openResult = OpenResult::kFailed;
    const auto box = BoxOfOpening();
    EXPECT_EQ(box.text, "Web Page not Opened");
    EXPECT_EQ(box.title, "URL Failed");
    EXPECT_EQ(box.icon, BoxIcon::kExclamation);
}

TEST_F(WebpageTest, TellsAFailureOfAFile) {
    host.openError = ErrorNumber::kPermissionDenied;
    const auto box = BoxOfOpening();
    EXPECT_EQ(box.text,
              "An error has occurred while attempting to find your web browser.  The web page "
              "requested cannot be displayed.");
    EXPECT_EQ(box.title, "");
    EXPECT_EQ(box.icon, BoxIcon::kNone);
}

TEST_F(WebpageTest, PassesOverAnyOtherFailure) {
    host.openError = ErrorNumber::kInvalidCall;
    EXPECT_EQ(BoxOfOpening().text, "");
}

}  // namespace
}  // namespace arbolith
