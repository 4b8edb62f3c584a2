// Steps that the generators share.
#pragma once

#include <cstdint>

#include "AIArt.h"
#include "AIColor.h"

namespace Vandrell::Corvane {

// A stroke of this width, in document units, or less is none.
constexpr double kLeastStrokeWeight = 0.0001;

// New, empty art on top of what `container` holds.
AIErr NewArtInside(AIArtHandle container, AIArtType type, AIArtHandle& art);

// Makes `path` the closed polygon of these corners.
AIErr SetPolygon(AIArtHandle path, const AIRealPoint* corners, std::int16_t count);

// Fills `path` with `color`, overprinting, or leaves it unpainted. No stroke either way.
AIErr SetFillOnly(AIArtHandle path, bool filled, const AIColor& color);

// Gives `art` the name by which marks are known among other art.
AIErr NameRegmark(AIArtHandle art);

}  // namespace Vandrell::Corvane
