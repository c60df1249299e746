#include "forms/at_first_use.h"

#include <gtest/gtest.h>

namespace arbolith {

TEST(AtFirstUse, MakesItsWindowOnceAndNotBefore) {
    int made = 0;
    AtFirstUse<int> window([&made] { return std::make_unique<int>(++made); });
    EXPECT_EQ(window.Find(), nullptr);
    EXPECT_EQ(window.Get(), 1);
    EXPECT_EQ(window.Get(), 1);
    EXPECT_EQ(window.Find(), &window.Get());
    EXPECT_EQ(made, 1);
}

}  // namespace arbolith
