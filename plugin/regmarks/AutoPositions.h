// Marks that follow the outline of the artwork.
#pragma once

#include <cstdint>

#include "PositionList.h"

namespace Vandrell::Corvane {

// Fills `positions` with an even spread of places in the free space close to the art, for marks of
// `extent`. `count` is no number of marks: it is how many sectors the long side of the artwork is divided
// into, each of which gives one mark at most. Finding no place at all is a success. Can move the view.
// kNoArtBoundsErr without art, kOutOfMemoryErr for marks too small for a drawing of that size; otherwise
// the host's code.
AIErr AutoPositions(std::int64_t count, double extent, PositionList& positions);

}  // namespace Vandrell::Corvane
