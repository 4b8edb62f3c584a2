#include "HitStrokeScan.h"

#include <algorithm>
#include <cmath>

#include "Chords.h"
#include "Vector.h"

namespace host {

namespace {

constexpr double kHalfDiagonal = 0.7071067811865476;  // of a cell
constexpr double kMargin = 0.01;                      // of a cell
constexpr double kStraight = 0.15;                    // of a cell: the most that a straight stretch bends
constexpr std::uint32_t kMostEdges = 64;              // in a stretch

}  // namespace

// The stroke of one outline, in coordinates of the frame.
class HitStrokeScan::Course {
 public:
  // Pieces firstPiece to before endPiece are those of the outline.
  Course(const CellFrame& frame, const HitShapes& shapes, std::uint32_t firstPiece, std::uint32_t endPiece)
      : pen_(shapes.strokes().pen(shapes.strokes()[firstPiece].pen)) {
    const HitStrokes& strokes = shapes.strokes();
    const HitStrokePiece& first = strokes[firstPiece];
    const HitStrokePiece& last = strokes[endPiece - 1];
    const HitRing ring = shapes.outlines().ring(first.outline);
    half_ = pen_.half * frame.cellsPerUnit;
    points_.reserve(last.endEdge + 1);
    for (std::uint32_t i = 0; i <= last.endEdge; ++i) points_.push_back(frame.toFrame(ring[i]));
    for (std::uint32_t i = first.firstNode; i < last.endNode; ++i) {
      const HitStrokeNode& node = strokes.node(i);
      closed_ = node.node.kind == StrokeNode::Join;
      tips_.push_back({points_[node.vertex], frame.toFrame(nodeTip(node.node, pen_))});
      if (!coversRound(node.node, pen_)) cuts_.push_back(node.vertex);
    }
  }

  struct Tip {
    AIRealPoint at, tip;
  };
  double half() const { return half_; }
  const std::vector<AIRealPoint>& points() const { return points_; }
  const std::vector<Tip>& tips() const { return tips_; }

  // The vertex up to which the course from `from` on runs uncut and, for the cells, as good as straight.
  std::uint32_t stretchEnd(std::uint32_t from) const {
    const auto cut = std::upper_bound(cuts_.begin(), cuts_.end(), from);
    const std::uint32_t last = cut != cuts_.end() ? *cut : static_cast<std::uint32_t>(points_.size() - 1);
    std::uint32_t edges = 1;
    while (2 * edges <= std::min(last - from, kMostEdges) && deviation(from, from + 2 * edges) < kStraight) {
      edges *= 2;
    }
    return from + edges;
  }

  double deviation(std::uint32_t from, std::uint32_t to) const {
    double greatest = 0;
    for (std::uint32_t i = from + 1; i < to; ++i) {
      greatest = std::max(greatest, distanceToChord(points_[i], points_[from], points_[to]));
    }
    return greatest;
  }

  // The nearest places before and after a stretch where the stroke covers less than its half width around;
  // null if there is none.
  const AIRealPoint* cutBefore(std::uint32_t from) const {
    const auto after = std::upper_bound(cuts_.begin(), cuts_.end(), from);
    if (after != cuts_.begin()) return &points_[*(after - 1)];
    return closed_ && !cuts_.empty() ? &points_[cuts_.back()] : nullptr;
  }
  const AIRealPoint* cutAfter(std::uint32_t to) const {
    const auto next = std::lower_bound(cuts_.begin(), cuts_.end(), to);
    if (next != cuts_.end()) return &points_[*next];
    return closed_ && !cuts_.empty() ? &points_[cuts_.front()] : nullptr;
  }

 private:
  StrokePen pen_;
  double half_ = 0;
  bool closed_ = false;
  std::vector<AIRealPoint> points_;
  std::vector<Tip> tips_;
  std::vector<std::uint32_t> cuts_;  // vertices, ascending
};

CellRows HitStrokeScan::scan(const HitShapes& shapes, const HitShapes::Object& object) {
  std::uint32_t piece = object.firstPiece;
  while (piece < object.endPiece) {
    const std::uint32_t first = piece;
    const std::uint32_t outline = shapes.strokes()[first].outline;
    while (piece < object.endPiece && shapes.strokes()[piece].outline == outline) ++piece;
    add(Course(frame_, shapes, first, piece));
  }
  return cells_.take();
}

void HitStrokeScan::add(const Course& course) {
  const double reach = kHalfDiagonal + kMargin;  // from the middle of a cell to all of it
  for (const Course::Tip& tip : course.tips()) add({tip.at, tip.tip, course.half() + reach}, false);
  const auto last = static_cast<std::uint32_t>(course.points().size() - 1);
  for (std::uint32_t from = 0; from < last;) {
    const std::uint32_t to = course.stretchEnd(from);
    const double uncertain = reach + course.deviation(from, to);
    add({course.points()[from], course.points()[to], course.half() + uncertain}, false);
    if (course.half() > uncertain) addInside(course, from, to, course.half() - uncertain);
    from = to;
  }
}

// A cell whose middle lies so near the course that all of it lies within half the width is covered, unless
// the nearest point of the course is one where the stroke is cut: so that must be farther away.
void HitStrokeScan::addInside(const Course& course, std::uint32_t from, std::uint32_t to, double radius) {
  AIRealPoint a = course.points()[from];
  AIRealPoint b = course.points()[to];
  const double clear = 2 * course.half();
  const AIRealPoint* const before = course.cutBefore(from);
  const AIRealPoint* const after = course.cutAfter(to);
  const bool cutAtStart = before != nullptr && *before == a;
  const bool cutAtEnd = after != nullptr && *after == b;
  if (length(b - a) <= clear * (cutAtStart + cutAtEnd)) return;
  const AIRealPoint along = unit(b - a) * clear;
  if (cutAtStart) a = a + along;
  if (cutAtEnd) b = b - along;
  for (const AIRealPoint* cut : {before, after}) {
    if (cut != nullptr && distanceToChord(*cut, a, b) < clear * (1 - 1e-9)) return;
  }
  add({a, b, radius}, true);
}

// The cells whose middles lie in the capsule.
void HitStrokeScan::add(const Capsule& capsule, bool full) {
  const auto [a, b, radius] = capsule;
  const AIRealPoint aside = leftOf(unit(b - a)) * radius;
  const auto [low, high] = std::minmax(a.y, b.y);
  if (!(high + radius >= 0 && low - radius <= frame_.rows)) return;
  const int endRow = floorWithin(high + radius + 0.5, 0, frame_.rows);
  for (int row = floorWithin(low - radius - 0.5, -1, frame_.rows - 1) + 1; row < endRow; ++row) {
    const double y = row + 0.5;
    double left = HUGE_VAL;
    double right = -HUGE_VAL;
    for (const AIRealPoint centre : {a, b}) {
      const double away = std::abs(y - centre.y);
      if (!(away <= radius)) continue;
      const double width = std::sqrt((radius - away) * (radius + away));
      left = std::min(left, centre.x - width);
      right = std::max(right, centre.x + width);
    }
    for (const AIRealPoint side : {aside, -aside}) {
      const AIRealPoint from = a + side;
      const AIRealPoint to = b + side;
      if ((from.y <= y) == (to.y <= y)) continue;
      const double x = from.x + (to.x - from.x) * ((y - from.y) / (to.y - from.y));
      left = std::min(left, x);
      right = std::max(right, x);
    }
    const int first = floorWithin(left - 0.5, -1, frame_.columns) + 1;
    const int last = floorWithin(right - 0.5, -1, frame_.columns - 1);
    if (first <= last) cells_.add(row, {first, last, full});
  }
}

}  // namespace host
