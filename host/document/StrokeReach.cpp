#include "StrokeReach.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "Vector.h"

namespace host {

namespace {

// Works before the matrix, where pens are round, and looks for what lies farthest left, right, up and down
// after it.
class StrokeReach {
 public:
  StrokeReach(AIRealRect& rect, const StrokePen& pen, const AIRealMatrix& matrix)
      : rect_(rect), pen_(pen), matrix_(matrix) {
    const AIRealPoint toRight = unit({matrix.a, matrix.c});
    const AIRealPoint toTop = unit({matrix.b, matrix.d});
    farthest_ = {toRight, -toRight, toTop, -toTop};
  }

  void add(const Cubic& curve) {
    addAcross(curve.p0, startTangent(curve));
    addAcross(curve.p3, endTangent(curve));
    const Cubic seen{apply(matrix_, curve.p0), apply(matrix_, curve.p1), apply(matrix_, curve.p2),
                     apply(matrix_, curve.p3)};
    const Parameters turns = extremes(seen);
    for (std::size_t i = 0; i < turns.count; ++i) addAcross(curve, turns.t[i]);
    addHardBends(curve, turns);
  }

  void add(const StrokeNode& node) {
    const AIRealPoint tip = nodeTip(node, pen_);
    if (node.kind == StrokeNode::Join) {
      addPoint(tip);
      if (pen_.join == kAIRoundJoin) addRound(node.at, node.in, node.out);
      return;
    }
    if (pen_.cap == kAIProjectingCap) addAcross(tip, node.in);
    const AIRealPoint outward = node.kind == StrokeNode::Start ? -node.out : node.in;
    if (pen_.cap == kAIRoundCap) addRound(node.at, outward, -outward);
  }

 private:
  void addPoint(AIRealPoint point) { include(rect_, apply(matrix_, point)); }

  void addAcross(AIRealPoint at, AIRealPoint tangent) {
    const AIRealPoint aside = leftOf(tangent) * pen_.half;
    addPoint(at + aside);
    addPoint(at - aside);
  }

  void addAcross(const Cubic& curve, double t) {
    if (!isCusp(curve, t)) addAcross(pointAt(curve, t), unit(derivativeAt(curve, t)));
  }

  // No direction there: the course stands still, and turns straight back unless that is at its ends.
  static bool isCusp(const Cubic& curve, double t) {
    const double size =
        length(curve.p1 - curve.p0) + length(curve.p2 - curve.p1) + length(curve.p3 - curve.p2);
    return length(derivativeAt(curve, t)) <= 1e-7 * size;
  }

  void addSlowest(const Cubic& curve, double t) {
    if (!isCusp(curve, t)) {
      addAcross(curve, t);
    } else if (t > 1e-6 && t < 1 - 1e-6) {
      const AIRealPoint onward = unit(secondDerivativeAt(curve, t));
      addRound(pointAt(curve, t), -onward, onward);
    }
  }

  // The part of the disc on the outer side of a bend.
  void addRound(AIRealPoint centre, AIRealPoint in, AIRealPoint out) {
    for (const AIRealPoint direction : farthest_) {
      if (isInBend(direction, in, out)) addPoint(centre + direction * pen_.half);
    }
  }

  // Where a curve begins or ceases to bend harder than the half width, the band's inner side turns back,
  // and near an end it may there stick out beyond all else.
  void addHardBends(const Cubic& curve, const Parameters& turns) {
    if (isFlat(curve, 0)) return;
    const Parameters slow = slowest(curve);
    std::array<double, 16> stops{};
    std::size_t count = 1;  // the first is 0
    for (std::size_t i = 0; i < turns.count; ++i) stops[count++] = turns.t[i];
    for (std::size_t i = 0; i < slow.count; ++i) {
      addSlowest(curve, slow.t[i]);
      stops[count++] = slow.t[i];
    }
    stops[count++] = 1;
    std::sort(stops.begin(), stops.begin() + static_cast<std::ptrdiff_t>(count));
    for (std::size_t i = 0; i + 1 < count; ++i) searchHardBends(curve, stops[i], stops[i + 1]);
  }

  void searchHardBends(const Cubic& curve, double from, double to) {
    constexpr int kSamples = 8;
    double low = from;
    bool lowIsHard = bendsHard(curve, low);
    for (int i = 1; i <= kSamples; ++i) {
      const double high = from + (to - from) * i / kSamples;
      const bool highIsHard = bendsHard(curve, high);
      if (lowIsHard != highIsHard) addAcross(curve, change(curve, low, high, lowIsHard));
      low = high;
      lowIsHard = highIsHard;
    }
  }

  double change(const Cubic& curve, double low, double high, bool lowIsHard) const {
    for (int step = 0; step < 50; ++step) {
      const double middle = 0.5 * (low + high);
      (bendsHard(curve, middle) == lowIsHard ? low : high) = middle;
    }
    return low;
  }

  bool bendsHard(const Cubic& curve, double t) const {
    const AIRealPoint first = derivativeAt(curve, t);
    const double speed = length(first);
    return std::abs(cross(first, secondDerivativeAt(curve, t))) * pen_.half >= speed * speed * speed;
  }

  AIRealRect& rect_;
  const StrokePen& pen_;
  const AIRealMatrix& matrix_;
  std::array<AIRealPoint, 4> farthest_{};
};

}  // namespace

void includeStroke(AIRealRect& rect, const PathGeometry& path, const StrokePen& pen,
                   const AIRealMatrix& matrix) {
  StrokeReach reach(rect, pen, matrix);
  const StrokeCourse course = strokeCourse(path);
  for (const Cubic& curve : course.curves) reach.add(curve);
  for (const StrokeNode& node : course.nodes) reach.add(node);
}

}  // namespace host
