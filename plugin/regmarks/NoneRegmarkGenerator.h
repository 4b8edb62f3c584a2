// For a shape that this version knows nothing of: no mark, and no mark layer either.
#pragma once

#include "RegmarkGenerator.h"

namespace Vandrell::Corvane {

class NoneRegmarkGenerator : public RegmarkGenerator {
 public:
  AIErr Generate(const RegmarkStyle& /*style*/, const AIRealPoint& /*point*/) override { return kNoErr; }
};

}  // namespace Vandrell::Corvane
