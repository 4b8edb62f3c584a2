// The style properties that the reader knows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace host {

// In alphabetical order of their names.
enum class SvgProperty : std::uint8_t {
  BaselineShift,
  ClipPath,
  ClipRule,
  Color,
  Cx,
  Cy,
  Display,
  DominantBaseline,
  Fill,
  FillOpacity,
  FillRule,
  Filter,
  Font,
  FontFamily,
  FontSize,
  FontStyle,
  FontWeight,
  Height,
  Isolation,
  LetterSpacing,
  Marker,
  MarkerEnd,
  MarkerMid,
  MarkerStart,
  Mask,
  MixBlendMode,
  Opacity,
  Overflow,
  PaintOrder,
  R,
  Rx,
  Ry,
  StopColor,
  StopOpacity,
  Stroke,
  StrokeDasharray,
  StrokeDashoffset,
  StrokeLinecap,
  StrokeLinejoin,
  StrokeMiterlimit,
  StrokeOpacity,
  StrokeWidth,
  TextAnchor,
  Transform,
  VectorEffect,
  Visibility,
  WhiteSpace,
  Width,
  WritingMode,
  X,
  Y
};

constexpr std::size_t kSvgPropertyCount = static_cast<std::size_t>(SvgProperty::Y) + 1;

constexpr std::size_t indexOf(SvgProperty property) {
  return static_cast<std::size_t>(property);
}
std::string_view nameOf(SvgProperty property);
// Nullopt for a property that doesn't matter here. Attributes are called exactly so; in style sheets the
// case of letters doesn't matter.
std::optional<SvgProperty> propertyNamed(std::string_view name);
std::optional<SvgProperty> propertyNamedInAnyCase(std::string_view name);
// May an attribute set it? The shorthands and some newer properties live in style sheets only.
bool isPresentationAttribute(SvgProperty property);

}  // namespace host
