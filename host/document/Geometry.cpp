#include "Geometry.h"

#include <algorithm>
#include <cmath>

#include "Cubic.h"
#include "Vector.h"

namespace host {

AIRealRect unite(const AIRealRect& a, const AIRealRect& b) {
  if (isEmpty(a)) return isEmpty(b) ? kEmptyRect : b;
  if (isEmpty(b)) return a;
  return {std::min(a.left, b.left), std::max(a.top, b.top), std::max(a.right, b.right),
          std::min(a.bottom, b.bottom)};
}

AIRealRect intersect(const AIRealRect& a, const AIRealRect& b) {
  const AIRealRect common{std::max(a.left, b.left), std::min(a.top, b.top), std::min(a.right, b.right),
                          std::max(a.bottom, b.bottom)};
  return isEmpty(common) ? kEmptyRect : common;
}

AIRealRect inflated(const AIRealRect& rect, double by) {
  if (isEmpty(rect)) return rect;
  return {rect.left - by, rect.top + by, rect.right + by, rect.bottom - by};
}

bool contains(const AIRealRect& outer, const AIRealRect& inner) {
  return inner.left >= outer.left && inner.right <= outer.right && inner.bottom >= outer.bottom &&
         inner.top <= outer.top;
}

bool contains(const AIRealRect& rect, AIRealPoint point) {
  return point.x >= rect.left && point.x <= rect.right && point.y >= rect.bottom && point.y <= rect.top;
}

AIRealPoint apply(const AIRealMatrix& matrix, AIRealPoint point) {
  return {matrix.a * point.x + matrix.c * point.y + matrix.tx,
          matrix.b * point.x + matrix.d * point.y + matrix.ty};
}

AIRealMatrix concat(const AIRealMatrix& first, const AIRealMatrix& second) {
  const AIRealPoint origin = apply(second, {first.tx, first.ty});
  return {second.a * first.a + second.c * first.b,
          second.b * first.a + second.d * first.b,
          second.a * first.c + second.c * first.d,
          second.b * first.c + second.d * first.d,
          origin.x,
          origin.y};
}

double determinant(const AIRealMatrix& matrix) {
  return matrix.a * matrix.d - matrix.b * matrix.c;
}

bool invert(const AIRealMatrix& matrix, AIRealMatrix& inverse) {
  const double area = determinant(matrix);
  // Beside the size of its columns, so that a small scale is not taken for a flat one.
  const double size = std::hypot(matrix.a, matrix.b) * std::hypot(matrix.c, matrix.d);
  if (!(std::abs(area) > 1e-14 * size)) return false;
  const AIRealMatrix turned{matrix.d / area, -matrix.b / area, -matrix.c / area, matrix.a / area, 0, 0};
  const AIRealPoint origin = apply(turned, {-matrix.tx, -matrix.ty});
  const AIRealMatrix result{turned.a, turned.b, turned.c, turned.d, origin.x, origin.y};
  for (const double value : {result.a, result.b, result.c, result.d, result.tx, result.ty}) {
    if (!std::isfinite(value)) return false;
  }
  inverse = result;
  return true;
}

PathGeometry transformed(const PathGeometry& path, const AIRealMatrix& matrix) {
  PathGeometry result = path;
  for (AIPathSegment& segment : result.segments) {
    segment.p = apply(matrix, segment.p);
    segment.in = apply(matrix, segment.in);
    segment.out = apply(matrix, segment.out);
  }
  return result;
}

std::vector<AIRealPoint> flatten(const PathGeometry& path, double tolerance, bool close) {
  std::vector<AIRealPoint> points;
  if (path.segments.empty()) return points;
  points.push_back(path.segments.front().p);
  for (std::size_t i = 0; i < curveCount(path); ++i) {
    const Cubic curve = curveAt(path, i);
    appendCurve(curve, curveSteps(curve, tolerance), points);
  }
  if (close && points.back() != points.front()) points.push_back(points.front());
  return points;
}

}  // namespace host
