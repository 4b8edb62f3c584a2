#pragma once

#include <algorithm>

#include <gtest/gtest.h>

#include "PositionList.h"

namespace Vandrell::Corvane {

inline void ExpectPositions(const PositionList& actual, const PositionList& expected,
                            double tolerance = 1e-9) {
  EXPECT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < std::min(actual.size(), expected.size()); ++i) {
    EXPECT_NEAR(actual[i].x, expected[i].x, tolerance) << "x of position " << i;
    EXPECT_NEAR(actual[i].y, expected[i].y, tolerance) << "y of position " << i;
  }
}

}  // namespace Vandrell::Corvane
