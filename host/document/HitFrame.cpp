#include "HitFrame.h"

#include <algorithm>
#include <cmath>

#include "Geometry.h"

namespace host {

namespace {

constexpr double kCellsPerEdge = 64;
constexpr double kFewestCells = 4096;
constexpr double kLongestSide = 32000;  // in cells
constexpr double kMostWork = 1 << 23;   // cells and rows that edges touch
constexpr double kCellsInOneGo = 64;    // that a span takes as long for as an edge for a touch

// What marking costs, in terms of the size of a cell: touches = edges + lengths / size + area / size^2.
class MarkingWork {
 public:
  explicit MarkingWork(const AIRealRect& region) : region_(region) {}

  void add(const HitShapes& shapes) {
    for (const HitShapes::Object& object : shapes.objects()) {
      if (isEmpty(intersect(object.limit, region_))) continue;
      if (object.paint.fillRequest != 0) addFill(shapes, object);
      addStroke(shapes, object);
    }
  }

  double edges() const { return edges_; }
  double touches(double cell) const {
    return edges_ + lengths_ / cell + area_ / (cell * cell * kCellsInOneGo);
  }

 private:
  void addFill(const HitShapes& shapes, const HitShapes::Object& object) {
    for (std::uint32_t id = object.firstOutline; id < object.endOutline; ++id) {
      const HitOutline& outline = shapes.outlines()[id];
      area_ += areaOf(outline.box.rect());
      if (contains(region_, outline.box.rect())) {
        edges_ += outline.vertexCount;
        lengths_ += outline.length;
        continue;
      }
      const HitRing ring = shapes.outlines().ring(id);
      for (std::uint32_t i = 0; i + 1 < ring.size(); ++i) addEdge(ring[i], ring[i + 1], 0);
    }
  }

  void addStroke(const HitShapes& shapes, const HitShapes::Object& object) {
    for (std::uint32_t id = object.firstPiece; id < object.endPiece; ++id) {
      const HitStrokePiece& piece = shapes.strokes()[id];
      const HitRing ring = shapes.outlines().ring(piece.outline);
      const double half = shapes.strokes().pen(piece.pen).half;
      for (std::uint32_t i = piece.firstEdge; i < piece.endEdge; ++i) {
        area_ += 2 * half * addEdge(ring[i], ring[i + 1], half);
      }
    }
  }

  // Of what lies outside the region, only the part beside it counts. Gives the length that does.
  double addEdge(AIRealPoint a, AIRealPoint b, double half) {
    AIRealRect box = kEmptyRect;
    include(box, a);
    include(box, b);
    box = intersect(inflated(box, half), region_);
    edges_ += 1;
    if (isEmpty(box)) return 0;
    const double length = (box.right - box.left) + (box.top - box.bottom);
    lengths_ += length;
    return length;
  }

  double areaOf(const AIRealRect& bounds) const {
    const AIRealRect box = intersect(bounds, region_);
    return isEmpty(box) ? 0 : (box.right - box.left) * (box.top - box.bottom);
  }

  AIRealRect region_;
  double edges_ = 0, lengths_ = 0, area_ = 0;
};

}  // namespace

CellFrame chooseFrame(const HitShapes& shapes, const HitClips& clips, std::size_t mostCells) {
  CellFrame frame;
  if (isEmpty(shapes.bounds())) return frame;
  const AIRealRect& region = shapes.mainRegion();
  MarkingWork work(region);
  work.add(shapes);
  for (std::uint32_t scope = 0; scope < clips.size(); ++scope) work.add(clips.shapesOf(scope));

  const double width = region.right - region.left;
  const double height = region.top - region.bottom;
  const double wanted =
      std::min(std::max(work.edges() * kCellsPerEdge, kFewestCells), static_cast<double>(mostCells));
  double cell = std::max(std::sqrt(width / wanted * height), std::max(width, height) / kLongestSide);
  if (!(cell > 0)) cell = 1;
  const double mostWork = std::max(kMostWork, 4 * work.edges());
  while (work.touches(cell) > mostWork && cell < std::max(width, height)) cell *= 1.25;

  frame.origin = {region.left, region.bottom};
  frame.cellsPerUnit = 1 / cell;
  frame.columns = floorWithin(width / cell, 0, static_cast<int>(kLongestSide)) + 1;
  frame.rows = floorWithin(height / cell, 0, static_cast<int>(kLongestSide)) + 1;
  return frame;
}

}  // namespace host
