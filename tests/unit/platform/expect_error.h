// Checks that something fails with a run-time error of one number.
#pragma once

#include "platform/runtime_error.h"

#include <gtest/gtest.h>

namespace arbolith {

/// The number that a call fails with; 0 when it doesn't fail.
template <class Call>
int ErrorOf(const Call& call) {
    try {
        call();
    } catch (const RuntimeError& error) {
        return static_cast<int>(error.Number());
    }
    return 0;
}

}  // namespace arbolith

/// The expression fails with this run-time error.
#define EXPECT_ERROR(number, expression) \
    EXPECT_EQ(::arbolith::ErrorOf([&] { (void)(expression); }), number)
