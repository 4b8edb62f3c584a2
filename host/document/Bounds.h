// How far art reaches.
#pragma once

#include <vector>

#include "Document.h"

namespace host {

// Bounds of an art and all it holds, hidden or not, after `matrix` (null: as it is). `flags` are
// AIArtBoundsFlags. Empty (isEmpty in Geometry.h) if nothing counts.
//
// Exact for curves and for strokes with their joins, miters and caps (Stroke.h), whatever the matrix. An
// outline counts even where its stroke leaves it bare, as at the lone anchor. A clip, the art's own or one
// inside it, counts with its bounds, for each path by itself: what lies outside them adds nothing.
AIRealRect artBounds(const Document& document, ArtId art, const AIRealMatrix* matrix, std::int32_t flags);

// The common bounds of some arts, which takes less time than of each.
AIRealRect commonBounds(const Document& document, const std::vector<ArtId>& arts, std::int32_t flags);

// Bounds of a path's outline alone.
AIRealRect pathBounds(const PathGeometry& path);

}  // namespace host
