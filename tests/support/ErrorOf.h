#pragma once

#include <gtest/gtest.h>

#include "values/Error.h"

// The number of the error that a piece of work throws, 0 when it goes well.
template <typename Work>
int ErrorOf(Work&& work) {
    try {
        work();
    } catch (const values::Error& error) {
        EXPECT_FALSE(error.Description().isEmpty());
        return error.Number();
    }
    return 0;
}
