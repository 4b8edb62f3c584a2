#include "SvgMove.h"

#include <algorithm>
#include <cmath>

#include "Geometry.h"
#include "SvgTransform.h"

namespace host {
namespace {

struct Inherited {
  std::string_view property;
  std::string_view initial;
};

// https://www.w3.org/TR/SVG2/propidx.html
constexpr Inherited kInherited[] = {
    {"color", "#000000"},         {"fill", "#000000"},          {"fill-rule", "nonzero"},
    {"fill-opacity", "1"},        {"stroke", "none"},           {"stroke-width", "1"},
    {"stroke-linecap", "butt"},   {"stroke-linejoin", "miter"}, {"stroke-miterlimit", "4"},
    {"stroke-dasharray", "none"}, {"stroke-dashoffset", "0"},   {"stroke-opacity", "1"},
    {"marker-start", "none"},     {"marker-mid", "none"},       {"marker-end", "none"},
    {"clip-rule", "nonzero"},     {"visibility", "visible"},    {"font-family", "sans-serif"},
    {"font-size", "16px"},        {"font-style", "normal"},     {"font-weight", "normal"},
    {"text-anchor", "start"},     {"letter-spacing", "normal"}, {"word-spacing", "normal"},
    {"writing-mode", "lr-tb"},
};

bool isIdentity(const AIRealMatrix& m) {
  constexpr double kShape = 1e-12;
  constexpr double kPlace = 1e-9;
  return std::abs(m.a - 1) < kShape && std::abs(m.d - 1) < kShape && std::abs(m.b) < kShape &&
         std::abs(m.c) < kShape && std::abs(m.tx) < kPlace && std::abs(m.ty) < kPlace;
}

void keepPlace(SvgWriting& writing, NodeIndex element, const SvgPlace& place, SvgTagEdit& tag) {
  const NodeIndex parent = writing.source.node(element).parent;
  const AIRealMatrix newFromOld = concat(writing.documentFromContent(parent), place.userFromDocument);
  if (isIdentity(newFromOld)) return;
  const auto own = writing.source.attribute(element, "transform");
  std::string text = transformText(newFromOld);
  if (own && !own->empty()) text.append(" ").append(*own);
  tag.set("transform", std::move(text));
}

void keepProperties(const SvgWriting& writing, NodeIndex element, const SvgPlace& place, SvgTagEdit& tag) {
  const SvgDeclared& declared = writing.declared;
  const NodeIndex parent = writing.source.node(element).parent;
  for (const Inherited& inherited : kInherited) {
    const auto before = declared.inherited(parent, inherited.property);
    const bool same = before == declared.inherited(place.parent, inherited.property);
    if (same || declared.on(element, inherited.property)) continue;
    tag.setProperty(inherited.property, std::string(before.value_or(inherited.initial)));
  }
}

void keepPrefixes(const SvgWriting& writing, NodeIndex element, const SvgPlace& place, SvgTagEdit& tag) {
  const SvgSource& source = writing.source;
  const auto bound = source.bindingsAt(place.parent);
  for (const auto& binding : source.bindingsAt(source.node(element).parent)) {
    const bool known = std::find(bound.begin(), bound.end(), binding) != bound.end();
    if (!known && !source.bindsPrefix(element, binding.first)) tag.declare(binding.first, binding.second);
  }
}

}  // namespace

bool adaptToPlace(SvgWriting& writing, NodeIndex element, const SvgPlace& place, SvgTagEdit& tag) {
  if (writing.source.node(element).parent == place.parent) return false;
  keepPlace(writing, element, place, tag);
  keepProperties(writing, element, place, tag);
  keepPrefixes(writing, element, place, tag);
  return true;
}

}  // namespace host
