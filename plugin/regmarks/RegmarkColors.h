// The two paints that marks start with.
#pragma once

#include "AIColor.h"

namespace Vandrell::Corvane {

// Process black without any other ink: the camera of a cutting table looks for black on white.
inline AIColor BlackRegmarkColor() {
  AIColor color{};
  color.kind = kFourColor;
  color.c.f = {0.0, 0.0, 0.0, 1.0};
  return color;
}

inline AIColor NoRegmarkColor() {
  AIColor color{};
  color.kind = kNoneColor;
  return color;
}

inline bool IsPainted(const AIColor& color) {
  return color.kind != kNoneColor;
}

}  // namespace Vandrell::Corvane
