// Points, rectangles, matrices and cubic curves.
#pragma once

#include <algorithm>
#include <vector>

#include "Art.h"

namespace host {

constexpr AIRealMatrix kIdentity{1, 0, 0, 1, 0, 0};
constexpr AIRealRect kEmptyRect{1e300, -1e300, -1e300, 1e300};  // the neutral element of unite

inline bool isEmpty(const AIRealRect& rect) {
  return rect.left > rect.right || rect.bottom > rect.top;
}
AIRealRect unite(const AIRealRect& a, const AIRealRect& b);      // kEmptyRect if both are empty
AIRealRect intersect(const AIRealRect& a, const AIRealRect& b);  // kEmptyRect if they don't even touch
inline void include(AIRealRect& rect, AIRealPoint point) {
  rect.left = std::min(rect.left, point.x);
  rect.right = std::max(rect.right, point.x);
  rect.bottom = std::min(rect.bottom, point.y);
  rect.top = std::max(rect.top, point.y);
}
AIRealRect inflated(const AIRealRect& rect, double by);  // an empty one stays empty
bool contains(const AIRealRect& outer, const AIRealRect& inner);
bool contains(const AIRealRect& rect, AIRealPoint point);  // edges belong to it

AIRealPoint apply(const AIRealMatrix& matrix, AIRealPoint point);
// The matrix that does `first`, then `second`. Name matrices destination-from-source, so that
// concat(bFromA, cFromB) is cFromA.
AIRealMatrix concat(const AIRealMatrix& first, const AIRealMatrix& second);
double determinant(const AIRealMatrix& matrix);
// False, and the target left alone, for a matrix that flattens the plane.
bool invert(const AIRealMatrix& matrix, AIRealMatrix& inverse);
PathGeometry transformed(const PathGeometry& path, const AIRealMatrix& matrix);

// A path's curves as a polyline no further than `tolerance` from them, the first point first and none
// repeated; a curve gives at most kMaxCurveSteps (Cubic.h) chords, however long it is. A closed path ends at
// its first point, and so does an open one when `close` is set.
std::vector<AIRealPoint> flatten(const PathGeometry& path, double tolerance, bool close);

}  // namespace host
