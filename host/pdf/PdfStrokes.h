// Strokes in words that all readers draw alike.
#pragma once

#include <string>

#include "Art.h"

namespace host {

// Where caps are square SVG makes a square of a dot. Readers of PDF draw nothing there, since they cannot
// know how it lies (ISO 32000-1, 8.5.3.2), but do draw a line that is too short to be seen: so far it goes to
// either side of the dot, in units of the page.
constexpr double kDotReach = 0.02;

// A path without any length that is more than a lone anchor.
bool isDot(const PathGeometry& path);

// Width, cap, join and dash pattern; `scale` is units of the page in a document unit.
void appendPdfStroke(std::string& text, const AIStrokeStyle& stroke, double scale);

}  // namespace host
