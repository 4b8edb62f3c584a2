#include "SvgStyle.h"

#include "SvgScanner.h"
#include "SvgUrl.h"

namespace host {

std::optional<SvgPaintValue> parsePaint(std::string_view text) {
  using Kind = SvgPaintValue::Kind;
  if (equalsIgnoringCase(text, "none")) return SvgPaintValue{Kind::None, {}, {}};
  if (equalsIgnoringCase(text, "currentcolor")) return SvgPaintValue{Kind::CurrentColour, {}, {}};
  if (equalsIgnoringCase(text, "context-fill")) return SvgPaintValue{Kind::ContextFill, {}, {}};
  if (equalsIgnoringCase(text, "context-stroke")) return SvgPaintValue{Kind::ContextStroke, {}, {}};
  if (const auto colour = parseColour(text)) return SvgPaintValue{Kind::Colour, *colour, {}};
  if (parseUrl(text)) return SvgPaintValue{Kind::Server, {}, text};
  return std::nullopt;
}

SvgStyle inheritedStyle(const SvgStyle& parent) {
  const SvgStyle initial;
  SvgStyle style = parent;
  style.displayed = initial.displayed;
  style.nonScalingStroke = initial.nonScalingStroke;
  style.overflows = initial.overflows;
  style.opacity = initial.opacity;
  style.masked = initial.masked;
  style.filtered = initial.filtered;
  style.isolated = initial.isolated;
  style.blendMode = initial.blendMode;
  style.clipPath = initial.clipPath;
  return style;
}

}  // namespace host
