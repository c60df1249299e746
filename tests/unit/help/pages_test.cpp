#include "generator/pages.h"

#include "unit/platform/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace arbolith::help {
namespace {

FilledPage Filled(std::string_view source) {
    Facts facts;
    facts["name"] = [](const Words&, const Page&) { return "White &amp; Red"; };
    return FillPage(source, facts, {"page.html"});
}

TEST(PagesTest, TheFirstHeadingIsTheTitle) {
    const auto page = Filled("<h1>About {{name}}</h1>\n<p>Text</p>\n");
    EXPECT_EQ(page.title, "About White & Red");
    EXPECT_EQ(page.body, "<h1>About White &amp; Red</h1>\n<p>Text</p>\n");
    EXPECT_THROW(Filled("<h2>No title</h2>"), BadPage);
}

TEST(PagesTest, IndexWordsAreTakenOut) {
    const auto page = Filled("<!-- index: site, Land Capability -->\n<h1>Site</h1>\n");
    EXPECT_EQ(page.keywords, (std::vector<std::string>{"site", "Land Capability"}));
    EXPECT_EQ(page.body, "<h1>Site</h1>\n");
}

TEST(PagesTest, APageFindsItsStyleFromAnyFolder) {
    const auto page = PageHtml({"T & U", "<h1>T</h1>\n", {}}, {"a/b.htm"}, "<hr>\n");
    EXPECT_NE(page.find("<title>T &amp; U</title>"), std::string::npos);
    EXPECT_NE(page.find("href=\"../help.css\""), std::string::npos);
    EXPECT_NE(page.find("<body>\n<h1>T</h1>\n<hr>\n</body>"), std::string::npos);
}

TEST(PagesTest, PicturesAreCountedFromTheHelpFolder) {
    EXPECT_EQ(PicturesOf("<img src=\"../pictures/a.png\" srcset=\"../pictures/a@2x.png 2x\">"),
              (std::vector<std::string>{"pictures/a.png", "pictures/a@2x.png"}));
}

TEST(PagesTest, AFolderIsMadeFromItsSources) {
    const TemporaryFolder source;
    const TemporaryFolder target;
    std::filesystem::create_directory(source.PathOf("pages"));
    source.Write("contents.txt", "index.html\na.html\n");
    source.Write("help.css", "h1 {}\n");
    source.Write("pages/index.html", "<h1>Start</h1>\n{{contents}}");
    source.Write("pages/a.html", "<h1>Page of {{ui Run}}</h1>\n");
    MakeHelpFolder(source.Path(), target.Path());
    EXPECT_NE(target.Read("index.html").find("<a href=\"a.html\">Page of Run</a>"),
              std::string::npos);
    EXPECT_EQ(target.Read("help.css"), "h1 {}\n");
    EXPECT_EQ(target.Read("contents.txt"), "0\tindex.html\tStart\n0\ta.html\tPage of Run\n");
    EXPECT_NE(target.Read("qvlhelp.hhp").find("[FILES]\na.html\nhelp.css\nindex.html\n"),
              std::string::npos);
}

TEST(PagesTest, AMissingPageIsAFault) {
    const TemporaryFolder source;
    const TemporaryFolder target;
    source.Write("contents.txt", "index.html\n");
    EXPECT_THROW(MakeHelpFolder(source.Path(), target.Path()), BadPage);
}

}  // namespace
}  // namespace arbolith::help
