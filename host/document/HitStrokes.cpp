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

// One edge of the flattened course. At a node the true course may leave or arrive in a slightly other
// direction than the edge.
class EdgeTest {
 public:
  EdgeTest(AIRealPoint a, AIRealPoint b, double half, AIRealPoint point)
      : half_(half), edge_(b - a), fromStart_(point - a), fromEnd_(point - b) {}

  // The tangents are null where the end of the edge is no node.
  bool covers(const AIRealPoint* start, const AIRealPoint* end) const {
    if (coversBeside() && !isCutOff(start, fromStart_, 1) && !isCutOff(end, fromEnd_, -1)) return true;
    if (start != nullptr && isInRound(fromStart_, *start, edge_)) return true;
    return end != nullptr && isInRound(fromEnd_, edge_, *end);
  }

  // Is the point in the round of the bend at the end of the edge?
  bool coversBend(AIRealPoint nextEdge) const { return isInRound(fromEnd_, edge_, nextEdge); }

 private:
  bool coversBeside() const {
    const double aside = cross(edge_, fromStart_);
    return aside * aside <= half_ * half_ * squaredLength(edge_) && dot(fromStart_, edge_) >= 0 &&
           dot(fromEnd_, edge_) <= 0;
  }

  // A gently bent course ends upright on its tangent. One that bends harder than the half width sweeps over
  // what would be cut.
  bool isCutOff(const AIRealPoint* tangent, AIRealPoint offset, double side) const {
    return tangent != nullptr && dot(offset, *tangent) * side < 0 && dot(*tangent, edge_) > 0 &&
           2 * half_ * std::abs(cross(*tangent, edge_)) < squaredLength(edge_);
  }

  bool isInRound(AIRealPoint offset, AIRealPoint in, AIRealPoint out) const {
    return squaredLength(offset) <= half_ * half_ && isInBend(offset, in, out);
  }

  double half_;
  AIRealPoint edge_, fromStart_, fromEnd_;
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
    const AIRealPoint* start = nullptr;
    for (; node != end && node->vertex == edge; ++node) start = &node->node.out;
    if (isNear(from, to, pen.half, point)) {
      const bool endsAtNode = node != end && node->vertex == edge + 1;
      const EdgeTest test(from, to, pen.half, point);
      if (test.covers(start, endsAtNode ? &node->node.in : nullptr)) return true;
      if (!endsAtNode && test.coversBend(ring[edge + 2] - to)) return true;
    }
    from = to;
  }
  for (node = nodes_.data() + piece.firstNode; node != end; ++node) {
    if (nodeCovers(node->node, pen, point)) return true;
  }
  return false;
}

}  // namespace host
