// The desktop's opener, with one of the test's own in the search path.
#include "qt/opener.h"

#include "unit/platform/temporary_folder.h"

#include <QByteArray>

#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace arbolith {

namespace {

struct OpenerTest : testing::Test {
    OpenerTest() { qputenv("PATH", QByteArray::fromStdString(folder.Path())); }
    ~OpenerTest() override { qputenv("PATH", searchPath); }

    // An opener that notes what it is to open.
    void PutOpener(const std::string& behaviour) const {
        folder.WriteProgram("xdg-open",
                            "printf '%s' \"$1\" >'" + folder.PathOf("opened") + "'\n" + behaviour);
    }

    TemporaryFolder folder;
    QByteArray searchPath = qgetenv("PATH");
};

}  // namespace

TEST_F(OpenerTest, ADesktopWithoutOne) {
    EXPECT_EQ(OpenByDesktop("https://documents.invalid/page.htm"), OpenResult::kNoOpener);
}

TEST_F(OpenerTest, ItGetsAnAddressAsItStands) {
    PutOpener("exit 0");
    EXPECT_EQ(OpenByDesktop("https://documents.invalid/a%20page.htm?b=c#d"), OpenResult::kOpened);
    EXPECT_EQ(folder.Read("opened"), "https://documents.invalid/a%20page.htm?b=c#d");
    EXPECT_EQ(OpenByDesktop("file:///tmp/page.htm"), OpenResult::kOpened);
    EXPECT_EQ(folder.Read("opened"), "file:///tmp/page.htm");
}

TEST_F(OpenerTest, ItGetsAPathAsTheAddressOfItsFile) {
    PutOpener("exit 0");
    EXPECT_EQ(OpenByDesktop("/tmp/a report #1 100%.html"), OpenResult::kOpened);
    EXPECT_EQ(folder.Read("opened"), "file:///tmp/a%20report%20%231%20100%25.html");
}

TEST(AddressOf, APathKeepsItsBytes) {
    EXPECT_EQ(AddressOf("/tmp/\xE9t\xE9/\xC3\xA9.htm"), "file:///tmp/%E9t%E9/%C3%A9.htm");
}

TEST(AddressOf, ARelativePathCountsFromTheCurrentFolder) {
    const auto folder = std::filesystem::current_path().string();
    EXPECT_EQ(AddressOf("report.html"), AddressOf(folder + "/report.html"));
    EXPECT_TRUE(AddressOf("a:b c.html").ends_with("/a%3Ab%20c.html"));
}

TEST_F(OpenerTest, OneThatFailsIsTold) {
    PutOpener("exit 4");
    EXPECT_EQ(OpenByDesktop("/tmp/report.html"), OpenResult::kFailed);
}

TEST_F(OpenerTest, OneThatKnowsNoProgramIsAsGoodAsNone) {
    PutOpener("exit 3");
    EXPECT_EQ(OpenByDesktop("/tmp/report.html"), OpenResult::kNoOpener);
}

TEST_F(OpenerTest, OneThatCannotBeStartedFails) {
    folder.Write("xdg-open", "#!/no/such/shell\n");
    std::filesystem::permissions(folder.PathOf("xdg-open"), std::filesystem::perms::owner_all);
    EXPECT_EQ(OpenByDesktop("/tmp/report.html"), OpenResult::kFailed);
}

TEST_F(OpenerTest, ItIsNotWaitedForWhileWhatItOpenedRuns) {
    const std::string pipe = folder.PathOf("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const int end = open(pipe.c_str(), O_RDWR | O_CLOEXEC);
    PutOpener("read line <'" + pipe + "'");
    EXPECT_EQ(OpenByDesktop("/tmp/report.html"), OpenResult::kOpened);
    EXPECT_EQ(write(end, "\n", 1), 1);
    close(end);
}

}  // namespace arbolith
