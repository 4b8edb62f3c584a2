// How far a stroke reaches.
#pragma once

#include "Geometry.h"
#include "Stroke.h"

namespace host {

// Widens `rect` to hold the stroke of `path` after `matrix`, exactly, skewed pens included.
void includeStroke(AIRealRect& rect, const PathGeometry& path, const StrokePen& pen,
                   const AIRealMatrix& matrix);

}  // namespace host
