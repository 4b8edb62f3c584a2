// Inks without a profile: a stated formula, not a measured press.
#pragma once

#include "ColourSample.h"

namespace host {

// red = (1 - cyan)(1 - black), green and blue alike.
ColourSample rgbOfInk(const ColourSample& cmyk);

// As much black as goes, the rest in colour; rgbOfInk takes it back. `rgb` lies within its range.
ColourSample inkOfRgb(const ColourSample& rgb);

}  // namespace host
