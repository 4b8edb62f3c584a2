#pragma once

#include <algorithm>

#include <gtest/gtest.h>

#include "PositionList.h"

namespace Vandrell::Corvane {

inline void ExpectPositions(const PositionList& actual, const PositionList& expected) {
  EXPECT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < std::min(actual.size(), expected.size()); ++i) {
    EXPECT_NEAR(actual[i].x, expected[i].x, 1e-9) << "x of position " << i;
    EXPECT_NEAR(actual[i].y, expected[i].y, 1e-9) << "y of position " << i;
  }
}

}  // namespace Vandrell::Corvane
