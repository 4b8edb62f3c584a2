#include "LinePieces.h"

#include <algorithm>
#include <cmath>

#include "Geometry.h"
#include "Vector.h"

namespace host {
namespace {

constexpr double kMostPieces = 4e5;  // that long lines are cut into
constexpr double kSharpBend = 0.5;   // sine of the bend that a piece ends at

bool isStraightOn(AIRealPoint a, AIRealPoint b) {
  return dot(a, b) > 0 && std::abs(cross(a, b)) < kSharpBend * length(a) * length(b);
}

double lengthOf(const std::vector<AIRealPoint>& points) {
  double sum = 0;
  for (std::size_t i = 1; i < points.size(); ++i) sum += length(points[i] - points[i - 1]);
  return sum;
}

class Cutter {
 public:
  Cutter(LinePieces& lines, const OverlapLimits& limits)
      : lines_(lines),
        shortest_(std::min(limits.least / 8, lines.longest / 2)),
        invisible_(limits.distance / 2) {}

  // Long chords become several pieces, and short ones one, up to a bend that can be seen.
  void cut(const std::vector<AIRealPoint>& points, std::uint32_t path) {
    double along = 0;
    AIRealPoint from = points.front();
    for (std::size_t i = 1; i < points.size(); ++i) {
      const AIRealPoint to = points[i];
      const double size = length(to - from);
      const bool isLast = i + 1 == points.size();
      if (!isLast && goesOn(to - from, points[i + 1] - to, size)) continue;
      add(from, to, along, path);
      along += size;
      from = to;
    }
  }

 private:
  bool goesOn(AIRealPoint way, AIRealPoint next, double size) const {
    return size < invisible_ || (size < shortest_ && isStraightOn(way, next));
  }

  // Never more than a few times kMostPieces in all.
  void add(AIRealPoint from, AIRealPoint to, double along, std::uint32_t path) {
    const double size = length(to - from);
    const int count = std::max(1, static_cast<int>(std::ceil(size / lines_.longest)));
    for (int k = 0; k < count; ++k) {
      const double start = static_cast<double>(k) / count, end = static_cast<double>(k + 1) / count;
      lines_.pieces.push_back(
          {from + (to - from) * start, from + (to - from) * end, along + size * (start + end) / 2, path});
    }
  }

  LinePieces& lines_;
  double shortest_, invisible_;
};

}  // namespace

bool LinePieces::areNeighbours(const LinePiece& a, const LinePiece& b, double apart) const {
  if (a.path != b.path) return false;
  const Course& course = courses[a.path];
  const double between = std::abs(a.along - b.along);
  return between < apart || (course.closed && course.length - between < apart);
}

LinePieces cutIntoPieces(const std::vector<const PathGeometry*>& paths, const OverlapLimits& limits) {
  LinePieces lines;
  std::vector<std::vector<AIRealPoint>> courses;
  double total = 0;
  for (const PathGeometry* path : paths) {
    courses.push_back(flatten(*path, limits.distance / 10, false));
    const double size = lengthOf(courses.back());
    lines.courses.push_back({size, path->closed});
    if (std::isfinite(size)) total += size;
  }
  lines.longest = std::max(limits.least / 2, total / kMostPieces);
  Cutter cutter(lines, limits);
  for (std::uint32_t i = 0; i < courses.size(); ++i) {
    if (std::isfinite(lines.courses[i].length) && !courses[i].empty()) cutter.cut(courses[i], i);
  }
  return lines;
}

}  // namespace host
