// Where the mark goes that tells the sides of a sheet apart.
#pragma once

#include <optional>

#include "AITypes.h"

namespace Vandrell::Corvane {

// Four marks on the corners of a rectangle look the same after half a turn, those of a square after a
// quarter. One more, off centre, breaks that symmetry, so that a sheet can't be cut the wrong way round.
// `frame` has the four marks on its corners, `extent` is the side of a mark, `distance` the wish for how far
// the fifth stands from the lower left corner; all in document units. Along the bottom if there is room,
// else up the right side of a tall frame; half way along where `distance` does not fit; nothing on a frame
// too small for a mark between two others.
std::optional<AIRealPoint> FifthMark(const AIRealRect& frame, double extent, double distance);

}  // namespace Vandrell::Corvane
