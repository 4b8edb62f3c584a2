// Automatic placement once more, written to be read beside its rules and not to be fast.
#pragma once

#include "PositionList.h"

namespace Vandrell::Corvane {

struct NaiveInput {
  int count;
  double extent, scale;
  double pageWidth, pageHeight, originX, originY;
  AIRealRect art;
};

// Point tests go to the suites that are held.
PositionList NaiveAutoPositions(const NaiveInput& input);

}  // namespace Vandrell::Corvane
