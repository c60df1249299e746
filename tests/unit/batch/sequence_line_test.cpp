#include "batch/sequence_line.h"

#include "unit/platform/expect_error.h"

#include <gtest/gtest.h>
#include <memory>

namespace arbolith {

TEST(SequenceFields, AreParted) {
    const SequenceFields fields("7\tS\tY\t");
    EXPECT_EQ(fields[SequenceField::kPlot], "7");
    EXPECT_EQ(fields[SequenceField::kMet], "Y");
    EXPECT_EQ(fields[SequenceField::kNat], "");
    EXPECT_ERROR(9, fields[SequenceField::kSpec]);
}

TEST(SequenceFields, OfAnEmptyLineAreNone) {
    EXPECT_ERROR(9, SequenceFields("")[SequenceField::kPlot]);
    EXPECT_EQ(SequenceFields("\t")[SequenceField::kPlot], "");
}

TEST(SequenceFields, ReadAsNumbers) {
    const SequenceFields fields("12.7b\t-0.5");
    EXPECT_EQ(fields.Number(SequenceField::kPlot), 12.7);
    EXPECT_EQ(fields.Whole(SequenceField::kPlot), 12);
    EXPECT_EQ(fields.Whole(SequenceField::kWood), -1);
    EXPECT_ERROR(9, fields.Number(SequenceField::kMet));
    EXPECT_ERROR(9, fields.Whole(SequenceField::kMet));
}

TEST(SequenceTexts, HaveEntriesFrom0To1024) {
    const auto texts = std::make_unique<SequenceTexts>();
    EntryAt(*texts, 0) = "first";
    EntryAt(*texts, 1024) = "last";
    EXPECT_EQ(texts->front(), "first");
    EXPECT_EQ(texts->back(), "last");
    EXPECT_ERROR(9, EntryAt(*texts, -1));
    EXPECT_ERROR(9, EntryAt(*texts, 1025));
}

}  // namespace arbolith
