#include "cli/batch_lines.h"

#include "unit/batch/batch_testing.h"

namespace arbolith::console {

class BatchLines : public BatchTest {
protected:
    LineJudgement Judge(const std::string& text) {
        folder.Write("stands.qvb", text);
        const auto path = folder.PathOf("stands.qvb");
        LoadBatch(batch, path);
        return JudgeLines(batch, path);
    }
};

TEST_F(BatchLines, OfAGoodFileAreAllStands) {
    const auto lines = Judge("# heading\r\nsequences:\r\n" + Line("1", "S") + "\r\n\r\n" +
                             Line("2", "H") + "\r\n");
    EXPECT_TRUE(lines.isRead);
    EXPECT_TRUE(lines.leftOut.empty());
    EXPECT_FALSE(lines.breaksTheBatch);
}

TEST_F(BatchLines, ThatAreNoStandsAreNamed) {
    const auto lines = Judge(Line("1", "S") + "\r\nno\tstand\r\n");
    EXPECT_TRUE(lines.isRead);
    EXPECT_EQ(lines.leftOut, std::vector<std::string>{"no\tstand"});
    EXPECT_FALSE(lines.breaksTheBatch);
}

TEST_F(BatchLines, ThatStandBeforeAStandBreakTheBatch) {
    EXPECT_TRUE(Judge("no\tstand\r\n" + Line("1", "S") + "\r\n").breaksTheBatch);
}

TEST_F(BatchLines, ThatEndTheReadAreItsReason) {
    const auto lines = Judge(Line("1", "S") + "\r\n# the end\r\n" + Line("2", "S") + "\r\n");
    EXPECT_FALSE(lines.isRead);
    EXPECT_EQ(lines.reason, "\"# the end\" is no stand");
}

TEST_F(BatchLines, WithAnUnknownFieldAreTheReason) {
    const auto lines = Judge(Line("1", "S") + "\r\n2\tS\tY\tY\tXX\r\n");
    EXPECT_FALSE(lines.isRead);
    EXPECT_EQ(lines.reason, "a field of the stand \"2\tS\tY\tY\tXX\" can't be understood");
}

TEST_F(BatchLines, ThatStandBehindAFullBatchAreNamed) {
    std::string text;
    for (int i = 0; i < kSequences; ++i) text += Line("1", "S") + "\r\n";
    const auto lines = Judge(text + "no\tstand\r\n");
    EXPECT_TRUE(lines.isRead);
    EXPECT_EQ(lines.leftOut, std::vector<std::string>{"no\tstand"});
    EXPECT_FALSE(lines.breaksTheBatch);
}

TEST_F(BatchLines, AreCounted) {
    std::string text;
    for (int i = 0; i <= kSequences; ++i) text += Line("1", "S") + "\r\n";
    EXPECT_EQ(Judge(text).reason, "it holds more than 1025 stands");
}

}  // namespace arbolith::console
