// The units that a typed number can have.
#pragma once

#include <cstdint>

namespace host {

enum class Quantity : std::uint8_t { Number, Length, Angle, Percent };

struct ExpressionUnit {
  Quantity quantity;
  double points;  // in one of it; 1 for what is no length
};

constexpr bool operator==(ExpressionUnit a, ExpressionUnit b) {
  return a.quantity == b.quantity && a.points == b.points;
}

namespace unit {

constexpr ExpressionUnit kNumber{Quantity::Number, 1};
constexpr ExpressionUnit kPoint{Quantity::Length, 1};
constexpr ExpressionUnit kPixel{Quantity::Length, 1};
constexpr ExpressionUnit kPica{Quantity::Length, 12};
constexpr ExpressionUnit kInch{Quantity::Length, 72};
constexpr ExpressionUnit kFoot{Quantity::Length, 864};
constexpr ExpressionUnit kYard{Quantity::Length, 2592};
constexpr ExpressionUnit kQ{Quantity::Length, 72 / 101.6};
constexpr ExpressionUnit kMillimetre{Quantity::Length, 72 / 25.4};
constexpr ExpressionUnit kCentimetre{Quantity::Length, 72 / 2.54};
constexpr ExpressionUnit kMetre{Quantity::Length, 72 / 0.0254};
constexpr ExpressionUnit kDegree{Quantity::Angle, 1};
constexpr ExpressionUnit kPercent{Quantity::Percent, 1};

}  // namespace unit

// The unit of a field by the number that plug-ins name it with, see AIExpressionOptions; a plain number for
// one that is not known.
ExpressionUnit unitOfField(std::int32_t number);

}  // namespace host
