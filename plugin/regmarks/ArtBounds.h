// How far the art of the current document reaches.
#pragma once

#include "AITypes.h"

namespace Vandrell::Corvane {

constexpr AIErr kNoArtBoundsErr = ErrorCode("!BND");

// Painted bounds of all layers, hidden and locked ones too, but for those titled "Regmark" in any mixture
// of upper and lower case. kNoArtBoundsErr if there is no art with both a width and a height; otherwise
// the host's code.
AIErr GetArtBoundsWithoutRegmarks(AIRealRect& bounds);

// Bounds of everything a point test could hit, or more. With nothing in the document left > right and
// bottom > top, and success.
AIErr GetBoundsOfEverything(AIRealRect& bounds);

}  // namespace Vandrell::Corvane
