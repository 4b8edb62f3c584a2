// A disc, with a stroke if it has a weight: one closed path of four curves.
#pragma once

#include "RegmarkGenerator.h"

namespace Vandrell::Corvane {

class RoundRegmarkGenerator : public RegmarkGenerator {
 public:
  AIErr Generate(const RegmarkStyle& style, const AIRealPoint& point) override;
};

}  // namespace Vandrell::Corvane
