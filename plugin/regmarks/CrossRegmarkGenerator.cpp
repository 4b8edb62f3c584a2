#include "CrossRegmarkGenerator.h"

#include <array>

#include "RegmarkColors.h"
#include "RegmarkLayer.h"
#include "RegmarkPath.h"

namespace Vandrell::Corvane {
namespace {

AIErr AddBackground(AIArtHandle container, const RegmarkStyle& style, const AIRealPoint& point) {
  const double h = (2 * style.strokeWeight + style.size) * 0.5;
  const std::array<AIRealPoint, 4> square{{{point.x - h, point.y - h},
                                           {point.x + h, point.y - h},
                                           {point.x + h, point.y + h},
                                           {point.x - h, point.y + h}}};
  AIArtHandle path = nullptr;
  if (const AIErr error = NewArtInside(container, kPathArt, path)) return error;
  if (const AIErr error = SetPolygon(path, square.data(), square.size())) return error;
  return SetFillOnly(path, true, style.fillColor);
}

// The outline of both bars, counter-clockwise from the lower corner of the left end.
std::array<AIRealPoint, 12> Bars(const AIRealPoint& point, double length, double thickness) {
  const double x = point.x;
  const double y = point.y;
  const double a = length * 0.5;
  const double b = thickness * 0.5;
  return {{{x - a, y - b},
           {x - b, y - b},
           {x - b, y - a},
           {x + b, y - a},
           {x + b, y - b},
           {x + a, y - b},
           {x + a, y + b},
           {x + b, y + b},
           {x + b, y + a},
           {x - b, y + a},
           {x - b, y + b},
           {x - a, y + b}}};
}

AIErr AddBars(AIArtHandle container, const RegmarkStyle& style, const AIRealPoint& point) {
  const auto outline = Bars(point, style.size, style.strokeWeight);
  AIArtHandle path = nullptr;
  // A failure up to here shows in the paint: there is then no path to be painted, or one without a course.
  if (NewArtInside(container, kPathArt, path) == kNoErr) SetPolygon(path, outline.data(), outline.size());
  const bool filled = IsPainted(style.strokeColor) && style.strokeWeight > kLeastStrokeWeight;
  return SetFillOnly(path, filled, style.strokeColor);
}

}  // namespace

AIErr CrossRegmarkGenerator::Generate(const RegmarkStyle& style, const AIRealPoint& point) {
  const AIArtHandle group = GetRegmarkGroup();
  if (group == nullptr) return kCannotAddRegmarkErr;
  const bool hasBackground = IsPainted(style.fillColor);
  AIArtHandle container = nullptr;
  if (const AIErr error = NewArtInside(group, hasBackground ? kGroupArt : kCompoundPathArt, container))
    return error;
  if (hasBackground) {
    if (const AIErr error = AddBackground(container, style, point)) return error;
  }
  if (const AIErr error = AddBars(container, style, point)) return error;
  return NameRegmark(container);
}

}  // namespace Vandrell::Corvane
