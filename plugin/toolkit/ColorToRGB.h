// What paints look like on a screen.
#pragma once

#include "SampleToRGB.h"

namespace qRVADM {

// A custom colour that the document does not have, or whose definition is of no known kind.
constexpr AIErr kNoSuchCustomColorErr = ErrorCode("!IMP");

// `rgb` is written on success only. No paint is white, gradients and patterns are black. The tint of a
// custom colour counts where its definition is in CMYK, unless `ignoreTint`. The components of an RGB
// paint are taken as they stand, beyond 0..1 too. Codes: kNoSuchCustomColorErr, or what the conversion
// returned.
AIErr ColorToRGB(const AIColor& color, RGBSample& rgb, bool ignoreTint);

// A definition in `strength`, 1 full, 0 no ink, which counts in CMYK only.
AIErr CustomColorToRGB(const AICustomColor& customColor, RGBSample& rgb, AIReal strength = 1);

}  // namespace qRVADM
