#include "notepad/printing.h"

#include "unit/platform/temporary_folder.h"

#include <QPdfWriter>

#include <gtest/gtest.h>
#include <string>

namespace arbolith::notepad {

class PrintingTest : public testing::Test {
public:
    TemporaryFolder folder;

    // How many pages a text gives.
    int PagesOf(const std::string& bytes, const PageRange& wanted = {}) {
        {
            QPdfWriter paper(QString::fromStdString(folder.PathOf("print.pdf")));
            QPainter painter(&paper);
            EXPECT_TRUE(PrintPages(painter, paper, QStringLiteral("stands.txt"), bytes, wanted));
        }
        const auto pdf = folder.Read("print.pdf");
        int pages = 0;
        for (auto place = pdf.find("/Type /Page\n"); place != std::string::npos;
             place = pdf.find("/Type /Page\n", place + 1))
            ++pages;
        return pages;
    }
};

TEST_F(PrintingTest, AnEmptyTextIsOnePage) {
    EXPECT_EQ(PagesOf(""), 1);
}

TEST_F(PrintingTest, ALongTextTakesSeveralPages) {
    std::string bytes;
    for (int line = 0; line < 200; ++line) bytes += "a line\r\n";
    const int pages = PagesOf(bytes);
    EXPECT_GE(pages, 3);
    EXPECT_LE(pages, 5);
}

TEST_F(PrintingTest, PrintsThePagesThatAreWanted) {
    std::string bytes;
    for (int line = 0; line < 400; ++line) bytes += "a line\r\n";
    EXPECT_EQ(PagesOf(bytes, {2, 3}), 2);
    EXPECT_EQ(PagesOf(bytes, {1, 1}), 1);
}

}  // namespace arbolith::notepad
