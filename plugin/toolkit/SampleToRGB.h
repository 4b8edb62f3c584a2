// The host's conversions to the RGB of screens.
#pragma once

#include <array>

#include "AIColor.h"
#include "AIColorConversion.h"

namespace qRVADM {

using RGBSample = std::array<AISampleComponent, 3>;  // red, green, blue, 0..1

// Return the host's code and write `rgb` on success only. Numbers that are not finite are refused.
AIErr SampleToRGB(const AIGrayColorStyle& gray, RGBSample& rgb);
AIErr SampleToRGB(const AIFourColorStyle& cmyk, RGBSample& rgb);
AIErr SampleToRGB(const AILabColorStyle& lab, RGBSample& rgb);

// To the inks of the host's CMYK and back: what of an RGB colour can be printed.
AIErr ThroughCMYK(RGBSample& rgb);

// As they stand; what is beyond a float becomes the largest float.
RGBSample SampleOf(const AIThreeColorStyle& rgb);

}  // namespace qRVADM
