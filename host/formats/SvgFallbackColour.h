// What paints look like to programs that know RGB only.
#pragma once

#include <cstdint>

#include "Document.h"

namespace host {

// 0xRRGGBB: process colours by r = (1 - c)(1 - k), a tint by mixing with white, Lab (D50) by way of XYZ and
// the sRGB transfer curve (IEC 61966-2-1), a server by its fallback. White for kNoneColor.
std::uint32_t fallbackRgb(const AIColor& color, const Document& document);

// What a kCustomColor or a kGradient or kPattern refers to; null if the document does not have it.
const CustomColor* customColorOf(const AIColor& color, const Document& document);
const PaintServer* serverOf(const AIColor& color, const Document& document);

}  // namespace host
