// Marks on the corners of a frame around the artwork.
#pragma once

#include <cstdint>

#include "PositionList.h"

namespace Vandrell::Corvane {

// Appends the fifth mark, if there is one, and then the four corners, clockwise from the upper left. The
// frame runs one mark's extent outside the artwork, which leaves half a mark of paper between the two.
// `failures` becomes the number of corners that do not fit on the active artboard; a fifth mark that does
// not fit is left out without being counted. kNoArtBoundsErr without art; otherwise the host's code.
AIErr CornerPositions(double extent, PositionList& positions, std::int32_t& failures);

}  // namespace Vandrell::Corvane
