// Boxes in half the space, for the many that a point test has to look through.
#pragma once

#include <cmath>
#include <limits>

#include "AITypes.h"

namespace host {

// Holds the rectangle it is made of, and as little more as floats allow.
struct HitBox {
  float left, bottom, right, top;

  HitBox() = default;
  explicit HitBox(const AIRealRect& rect)
      : left(roundedDown(rect.left)),
        bottom(roundedDown(rect.bottom)),
        right(-roundedDown(-rect.right)),
        top(-roundedDown(-rect.top)) {}

  double width() const { return double{right} - double{left}; }
  double height() const { return double{top} - double{bottom}; }
  bool contains(AIRealPoint point) const {
    return point.x >= left && point.x <= right && point.y >= bottom && point.y <= top;
  }
  AIRealRect rect() const { return {left, top, right, bottom}; }

 private:
  static float roundedDown(double value) {
    const auto rounded = static_cast<float>(value);
    return rounded <= value ? rounded : std::nextafter(rounded, -std::numeric_limits<float>::infinity());
  }
};

}  // namespace host
