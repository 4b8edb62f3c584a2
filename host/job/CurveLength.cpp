#include "CurveLength.h"

#include <algorithm>

#include "Vector.h"

namespace host {
namespace {

// Where a curve keeps its direction its speed is smooth and can be summed up: the cosine to its chord.
constexpr double kSteady = 0.8;
// A curve is never shorter than its chord nor longer than its control polygon. About cusps a piece is small
// enough when these lie no further apart than this part of the whole curve.
constexpr double kNegligible = 1e-5;
constexpr int kDeepest = 40;

struct Sample {
  double t, weight;
};

// Gauss-Legendre of five points, from 0 to 1 (Abramowitz and Stegun, table 25.4).
constexpr double kNear = 0.5384693101056831 / 2;
constexpr double kFar = 0.9061798459386640 / 2;
constexpr double kMiddleWeight = 0.5688888888888889 / 2;
constexpr double kNearWeight = 0.4786286704993665 / 2;
constexpr double kFarWeight = 0.2369268850561891 / 2;
constexpr Sample kSamples[] = {{0.5 - kFar, kFarWeight},
                               {0.5 - kNear, kNearWeight},
                               {0.5, kMiddleWeight},
                               {0.5 + kNear, kNearWeight},
                               {0.5 + kFar, kFarWeight}};

double summedSpeed(const Cubic& curve) {
  double sum = 0;
  for (const Sample& sample : kSamples) sum += sample.weight * length(derivativeAt(curve, sample.t));
  return sum;
}

double polygonLength(const Cubic& curve) {
  return length(curve.p1 - curve.p0) + length(curve.p2 - curve.p1) + length(curve.p3 - curve.p2);
}

bool isSteady(const Cubic& curve) {
  const AIRealPoint chord = curve.p3 - curve.p0;
  const AIRealPoint legs[] = {curve.p1 - curve.p0, curve.p2 - curve.p1, curve.p3 - curve.p2};
  if (length(chord) == 0) return false;
  return std::all_of(std::begin(legs), std::end(legs), [&](AIRealPoint leg) {
    return dot(leg, chord) >= kSteady * length(leg) * length(chord);
  });
}

AIRealPoint middle(AIRealPoint a, AIRealPoint b) {
  return (a + b) * 0.5;
}

double pieceLength(const Cubic& piece, double negligible, int depth) {
  const double chord = length(piece.p3 - piece.p0);
  const double polygon = polygonLength(piece);
  if (polygon - chord <= negligible || depth == kDeepest) return (chord + polygon) / 2;
  if (isSteady(piece)) return summedSpeed(piece);
  const AIRealPoint a = middle(piece.p0, piece.p1);
  const AIRealPoint b = middle(piece.p1, piece.p2);
  const AIRealPoint c = middle(piece.p2, piece.p3);
  const AIRealPoint ab = middle(a, b);
  const AIRealPoint bc = middle(b, c);
  const AIRealPoint on = middle(ab, bc);
  return pieceLength({piece.p0, a, ab, on}, negligible, depth + 1) +
         pieceLength({on, bc, c, piece.p3}, negligible, depth + 1);
}

}  // namespace

double lengthOf(const Cubic& curve) {
  return pieceLength(curve, kNegligible * polygonLength(curve), 0);
}

double lengthOf(const PathGeometry& path) {
  double sum = 0;
  const std::size_t curves = curveCount(path);
  for (std::size_t i = 0; i < curves; ++i) sum += lengthOf(curveAt(path, i));
  return sum;
}

}  // namespace host
