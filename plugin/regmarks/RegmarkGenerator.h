// What draws one mark. One class for each shape.
#pragma once

#include "AITypes.h"
#include "RegmarkStyle.h"

namespace Vandrell::Corvane {

// A host code, beside those of the host: the mark layer can be neither found nor made.
constexpr AIErr kCannotAddRegmarkErr = ErrorCode("!Add");

class RegmarkGenerator {
 public:
  virtual ~RegmarkGenerator() = default;

  // Draws a mark around `point`, in document coordinates, on top of the mark layer. The document owns
  // it. An error leaves in the document what was made before it.
  virtual AIErr Generate(const RegmarkStyle& style, const AIRealPoint& point) = 0;
};

}  // namespace Vandrell::Corvane
