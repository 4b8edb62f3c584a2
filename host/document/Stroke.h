// The outline of a stroke: the band that half the pen's width to both sides sweeps along the curves, and
// what stands at its nodes, where curves meet or a path ends: joins and caps.
//
// Within a curve the band bends round, whatever the join. A path of no length shows its caps alone, as if
// it ran along x. One lone anchor of an open path draws nothing.
#pragma once

#include <vector>

#include "Cubic.h"
#include "Vector.h"

namespace host {

// Lengths in document units. Dashes are not part of it: a dashed stroke counts as a solid one.
struct StrokePen {
  double half = 0;  // of the width
  AILineCap cap = kAIButtCap;
  AILineJoin join = kAIMiterJoin;
  double miterLimit = 4;
};
StrokePen strokePen(const AIStrokeStyle& style);

struct StrokeNode {
  enum Kind { Start, End, Join };
  Kind kind;
  AIRealPoint at;
  AIRealPoint in, out;  // unit vectors; of a start and an end both are the one that there is
};

// The curves of a path that have any length, with the node before each of them and, on an open path, one
// after the last. A path of no length has no curves and two nodes.
struct StrokeCourse {
  std::vector<Cubic> curves;
  std::vector<StrokeNode> nodes;
  bool closed = false;
};
StrokeCourse strokeCourse(const PathGeometry& path);

// The farthest that the join or cap reaches out in its middle, beyond all that lies within half a width:
// the point of a miter, the middle of a projecting cap's edge. Otherwise the node itself.
AIRealPoint nodeTip(const StrokeNode& node, const StrokePen& pen);

// Does the join or the cap cover the point? What the curves cover beside it is not asked.
bool nodeCovers(const StrokeNode& node, const StrokePen& pen, AIRealPoint point);

// Do the stroke's curves and this node cover all about the node, within half a width of the curves?
bool coversRound(const StrokeNode& node, const StrokePen& pen);

// Is `offset`, seen from a node, on the outer side of the bend from `in` to `out`, between their normals?
inline bool isInBend(AIRealPoint offset, AIRealPoint in, AIRealPoint out) {
  return dot(offset, in) >= 0 && dot(offset, out) <= 0;
}

}  // namespace host
