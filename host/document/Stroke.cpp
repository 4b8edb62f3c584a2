#include "Stroke.h"

#include <cmath>

#include "Vector.h"

namespace host {

namespace {

constexpr double kDefaultMiterLimit = 4;

// Halfway between the normals on the outer side of a bend, scaled so that the edges of the two bands have
// the distance 1 along it where they meet; null for a turn straight back.
AIRealPoint miterDirection(const StrokeNode& node) {
  const AIRealPoint sum =
      cross(node.in, node.out) > 0 ? -leftOf(node.in + node.out) : leftOf(node.in + node.out);
  const double size = squaredLength(sum);
  return size > 1e-24 ? sum * (2 / size) : AIRealPoint{0, 0};
}

// A miter of more than miterLimit times the width is cut to a bevel.
bool hasMiter(AIRealPoint miter, const StrokePen& pen) {
  const double ratio = squaredLength(miter);
  return pen.join == kAIMiterJoin && ratio > 0 && ratio <= pen.miterLimit * pen.miterLimit * (1 + 1e-12);
}

bool joinCovers(const StrokeNode& node, const StrokePen& pen, AIRealPoint offset) {
  if (!isInBend(offset, node.in, node.out)) return false;
  if (pen.join == kAIRoundJoin) return squaredLength(offset) <= pen.half * pen.half;
  const AIRealPoint miter = miterDirection(node);
  if (hasMiter(miter, pen)) {
    return std::abs(cross(node.in, offset)) <= pen.half && std::abs(cross(node.out, offset)) <= pen.half;
  }
  // The bevel's edge stands upright on the middle of the bend, at half * cos(turn / 2).
  return squaredLength(miter) > 0 && dot(offset, miter) <= pen.half;
}

bool capCovers(AIRealPoint outward, const StrokePen& pen, AIRealPoint offset) {
  const double along = dot(offset, outward);
  if (!(along >= 0)) return false;
  if (pen.cap == kAIRoundCap) return squaredLength(offset) <= pen.half * pen.half;
  return pen.cap == kAIProjectingCap && along <= pen.half && std::abs(cross(outward, offset)) <= pen.half;
}

AIRealPoint outwardOf(const StrokeNode& node) {
  return node.kind == StrokeNode::Start ? -node.out : node.in;
}

StrokeNode joinOf(const Cubic& before, const Cubic& after) {
  return {StrokeNode::Join, after.p0, endTangent(before), startTangent(after)};
}

}  // namespace

StrokePen strokePen(const AIStrokeStyle& style) {
  return {style.width / 2, style.cap, style.join,
          style.miterLimit >= 1 ? style.miterLimit : kDefaultMiterLimit};
}

StrokeCourse strokeCourse(const PathGeometry& path) {
  StrokeCourse course;
  course.closed = path.closed;
  for (std::size_t i = 0; i < curveCount(path); ++i) {
    const Cubic curve = curveAt(path, i);
    if (!isPoint(curve)) course.curves.push_back(curve);
  }
  if (course.curves.empty()) {
    course.closed = false;
    if (curveCount(path) == 0) return course;
    const AIRealPoint at = path.segments.front().p;
    course.nodes = {{StrokeNode::Start, at, {1, 0}, {1, 0}}, {StrokeNode::End, at, {1, 0}, {1, 0}}};
    return course;
  }
  const Cubic& first = course.curves.front();
  const Cubic& last = course.curves.back();
  const AIRealPoint start = startTangent(first);
  const AIRealPoint end = endTangent(last);
  course.nodes.push_back(course.closed ? joinOf(last, first)
                                       : StrokeNode{StrokeNode::Start, first.p0, start, start});
  for (std::size_t i = 1; i < course.curves.size(); ++i) {
    course.nodes.push_back(joinOf(course.curves[i - 1], course.curves[i]));
  }
  if (!course.closed) course.nodes.push_back({StrokeNode::End, last.p3, end, end});
  return course;
}

AIRealPoint nodeTip(const StrokeNode& node, const StrokePen& pen) {
  if (node.kind != StrokeNode::Join) {
    return pen.cap == kAIProjectingCap ? node.at + outwardOf(node) * pen.half : node.at;
  }
  const AIRealPoint miter = miterDirection(node);
  return hasMiter(miter, pen) ? node.at + miter * pen.half : node.at;
}

bool nodeCovers(const StrokeNode& node, const StrokePen& pen, AIRealPoint point) {
  const AIRealPoint offset = point - node.at;
  return node.kind == StrokeNode::Join ? joinCovers(node, pen, offset)
                                       : capCovers(outwardOf(node), pen, offset);
}

bool coversRound(const StrokeNode& node, const StrokePen& pen) {
  if (node.kind != StrokeNode::Join) return pen.cap != kAIButtCap;
  constexpr double kSmooth = 1e-3;  // a bend in radians that no join shows at
  return pen.join == kAIRoundJoin || hasMiter(miterDirection(node), pen) ||
         (std::abs(cross(node.in, node.out)) < kSmooth && dot(node.in, node.out) > 0);
}

}  // namespace host
