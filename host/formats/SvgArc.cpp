#include "SvgArc.h"

#include <algorithm>
#include <cmath>

namespace host {
namespace {

constexpr double kPi = 3.14159265358979323846;

}  // namespace

SvgArc::SvgArc(AIRealPoint from, AIRealPoint radii, double rotationDegrees, bool large, bool sweep,
               AIRealPoint to)
    : radii_{std::abs(radii.x), std::abs(radii.y)},
      cosine_(std::cos(rotationDegrees * kPi / 180)),
      sine_(std::sin(rotationDegrees * kPi / 180)) {
  // The ends on a unit circle round the middle of the chord.
  const double halfX = (from.x - to.x) / 2;
  const double halfY = (from.y - to.y) / 2;
  double x = (cosine_ * halfX + sine_ * halfY) / radii_.x;
  double y = (cosine_ * halfY - sine_ * halfX) / radii_.y;
  double square = x * x + y * y;
  if (square > 1) {
    const double growth = std::sqrt(square);
    radii_ = {radii_.x * growth, radii_.y * growth};
    x /= growth;
    y /= growth;
    square = 1;
  }
  const double height = std::sqrt(std::max(0.0, 1 / square - 1)) * (large == sweep ? -1 : 1);
  const AIRealPoint unitCentre{height * y, -height * x};
  const AIRealPoint offset = at(unitCentre.x, unitCentre.y);
  centre_ = {(from.x + to.x) / 2 + offset.x, (from.y + to.y) / 2 + offset.y};

  startAngle_ = std::atan2(y - unitCentre.y, x - unitCentre.x);
  double turn = std::atan2(-y - unitCentre.y, -x - unitCentre.x) - startAngle_;
  if (sweep && turn < 0) turn += 2 * kPi;
  if (!sweep && turn > 0) turn -= 2 * kPi;
  const double quarters = std::abs(turn) / (kPi / 2);
  count_ = std::isfinite(quarters) ? std::max(1, static_cast<int>(std::ceil(quarters - 1e-9))) : 1;
  step_ = turn / count_;
}

AIRealPoint SvgArc::at(double x, double y) const {
  const double alongX = radii_.x * x;
  const double alongY = radii_.y * y;
  return {centre_.x + cosine_ * alongX - sine_ * alongY, centre_.y + sine_ * alongX + cosine_ * alongY};
}

SvgArc::Cubic SvgArc::cubic(int index) const {
  const double from = startAngle_ + index * step_;
  const double to = from + step_;
  const double reach = 4.0 / 3 * std::tan(step_ / 4);
  return {at(std::cos(from) - reach * std::sin(from), std::sin(from) + reach * std::cos(from)),
          at(std::cos(to) + reach * std::sin(to), std::sin(to) - reach * std::cos(to)),
          at(std::cos(to), std::sin(to))};
}

}  // namespace host
