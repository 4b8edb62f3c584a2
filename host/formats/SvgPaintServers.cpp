#include "SvgPaintServers.h"

#include "SvgScanner.h"

namespace host {
namespace {

constexpr int kMaxReferences = 100;  // one to another; beyond that they run in a circle, or might

bool isGradient(const SvgSource& source, NodeIndex node) {
  return source.is(node, "linearGradient") || source.is(node, "radialGradient");
}

struct Stops {
  NodeIndex first = 0;
  int count = 0;
};

Stops stopsOf(const SvgSource& source, NodeIndex gradient) {
  Stops stops;
  for (NodeIndex child = source.node(gradient).firstChild; child != 0;
       child = source.node(child).nextSibling) {
    if (!source.is(child, "stop")) continue;
    if (stops.count++ == 0) stops.first = child;
  }
  return stops;
}

// A colour given by two properties of one element.
SvgColour colourOf(const SvgCascade& cascade, NodeIndex node, SvgProperty colour, SvgProperty opacity) {
  const SvgDeclaredValues declared = cascade.declaredFor(node);
  std::string_view text = declared[colour];
  if (equalsIgnoringCase(text, "currentcolor")) text = declared[SvgProperty::Color];
  SvgColour result = parseColour(text).value_or(SvgColour{});
  SvgScanner scanner(declared[opacity]);
  result.alpha *= scanner.number().value_or(1);
  return result;
}

// The gradient along `href` that has stops; 0 if there is none.
NodeIndex gradientWithStops(const SvgSource& source, NodeIndex gradient) {
  for (int i = 0; i < kMaxReferences && gradient != 0 && isGradient(source, gradient); ++i) {
    if (stopsOf(source, gradient).count > 0) return gradient;
    const std::string_view href = source.href(gradient).value_or("");
    gradient = href.size() > 1 && href[0] == '#' ? source.byId(href.substr(1)) : 0;
  }
  return 0;
}

SvgPaintServer gradientOf(const SvgSource& source, const SvgCascade& cascade, NodeIndex gradient) {
  using Kind = SvgPaintServer::Kind;
  const NodeIndex filled = gradientWithStops(source, gradient);
  if (filled == 0) return {Kind::Nothing, {}};
  const Stops stops = stopsOf(source, filled);
  const bool isSwatch = source.attribute(filled, XmlNamespace::Inkscape, "swatch") == "solid" ||
                        source.attribute(gradient, XmlNamespace::Inkscape, "swatch") == "solid";
  return {isSwatch && stops.count == 1 ? Kind::Solid : Kind::Gradient,
          colourOf(cascade, stops.first, SvgProperty::StopColor, SvgProperty::StopOpacity)};
}

}  // namespace

SvgPaintServer paintServerOf(const SvgSource& source, const SvgCascade& cascade, std::string_view id) {
  using Kind = SvgPaintServer::Kind;
  const NodeIndex node = id.empty() ? 0 : source.byId(id);
  if (node == 0) return {};
  if (isGradient(source, node)) return gradientOf(source, cascade, node);
  if (source.is(node, "meshgradient")) return {Kind::Gradient, {}};
  if (source.is(node, "pattern") || source.is(node, "hatch")) return {Kind::Pattern, {}};
  return {};
}

}  // namespace host
