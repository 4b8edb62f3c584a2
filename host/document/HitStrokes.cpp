#include "HitStrokes.h"

#include <algorithm>
#include <cmath>

#include "Geometry.h"
#include "Vector.h"

namespace host {

namespace {

constexpr std::uint32_t kEdgesInPiece = 16;
constexpr double kMostWaste = 2;  // the box of a piece, beside those of its edges

bool samePen(const StrokePen& a, const StrokePen& b) {
  return a.half == b.half && a.cap == b.cap && a.join == b.join && a.miterLimit == b.miterLimit;
}

double areaOf(const AIRealRect& box) {
  return (box.right - box.left) * (box.top - box.bottom);
}

// As many edges as one box serves well: those of a bend, but not two sides of a rectangle.
std::uint32_t pieceEnd(const HitRing& ring, std::uint32_t first, std::uint32_t edgeCount, double half) {
  AIRealRect whole = kEmptyRect;
  double sum = 0;
  std::uint32_t end = first;
  for (; end < std::min(first + kEdgesInPiece, edgeCount); ++end) {
    AIRealRect edge = kEmptyRect;
    include(edge, ring[end]);
    include(edge, ring[end + 1]);
    edge = inflated(edge, half);
    sum += areaOf(edge);
    const AIRealRect grown = unite(whole, edge);
    if (end > first && areaOf(grown) > kMostWaste * sum) break;
    whole = grown;
  }
  return end;
}

bool isNear(AIRealPoint a, AIRealPoint b, double half, AIRealPoint point) {
  return point.x >= std::min(a.x, b.x) - half && point.x <= std::max(a.x, b.x) + half &&
         point.y >= std::min(a.y, b.y) - half && point.y <= std::max(a.y, b.y) + half;
}

// How the true course runs where an edge starts or ends.
struct Heading {
  AIRealPoint tangent;
  double edgeLength;  // of the shorter edge there
};

Heading headingBetween(AIRealPoint edge, AIRealPoint next) {
  const double a = length(edge);
  const double b = length(next);
  return {unit(edge * (1 / a) + next * (1 / b)), std::min(a, b)};
}

// `leaving` and `arriving` are the tangents of nodes at the ends of the edge; null where there is none.
Heading headingAt(const HitRing& ring, std::uint32_t edge, bool atStart, const AIRealPoint* leaving,
                  const AIRealPoint* arriving) {
  const AIRealPoint along = ring[edge + 1] - ring[edge];
  const AIRealPoint* const tangent = atStart ? leaving : arriving;
  if (tangent != nullptr) return {*tangent, length(along)};
  return atStart ? headingBetween(ring[edge] - ring[edge - 1], along)
                 : headingBetween(along, ring[edge + 2] - ring[edge + 1]);
}

// One edge of the flattened course, between the normals of the true one. Only the end that is nearer to the
// point makes a difference.
class EdgeTest {
 public:
  EdgeTest(AIRealPoint a, AIRealPoint b, double half, AIRealPoint point) : half_(half), edge_(b - a) {
    const double along = dot(point - a, edge_);
    const double size = squaredLength(edge_);
    nearStart_ = 2 * along < size;
    offset_ = nearStart_ ? point - a : point - b;
    const double aside = cross(edge_, offset_);
    isBeside_ = along >= 0 && along <= size && aside * aside <= half * half * size;
  }

  bool isNearStart() const { return nearStart_; }
  bool mayCover() const { return isBeside_ || isNearEnd(); }

  // `heading` is that at the nearer end.
  bool covers(const Heading& heading) const {
    if (isBeside_ && !isCutOff(heading)) return true;
    // Between the normals of edge and course, on the outer side.
    return isNearEnd() && (nearStart_ ? isInBend(offset_, heading.tangent, edge_)
                                      : isInBend(offset_, edge_, heading.tangent));
  }

 private:
  bool isNearEnd() const { return squaredLength(offset_) <= half_ * half_; }

  // Is the point beyond the normal? A course that bends harder than the half width sweeps there all the same.
  bool isCutOff(const Heading& heading) const {
    const double beyond = dot(offset_, heading.tangent);
    return (nearStart_ ? beyond < 0 : beyond > 0) && dot(heading.tangent, edge_) > 0 &&
           2 * half_ * std::abs(cross(heading.tangent, edge_)) < heading.edgeLength * length(edge_);
  }

  double half_;
  AIRealPoint edge_;
  AIRealPoint offset_{};  // of the point, from the nearer end
  bool nearStart_ = false;
  bool isBeside_ = false;  // within the half width
};

}  // namespace

void HitStrokes::add(const HitOutlines& outlines, std::uint32_t outline, const PathGeometry& path,
                     const std::vector<std::uint32_t>& curveEnds, const StrokePen& pen) {
  const StrokeCourse course = strokeCourse(path);
  if (course.nodes.empty()) return;
  if (pens_.empty() || !samePen(pens_.back(), pen)) pens_.push_back(pen);

  HitStrokePiece piece{};
  piece.outline = outline;
  piece.pen = static_cast<std::uint32_t>(pens_.size() - 1);
  piece.firstNode = static_cast<std::uint32_t>(nodes_.size());
  addNodes(course, curveEnds);
  const auto endNode = static_cast<std::uint32_t>(nodes_.size());
  const std::uint32_t edgeCount = nodes_.back().vertex;
  do {
    piece.endEdge = pieceEnd(outlines.ring(outline), piece.firstEdge, edgeCount, pen.half);
    while (nodes_[piece.firstNode].vertex < piece.firstEdge) ++piece.firstNode;
    piece.endNode = piece.firstNode;
    while (piece.endNode < endNode && nodes_[piece.endNode].vertex <= piece.endEdge) ++piece.endNode;
    addPiece(outlines.ring(outline), piece);
    piece.firstEdge = piece.endEdge;
  } while (piece.firstEdge < edgeCount);
}

// A closed course has its first node once more at the end.
void HitStrokes::addNodes(const StrokeCourse& course, const std::vector<std::uint32_t>& curveEnds) {
  for (std::size_t i = 0; i < course.nodes.size(); ++i) {
    const bool isFirst = i == 0 || course.curves.empty();
    nodes_.push_back({course.nodes[i], isFirst ? 0 : curveEnds[i - 1]});
  }
  if (course.closed) nodes_.push_back({course.nodes.front(), curveEnds.back()});
}

void HitStrokes::addPiece(const HitRing& ring, const HitStrokePiece& piece) {
  HitStrokePiece added = piece;
  added.bounds = kEmptyRect;
  for (std::uint32_t i = piece.firstEdge; i <= piece.endEdge; ++i) include(added.bounds, ring[i]);
  for (std::uint32_t i = piece.firstNode; i < piece.endNode; ++i) {
    include(added.bounds, nodeTip(nodes_[i].node, pens_[piece.pen]));
  }
  added.bounds = inflated(added.bounds, pens_[piece.pen].half * (1 + 1e-9));
  pieces_.push_back(added);
}

bool HitStrokes::covers(const HitOutlines& outlines, std::uint32_t pieceIndex, AIRealPoint point) const {
  const HitStrokePiece& piece = pieces_[pieceIndex];
  const StrokePen& pen = pens_[piece.pen];
  const HitRing ring = outlines.ring(piece.outline);
  const HitStrokeNode* node = nodes_.data() + piece.firstNode;
  const HitStrokeNode* const end = nodes_.data() + piece.endNode;

  AIRealPoint from = ring[piece.firstEdge];
  for (std::uint32_t edge = piece.firstEdge; edge < piece.endEdge; ++edge) {
    const AIRealPoint to = ring[edge + 1];
    const AIRealPoint* leaving = nullptr;
    for (; node != end && node->vertex == edge; ++node) leaving = &node->node.out;
    if (isNear(from, to, pen.half, point)) {
      const AIRealPoint* const arriving = node != end && node->vertex == edge + 1 ? &node->node.in : nullptr;
      const EdgeTest test(from, to, pen.half, point);
      if (test.mayCover() && test.covers(headingAt(ring, edge, test.isNearStart(), leaving, arriving)))
        return true;
    }
    from = to;
  }
  for (node = nodes_.data() + piece.firstNode; node != end; ++node) {
    if (nodeCovers(node->node, pen, point)) return true;
  }
  return false;
}

}  // namespace host
