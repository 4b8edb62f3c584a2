#include "SvgProperty.h"

#include <algorithm>
#include <iterator>

#include "SvgScanner.h"

namespace host {
namespace {

constexpr std::string_view kNames[kSvgPropertyCount] = {"baseline-shift",
                                                        "clip-path",
                                                        "clip-rule",
                                                        "color",
                                                        "cx",
                                                        "cy",
                                                        "display",
                                                        "dominant-baseline",
                                                        "fill",
                                                        "fill-opacity",
                                                        "fill-rule",
                                                        "filter",
                                                        "font",
                                                        "font-family",
                                                        "font-size",
                                                        "font-style",
                                                        "font-weight",
                                                        "height",
                                                        "isolation",
                                                        "letter-spacing",
                                                        "marker",
                                                        "marker-end",
                                                        "marker-mid",
                                                        "marker-start",
                                                        "mask",
                                                        "mix-blend-mode",
                                                        "opacity",
                                                        "overflow",
                                                        "paint-order",
                                                        "r",
                                                        "rx",
                                                        "ry",
                                                        "stop-color",
                                                        "stop-opacity",
                                                        "stroke",
                                                        "stroke-dasharray",
                                                        "stroke-dashoffset",
                                                        "stroke-linecap",
                                                        "stroke-linejoin",
                                                        "stroke-miterlimit",
                                                        "stroke-opacity",
                                                        "stroke-width",
                                                        "text-anchor",
                                                        "transform",
                                                        "vector-effect",
                                                        "visibility",
                                                        "white-space",
                                                        "width",
                                                        "writing-mode",
                                                        "x",
                                                        "y"};

}  // namespace

std::string_view nameOf(SvgProperty property) {
  return kNames[indexOf(property)];
}

std::optional<SvgProperty> propertyNamed(std::string_view name) {
  const auto* found = std::lower_bound(std::begin(kNames), std::end(kNames), name);
  if (found == std::end(kNames) || *found != name) return std::nullopt;
  return static_cast<SvgProperty>(found - std::begin(kNames));
}

std::optional<SvgProperty> propertyNamedInAnyCase(std::string_view name) {
  const auto exact = propertyNamed(name);
  if (exact) return exact;
  const auto* found = std::find_if(std::begin(kNames), std::end(kNames),
                                   [&](std::string_view known) { return equalsIgnoringCase(known, name); });
  if (found == std::end(kNames)) return std::nullopt;
  return static_cast<SvgProperty>(found - std::begin(kNames));
}

bool isPresentationAttribute(SvgProperty property) {
  return property != SvgProperty::Font && property != SvgProperty::Marker &&
         property != SvgProperty::Isolation && property != SvgProperty::MixBlendMode &&
         property != SvgProperty::Transform;
}

}  // namespace host
