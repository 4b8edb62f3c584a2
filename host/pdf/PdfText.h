// Operators of a content stream, in words and numbers.
#pragma once

#include <string>
#include <string_view>

#include "Art.h"

namespace host {

// Appends with a blank behind; four places behind the point at most, which in points is far below what a
// table can follow. Never an exponent, whatever the locale. `value` must be finite.
void appendPdfNumber(std::string& text, double value);
void appendPdfPoint(std::string& text, AIRealPoint point);

// The path's curves, to be painted or to clip; `pageFromDocument` gives the coordinates. A segment whose
// handles lie on its anchors is a line, and an outline without any length a line from `dotStep` before its
// place to as far behind it, in units of the page.
void appendPdfPath(std::string& text, const PathGeometry& path, const AIRealMatrix& pageFromDocument,
                   AIRealPoint dotStep = {0, 0});

}  // namespace host
