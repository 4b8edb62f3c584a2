// A plus sign, with a square behind it if the style has a fill.
//
// The bars are the fill of one outline, not two strokes, so that they keep their thickness whatever
// happens to strokes on the way to the table.
#pragma once

#include "RegmarkGenerator.h"

namespace Vandrell::Corvane {

class CrossRegmarkGenerator : public RegmarkGenerator {
 public:
  AIErr Generate(const RegmarkStyle& style, const AIRealPoint& point) override;
};

}  // namespace Vandrell::Corvane
