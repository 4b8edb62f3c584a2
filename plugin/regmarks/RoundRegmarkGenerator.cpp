#include "RoundRegmarkGenerator.h"

#include <array>

#include "AIPath.h"
#include "AIPathStyle.h"
#include "RegmarkColors.h"
#include "RegmarkLayer.h"
#include "RegmarkPath.h"

namespace Vandrell::Corvane {
namespace {

// Length of a quarter circle's handles for radius 1. The best fit would be 0.5522847; marks keep this value
// so that old and new ones in a document have the very same outline.
constexpr double kCircleHandle = 0.552266001701355;

// Counter-clockwise from the right.
std::array<AIPathSegment, 4> Circle(const AIRealPoint& center, double radius) {
  const double x = center.x;
  const double y = center.y;
  const double r = radius;
  const double k = kCircleHandle * radius;
  return {{
      {{x + r, y}, {x + r, y - k}, {x + r, y + k}, 0},
      {{x, y + r}, {x + k, y + r}, {x - k, y + r}, 0},
      {{x - r, y}, {x - r, y + k}, {x - r, y - k}, 0},
      {{x, y - r}, {x - k, y - r}, {x + k, y - r}, 0},
  }};
}

AIErr SetCircle(AIArtHandle path, const std::array<AIPathSegment, 4>& circle) {
  std::int16_t index = 0;
  for (const AIPathSegment& segment : circle) {
    if (const AIErr error = sAIPath->SetPathSegments(path, index++, 1, &segment)) return error;
  }
  sAIPath->SetPathClosed(path, 1);
  return kNoErr;
}

AIErr SetPaint(AIArtHandle path, const RegmarkStyle& mark) {
  AIPathStyle style{};
  if (IsPainted(mark.fillColor)) {
    style.fillPaint = 1;
    style.fill.color = mark.fillColor;
    style.fill.overprint = 1;
  }
  if (IsPainted(mark.strokeColor) && mark.strokeWeight > kLeastStrokeWeight) {
    style.strokePaint = 1;
    style.stroke.color = mark.strokeColor;
    style.stroke.overprint = 1;
    style.stroke.width = mark.strokeWeight;
  }
  return sAIPathStyle->SetPathStyle(path, &style);
}

}  // namespace

AIErr RoundRegmarkGenerator::Generate(const RegmarkStyle& style, const AIRealPoint& point) {
  const AIArtHandle group = GetRegmarkGroup();
  if (group == nullptr) return kCannotAddRegmarkErr;
  AIArtHandle path = nullptr;
  if (const AIErr error = NewArtInside(group, kPathArt, path)) return error;
  if (const AIErr error = SetCircle(path, Circle(point, style.size * 0.5))) return error;
  if (const AIErr error = SetPaint(path, style)) return error;
  return NameRegmark(path);
}

}  // namespace Vandrell::Corvane
