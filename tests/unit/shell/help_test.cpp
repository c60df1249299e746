// The help file: where it is looked for, and that nothing is said.
#include "shell/help.h"

#include "forms/application.h"
#include "unit/platform/fake_host.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace arbolith {
namespace {

class HelpHost : public FakeHost {
public:
    void ShowHelp(const std::string& file) override { shown.push_back(file); }
    void CloseHelp() override { shown.clear(); }

    std::vector<std::string> shown;
};

TEST(HelpTest, TheHelpFileLiesBesideTheProgram) {
    HelpHost host;
    Application application(host, "/opt/forest", "");
    ShowHelpFile(application);
    EXPECT_EQ(host.shown, std::vector<std::string>{"/opt/forest/qvlhelp.chm"});
    EXPECT_TRUE(host.boxes.empty());
}

TEST(HelpTest, ClosesWhatItOpened) {
    HelpHost host;
    Application application(host, "/opt/forest", "");
    ShowHelpFile(application);
    ShowHelpFile(application);
    CloseAllHelp(application);
    EXPECT_TRUE(host.shown.empty());
}

}  // namespace
}  // namespace arbolith
