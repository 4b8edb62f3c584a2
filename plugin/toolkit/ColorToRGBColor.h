// Paints in the 16-bit components of patches and drawers.
#pragma once

#include "AIColor.h"

namespace qRVADM {

// All write `rgbColor` on success only and return the codes of ColorToRGB. A component is its value times
// 65535 without the fraction; beyond 0..1 it is held to the ends, and not a number is 0.

AIErr ColorToRGBColor(const AIColor& color, AIRGBColor& rgbColor, bool ignoreTint);
AIErr CustomColorToRGBColor(const AICustomColor& customColor, AIRGBColor& rgbColor);  // in full strength

// With its tint, and what is defined in RGB, a custom colour too, as it would look printed in CMYK.
AIErr ColorToGamutRGBColor(const AIColor& color, AIRGBColor& rgbColor);

}  // namespace qRVADM
