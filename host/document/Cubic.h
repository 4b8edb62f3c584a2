// One cubic curve, and a path as a row of them.
#pragma once

#include <cstddef>
#include <vector>

#include "Art.h"

namespace host {

struct Cubic {
  AIRealPoint p0, p1, p2, p3;
};

// An open path has a curve less than it has segments. A closed one of one segment is a loop.
std::size_t curveCount(const PathGeometry& path);
Cubic curveAt(const PathGeometry& path, std::size_t index);

AIRealPoint pointAt(const Cubic& curve, double t);
AIRealPoint derivativeAt(const Cubic& curve, double t);
AIRealPoint secondDerivativeAt(const Cubic& curve, double t);
bool isPoint(const Cubic& curve);  // all four points are one
// Does it stay within `tolerance` of its chord, without passing the ends?
bool isFlat(const Cubic& curve, double tolerance);

// Unit vectors along the course of the curve, also if handles lie on their anchors. Null for a point.
AIRealPoint startTangent(const Cubic& curve);
AIRealPoint endTangent(const Cubic& curve);

// Parameters in ascending order; none at 0 and 1 themselves.
struct Parameters {
  double t[8] = {};
  std::size_t count = 0;
};
// Where the curve may turn back in x or in y.
Parameters extremes(const Cubic& curve);
// Where it may go slowest, which is where it bends hardest if it bends hard at all.
Parameters slowest(const Cubic& curve);

constexpr int kMaxCurveSteps = 4096;
// How many chords keep within `tolerance` of the curve; never above kMaxCurveSteps.
int curveSteps(const Cubic& curve, double tolerance);
// Appends the curve in so many chords, without its first point. Points that repeat the last are left out.
void appendCurve(const Cubic& curve, int steps, std::vector<AIRealPoint>& points);

}  // namespace host
