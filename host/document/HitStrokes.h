// Strokes along flattened outlines, in short pieces that can be tested one by one.
#pragma once

#include <cstdint>
#include <vector>

#include "HitOutlines.h"
#include "Stroke.h"

namespace host {

struct HitStrokeNode {
  StrokeNode node;
  std::uint32_t vertex;  // of the outline
};

// Some edges of an outline, and all nodes at their ends.
struct HitStrokePiece {
  std::uint32_t outline;
  std::uint32_t firstEdge, endEdge;  // an edge has the number of the vertex it starts from
  std::uint32_t firstNode, endNode;
  std::uint32_t pen;
  AIRealRect bounds;
};

class HitStrokes {
 public:
  // Appends the pieces of a path's stroke. `curveEnds` is what HitOutlines::add() gave for the outline.
  void add(const HitOutlines& outlines, std::uint32_t outline, const PathGeometry& path,
           const std::vector<std::uint32_t>& curveEnds, const StrokePen& pen);

  bool covers(const HitOutlines& outlines, std::uint32_t piece, AIRealPoint point) const;

  std::size_t size() const { return pieces_.size(); }
  const HitStrokePiece& operator[](std::uint32_t piece) const { return pieces_[piece]; }
  const HitStrokeNode& node(std::uint32_t index) const { return nodes_[index]; }
  const StrokePen& pen(std::uint32_t index) const { return pens_[index]; }

 private:
  void addNodes(const StrokeCourse& course, const std::vector<std::uint32_t>& curveEnds);
  void addPiece(const HitRing& ring, const HitStrokePiece& piece);

  std::vector<HitStrokePiece> pieces_;
  std::vector<HitStrokeNode> nodes_;
  std::vector<StrokePen> pens_;
};

}  // namespace host
