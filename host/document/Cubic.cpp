#include "Cubic.h"

#include <algorithm>
#include <cmath>

#include "Vector.h"

namespace host {

namespace {

// c'(t) / 3 = a t^2 + b t + c
struct Derivative {
  AIRealPoint a, b, c;
};

Derivative derivativeOf(const Cubic& curve) {
  return {curve.p3 - curve.p0 + (curve.p1 - curve.p2) * 3, (curve.p2 - curve.p1 * 2 + curve.p0) * 2,
          curve.p1 - curve.p0};
}

void keep(Parameters& parameters, double t) {
  if (t > 0 && t < 1) parameters.t[parameters.count++] = t;
}

// Roots of a t^2 + b t + c. See W. H. Press et al., Numerical Recipes, "Quadratic and Cubic Equations".
void solveQuadratic(double a, double b, double c, Parameters& roots) {
  const double discriminant = b * b - 4 * a * c;
  if (!(discriminant >= 0)) return;
  const double q = -0.5 * (b + std::copysign(std::sqrt(discriminant), b));
  if (a != 0) keep(roots, q / a);
  if (q != 0) keep(roots, c / q);
}

void sort(Parameters& parameters) {
  std::sort(parameters.t, parameters.t + parameters.count);
}

// Roots of d[3] t^3 + ... + d[0], one between each two turns of it.
void solveCubic(const double (&d)[4], Parameters& roots) {
  const auto value = [&d](double t) { return ((d[3] * t + d[2]) * t + d[1]) * t + d[0]; };
  Parameters turns;
  solveQuadratic(3 * d[3], 2 * d[2], d[1], turns);
  sort(turns);
  turns.t[turns.count++] = 1;
  double low = 0;
  for (std::size_t i = 0; i < turns.count; ++i) {
    double high = turns.t[i];
    const double next = high;
    const bool rising = value(low) <= 0;
    if (rising == (value(high) >= 0)) {
      for (int step = 0; step < 60 && low < high; ++step) {
        const double middle = 0.5 * (low + high);
        ((value(middle) <= 0) == rising ? low : high) = middle;
      }
      keep(roots, low);
    }
    low = next;
  }
}

bool within(double value, double a, double b) {
  return value >= std::min(a, b) && value <= std::max(a, b);
}

// The first of three vectors that is not negligible beside the size of the curve.
AIRealPoint firstDirection(AIRealPoint a, AIRealPoint b, AIRealPoint c) {
  const double negligible = 1e-20 * std::max({squaredLength(a), squaredLength(b), squaredLength(c)});
  if (squaredLength(a) > negligible) return unit(a);
  if (squaredLength(b) > negligible) return unit(b);
  return unit(c);
}

}  // namespace

std::size_t curveCount(const PathGeometry& path) {
  if (path.segments.empty()) return 0;
  return path.closed ? path.segments.size() : path.segments.size() - 1;
}

Cubic curveAt(const PathGeometry& path, std::size_t index) {
  const AIPathSegment& from = path.segments[index];
  const AIPathSegment& to = path.segments[index + 1 < path.segments.size() ? index + 1 : 0];
  return {from.p, from.out, to.in, to.p};
}

AIRealPoint pointAt(const Cubic& curve, double t) {
  const double s = 1 - t;
  return curve.p0 * (s * s * s) + curve.p1 * (3 * s * s * t) + curve.p2 * (3 * s * t * t) +
         curve.p3 * (t * t * t);
}

AIRealPoint derivativeAt(const Cubic& curve, double t) {
  const Derivative d = derivativeOf(curve);
  return ((d.a * t + d.b) * t + d.c) * 3;
}

AIRealPoint secondDerivativeAt(const Cubic& curve, double t) {
  const Derivative d = derivativeOf(curve);
  return (d.a * (2 * t) + d.b) * 3;
}

bool isPoint(const Cubic& curve) {
  return curve.p0 == curve.p1 && curve.p0 == curve.p2 && curve.p0 == curve.p3;
}

bool isFlat(const Cubic& curve, double tolerance) {
  const AIRealPoint chord = curve.p3 - curve.p0;
  const double size = squaredLength(chord);
  const double reach = tolerance * tolerance * size;
  for (const AIRealPoint handle : {curve.p1 - curve.p0, curve.p2 - curve.p0}) {
    const double along = dot(handle, chord);
    const double aside = cross(chord, handle);
    if (!(along >= 0 && along <= size && aside * aside <= reach)) return false;
  }
  return size > 0;
}

AIRealPoint startTangent(const Cubic& curve) {
  return firstDirection(curve.p1 - curve.p0, curve.p2 - curve.p0, curve.p3 - curve.p0);
}

AIRealPoint endTangent(const Cubic& curve) {
  return firstDirection(curve.p3 - curve.p2, curve.p3 - curve.p1, curve.p3 - curve.p0);
}

Parameters extremes(const Cubic& curve) {
  const Derivative d = derivativeOf(curve);
  Parameters roots;
  const bool staysInX =
      within(curve.p1.x, curve.p0.x, curve.p3.x) && within(curve.p2.x, curve.p0.x, curve.p3.x);
  const bool staysInY =
      within(curve.p1.y, curve.p0.y, curve.p3.y) && within(curve.p2.y, curve.p0.y, curve.p3.y);
  if (!staysInX) solveQuadratic(d.a.x, d.b.x, d.c.x, roots);
  if (!staysInY) solveQuadratic(d.a.y, d.b.y, d.c.y, roots);
  sort(roots);
  return roots;
}

Parameters slowest(const Cubic& curve) {
  const Derivative d = derivativeOf(curve);
  // Half the derivative of |c'(t) / 3|^2.
  const double terms[4] = {dot(d.b, d.c), dot(d.b, d.b) + 2 * dot(d.a, d.c), 3 * dot(d.a, d.b),
                           2 * dot(d.a, d.a)};
  Parameters roots;
  solveCubic(terms, roots);
  return roots;
}

int curveSteps(const Cubic& curve, double tolerance) {
  if (isFlat(curve, tolerance)) return 1;
  // A chord over a step h stays within h^2 / 8 of the curve times its second derivative, which is at most
  // six times the greater second difference of the control points.
  const double bend = std::sqrt(std::max(squaredLength(curve.p0 - curve.p1 * 2 + curve.p2),
                                         squaredLength(curve.p1 - curve.p2 * 2 + curve.p3)));
  const double steps = std::ceil(std::sqrt(0.75 * bend / tolerance));
  if (!(steps > 1)) return 1;
  return steps < kMaxCurveSteps ? static_cast<int>(steps) : kMaxCurveSteps;
}

void appendCurve(const Cubic& curve, int steps, std::vector<AIRealPoint>& points) {
  const Derivative d = derivativeOf(curve);
  const AIRealPoint cubic = d.a;
  const AIRealPoint square = d.b * 1.5;
  const AIRealPoint linear = d.c * 3;
  for (int i = 1; i <= steps; ++i) {
    const double t = static_cast<double>(i) / steps;
    const AIRealPoint point = i == steps ? curve.p3 : ((cubic * t + square) * t + linear) * t + curve.p0;
    if (points.empty() || points.back() != point) points.push_back(point);
  }
}

}  // namespace host
