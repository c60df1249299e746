// How the help file is shown: by the desktop's viewer, or in the window of the program.
#include "qt/help_viewer.h"
#include "qt/help_window.h"
#include "qt/qt_host.h"
#include "unit/platform/temporary_folder.h"

#include <QApplication>

#include <filesystem>
#include <gtest/gtest.h>

namespace arbolith {
namespace {

/// A host that notes what it hands to the desktop.
class OpeningHost : public QtHost {
public:
    OpenResult Open(const std::string& address) override {
        opened.push_back(address);
        return result;
    }

    std::vector<std::string> opened;
    OpenResult result = OpenResult::kOpened;
};

/// A folder with a compiled help file and a page, and a desktop whose viewer for it is told here.
class HelpHostTest : public testing::Test {
protected:
    HelpHostTest() : path_(qgetenv("PATH")) {
        qputenv("PATH", (QString::fromStdString(desktop.Path()) + ":/bin:/usr/bin").toLocal8Bit());
        SetViewer("");
        std::filesystem::create_directory(folder.PathOf("help"));
        folder.Write("qvlhelp.chm", "compiled");
        folder.Write("help/contents.txt", "0\tindex.html\tHelp\n");
        folder.Write("help/index.html", "<h1>Help</h1>");
    }
    ~HelpHostTest() override { qputenv("PATH", path_); }

    void SetViewer(const std::string& name) {
        desktop.WriteProgram(
            "xdg-mime",
            "test \"$*\" = 'query default application/vnd.ms-htmlhelp' && echo '" + name + "'");
    }
    static QWidget* OurWindow() {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == "HelpWindow" && widget->isVisible()) return widget;
        return nullptr;
    }
    std::string Compiled() const { return folder.PathOf("qvlhelp.chm"); }

    TemporaryFolder folder;
    TemporaryFolder desktop;
    OpeningHost host;

private:
    QByteArray path_;
};

TEST_F(HelpHostTest, AViewerOfTheDesktopComesFirst) {
    SetViewer("viewer.desktop");
    EXPECT_TRUE(DesktopHasHelpViewer());
    host.ShowHelp(Compiled());
    EXPECT_EQ(host.opened, std::vector<std::string>{Compiled()});
    EXPECT_EQ(OurWindow(), nullptr);
}

TEST_F(HelpHostTest, WithoutAViewerThereIsOurWindow) {
    EXPECT_FALSE(DesktopHasHelpViewer());
    host.ShowHelp(Compiled());
    EXPECT_TRUE(host.opened.empty());
    ASSERT_NE(OurWindow(), nullptr);
    host.ShowHelp(Compiled());
    EXPECT_NE(OurWindow(), nullptr);
    host.CloseHelp();
    EXPECT_EQ(OurWindow(), nullptr);
}

TEST_F(HelpHostTest, AViewerThatFailsLeavesItToOurWindow) {
    SetViewer("viewer.desktop");
    host.result = OpenResult::kFailed;
    host.ShowHelp(Compiled());
    EXPECT_NE(OurWindow(), nullptr);
}

TEST_F(HelpHostTest, PagesWithoutTheCompiledFileAreShownAllTheSame) {
    SetViewer("viewer.desktop");
    std::filesystem::remove(Compiled());
    host.ShowHelp(Compiled());
    EXPECT_TRUE(host.opened.empty());
    EXPECT_NE(OurWindow(), nullptr);
}

TEST_F(HelpHostTest, WhereThereIsNothingNothingIsShown) {
    const TemporaryFolder empty;
    host.ShowHelp(empty.PathOf("qvlhelp.chm"));
    EXPECT_EQ(OurWindow(), nullptr);
    EXPECT_TRUE(host.opened.empty());
}

TEST_F(HelpHostTest, WithoutTheDesktopsToolsThereIsNoViewer) {
    qputenv("PATH", desktop.Path().c_str());
    std::filesystem::remove(desktop.PathOf("xdg-mime"));
    EXPECT_FALSE(DesktopHasHelpViewer());
}

}  // namespace
}  // namespace arbolith
