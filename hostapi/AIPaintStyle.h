// Choosing paints.
#pragma once

#include "AIColor.h"

constexpr char kAIPaintStyleSuite[] = "AI Paint Style Suite";
constexpr std::int32_t kAIPaintStyleSuiteVersion = 1010;

struct AIPaintStyleSuite {
  // The host's dialog for a paint, with the swatches of the current document, of which `swatch` is shown
  // first; it may be null. Returns when the user has answered. `color` is the paint to start with and the
  // chosen one when `accepted` is set, else as it was. A host that must not ask answers with `accepted` 0.
  AIErr (*ShowColorPicker)(AISwatchRef swatch, AIColor* color, AIBoolean* accepted);
};

extern const AIPaintStyleSuite* sAIPaintStyle;
