#include "cli/tables.h"

#include "unit/batch/batch_testing.h"
#include "unit/platform/expect_error.h"

namespace arbolith::console {

class Tables : public BatchTest {};

TEST_F(Tables, OfABatchStandInItsOrder) {
    Fill({Line("1", "S"), Line("2", "H")});
    batch.SeqPlots[0] = "1";
    batch.SeqPlots[1] = "2";
    folder.Write("_SOFTOUT.TMP", " 7.20\r\n" + Row("0", "5") + "\r\n" + Row("0", "10") + "\r\n");
    folder.Write("_HARDOUT.TMP", "4\r\n" + Row("1", "5.00") + "\r\n");
    const auto tables = TablesOf(batch);
    ASSERT_EQ(tables.size(), 2U);
    EXPECT_EQ(tables[0].plot, "1");
    EXPECT_EQ(tables[0].wood, "Softwood");
    EXPECT_EQ(tables[0].species, "White Pine");
    EXPECT_EQ(tables[0].yearsToBreastHeight, "7.2");
    EXPECT_TRUE(tables[0].isMetric);
    ASSERT_EQ(tables[0].rows.size(), 2U);
    EXPECT_EQ(tables[0].rows[1][0], "10");
    EXPECT_EQ(tables[0].rows[1][1], "1.5");
    EXPECT_EQ(tables[1].species, "Red Maple");
    EXPECT_EQ(tables[1].rows[0][0], "5");
}

TEST_F(Tables, LeaveRowsWithoutAnAgeOut) {
    Fill({Line("1", "S")});
    folder.Write("_SOFTOUT.TMP", "7\r\n" + Row("0", "0") + "\r\n" + Row("0", "5") + "\r\n");
    EXPECT_EQ(TablesOf(batch)[0].rows.size(), 1U);
}

TEST_F(Tables, AreEmptyWithoutAResult) {
    Fill({Line("1", "S")});
    EXPECT_TRUE(TablesOf(batch)[0].rows.empty());
}

TEST_F(Tables, KeepWhatIsNoNumber) {
    Fill({Line("1", "S")});
    auto row = Row("0", "5");
    row.replace(row.size() - 3, 3, "***");
    folder.Write("_SOFTOUT.TMP", "7\r\n" + row + "\r\n");
    EXPECT_EQ(TablesOf(batch)[0].rows[0].back(), "***");
}

TEST_F(Tables, HoldTextsAsUtf8) {
    Fill({Line("\xC9", "S")});
    batch.SeqPlots[0] = "\xC9rable \x96 7";
    auto row = Row("0", "5");
    row.replace(row.size() - 3, 3, "\xB2");
    folder.Write("_SOFTOUT.TMP", "7\r\n" + row + "\r\n");
    const auto table = TablesOf(batch)[0];
    EXPECT_EQ(table.plot, "\u00C9rable \u2013 7");
    EXPECT_EQ(table.rows[0].back(), "\u00B2");
}

TEST_F(Tables, OfAStandThatTheBatchLacksCantBeRead) {
    Fill({Line("1", "S")});
    folder.Write("_SOFTOUT.TMP", "7\r\n" + Row("1", "5") + "\r\n");
    EXPECT_ERROR(9, TablesOf(batch));
}

}  // namespace arbolith::console
