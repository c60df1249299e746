#include "platform/runtime_error.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace arbolith {

TEST(RuntimeError, CarriesItsNumberAndUsualName) {
    const RuntimeError error(ErrorNumber::kOverflow);
    EXPECT_EQ(static_cast<int>(error.Number()), 6);
    EXPECT_STREQ(error.what(), "Overflow");
}

TEST(RuntimeError, HasTheUsualNames) {
    EXPECT_STREQ(ErrorName(ErrorNumber{5}), "Invalid procedure call or argument");
    EXPECT_STREQ(ErrorName(ErrorNumber{9}), "Subscript out of range");
    EXPECT_STREQ(ErrorName(ErrorNumber{11}), "Division by zero");
    EXPECT_STREQ(ErrorName(ErrorNumber{13}), "Type mismatch");
    EXPECT_STREQ(ErrorName(ErrorNumber{53}), "File not found");
    EXPECT_STREQ(ErrorName(ErrorNumber{76}), "Path not found");
}

TEST(RuntimeError, HasANameForEveryNumber) {
    std::set<std::string> names;
    const int numbers[] = {5, 6, 7, 9, 11, 13, 52, 53, 55, 57, 61, 62, 68, 70, 71, 75, 76, 482};
    for (const int number : numbers) names.insert(ErrorName(ErrorNumber{number}));
    EXPECT_EQ(names.size(), std::size(numbers));
    EXPECT_FALSE(names.contains(ErrorName(ErrorNumber{999})));
}

TEST(FileErrorSet, HoldsTheSixFileFailuresThatUsersAreTold) {
    std::set<int> held;
    for (int number = 0; number < 100; ++number)
        if (InFileErrorSet(ErrorNumber{number})) held.insert(number);
    EXPECT_EQ(held, (std::set<int>{53, 68, 70, 71, 75, 76}));
}

}  // namespace arbolith
