#include "SvgPaints.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "Geometry.h"
#include "SvgHostText.h"
#include "SvgUrl.h"

namespace host {
namespace {

// In document units; what is longer can't be told from it.
constexpr double kLongestLength = 1e9;

AIColor noColour() {
  AIColor color{};
  color.kind = kNoneColor;
  return color;
}

AIColor threeColour(const SvgColour& colour) {
  AIColor color{};
  color.kind = kThreeColor;
  color.c.rgb = {colour.red, colour.green, colour.blue};
  return color;
}

AIColor visibleColour(const SvgColour& colour, double opacity) {
  return colour.alpha * opacity > 0 ? threeColour(colour) : noColour();
}

std::uint32_t rgbOf(const AIThreeColorStyle& rgb) {
  const auto channel = [](double value) { return static_cast<std::uint32_t>(std::lround(value * 255)); };
  return channel(rgb.red) << 16 | channel(rgb.green) << 8 | channel(rgb.blue);
}

// Does a host paint still say the same as the plain one beside it?
bool fits(const AIColor& hostPaint, const AIColor& plain, const Document& document) {
  if (plain.kind == kThreeColor) return rgbOf(plain.c.rgb) == fallbackRgb(hostPaint, document);
  const bool isServer = plain.kind == kGradient || plain.kind == kPattern;
  return plain.kind == hostPaint.kind && (!isServer || plain.c.s.server == hostPaint.c.s.server);
}

bool isTrue(std::optional<std::string_view> value) {
  return value == "true" || value == "1";
}

double roundedTo9Digits(double value) {
  char digits[32];
  const auto written = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::general, 9);
  std::from_chars(digits, written.ptr, value);
  return value;
}

// A width is written divided by the scale of its place. Where that and its way back have changed the last
// bits of a plain number of points, it becomes this number again: programs tell lines by their exact widths.
double withoutNoise(double width, double pointsPerUnit) {
  constexpr double kNoise = 1e-13;
  const double points = width * pointsPerUnit;
  const double plain = roundedTo9Digits(points);
  return std::abs(plain - points) <= kNoise * std::abs(points) ? plain / pointsPerUnit : width;
}

}  // namespace

SvgPaints::SvgPaints(const SvgSource& source, const SvgCascade& cascade, SvgRemarks& remarks,
                     Document& document, double unitsPerPixel)
    : source_(source),
      cascade_(cascade),
      remarks_(remarks),
      document_(document),
      unitsPerPixel_(unitsPerPixel) {
  for (ObjectId id = 1; document.paintServer(id) != nullptr; ++id) {
    serverIds_.emplace(document.paintServer(id)->reference, id);
  }
}

std::shared_ptr<const AIPathStyle> SvgPaints::pathStyle(NodeIndex element, const SvgStyle& style,
                                                        const AIRealMatrix& documentFromUser) {
  const Side fill{"fill", kHostFill, style.fill, style.fillOpacity};
  const Side stroke{"stroke", kHostStroke, style.stroke, style.strokeOpacity};
  AIPathStyle path{};
  path.fill.color = colour(element, fill, style);
  path.fillPaint = path.fill.color.kind != kNoneColor;
  path.fill.overprint = isTrue(source_.attribute(element, XmlNamespace::Host, kHostFillOverprint));
  path.evenodd = style.evenOdd;
  path.stroke.color = colour(element, stroke, style);
  path.strokePaint = path.stroke.color.kind != kNoneColor;
  path.stroke.overprint = isTrue(source_.attribute(element, XmlNamespace::Host, kHostStrokeOverprint));
  setStroke(style, documentFromUser, path.stroke);
  return pool_.share(path);
}

void SvgPaints::remarkGroup(NodeIndex group) {
  for (const char* attribute : {kHostFill, kHostStroke}) {
    if (!source_.attribute(group, XmlNamespace::Host, attribute)) continue;
    remarks_.add(group, "its ch:" + std::string(attribute) +
                            " does not count: only the paths in it can be painted in a custom colour");
  }
}

void SvgPaints::setStroke(const SvgStyle& style, const AIRealMatrix& documentFromUser,
                          AIStrokeStyle& stroke) const {
  const double scale =
      style.nonScalingStroke ? unitsPerPixel_ : std::sqrt(std::abs(determinant(documentFromUser)));
  const std::size_t dashes = std::min(style.dashCount, style.dashes.size());
  const auto inDocument = [scale](double length) {
    return std::clamp(length * scale, -kLongestLength, kLongestLength);
  };
  stroke.width = withoutNoise(inDocument(style.strokeWidth), document_.scale());
  stroke.dash.length = static_cast<std::int16_t>(dashes);
  stroke.dash.offset = inDocument(style.dashOffset);
  for (std::size_t i = 0; i < dashes; ++i) stroke.dash.array[i] = inDocument(style.dashes[i]);
  stroke.cap = style.cap;
  stroke.join = style.join;
  stroke.miterLimit = style.miterLimit < 1 ? 4 : style.miterLimit;
}

AIColor SvgPaints::colour(NodeIndex element, const Side& side, const SvgStyle& style) {
  return withHostPaint(element, side, plainColour(element, side, side.paint, style));
}

AIColor SvgPaints::plainColour(NodeIndex element, const Side& side, const SvgPaintValue& paint,
                               const SvgStyle& style) {
  switch (paint.kind) {
    case SvgPaintValue::Kind::Colour:
      return visibleColour(paint.colour, side.opacity);
    case SvgPaintValue::Kind::CurrentColour:
      return visibleColour(style.colour, side.opacity);
    case SvgPaintValue::Kind::Server:
      return serverColour(element, side, paint.text, style);
    case SvgPaintValue::Kind::ContextFill:
      return plainColour(element, side, style.contextFill, style);
    case SvgPaintValue::Kind::ContextStroke:
      return plainColour(element, side, style.contextStroke, style);
    default:
      return noColour();
  }
}

AIColor SvgPaints::serverColour(NodeIndex element, const Side& side, std::string_view reference,
                                const SvgStyle& style) {
  const Server& found = server(reference);
  switch (found.look.kind) {
    case SvgPaintServer::Kind::Solid:
      return visibleColour(found.look.colour, side.opacity);
    case SvgPaintServer::Kind::Gradient:
    case SvgPaintServer::Kind::Pattern:
      return side.opacity > 0 ? found.color : noColour();
    case SvgPaintServer::Kind::Nothing:
      return noColour();
    default:
      break;
  }
  const auto url = parseUrl(reference);
  const auto fallback = parsePaint(url->fallback);
  if (fallback && fallback->kind != SvgPaintValue::Kind::Server) {
    return plainColour(element, side, *fallback, style);
  }
  remarks_.add(element, "its " + std::string(side.name) + " refers to " + quoted(url->target) +
                            ", which is no paint of this file, so there is none");
  return noColour();
}

const SvgPaints::Server& SvgPaints::server(std::string_view reference) {
  const auto [entry, isNew] = servers_.try_emplace(reference);
  Server& found = entry->second;
  if (!isNew) return found;
  const auto url = parseUrl(reference);
  found.look = paintServerOf(source_, cascade_, url->id());
  const bool isPattern = found.look.kind == SvgPaintServer::Kind::Pattern;
  if (!isPattern && found.look.kind != SvgPaintServer::Kind::Gradient) return found;
  const auto fallback = parseColour(url->fallback);
  found.color.kind = isPattern ? kPattern : kGradient;
  found.color.c.s.server = makeHandle<AIPaintServerHandle>(
      HandleKind::PaintServer, document_.serial(), serverId(reference, fallback.value_or(found.look.colour)));
  return found;
}

ObjectId SvgPaints::serverId(std::string_view reference, const SvgColour& fallback) {
  const auto [entry, isNew] = serverIds_.try_emplace(std::string(reference));
  if (isNew) entry->second = document_.addPaintServer({std::string(reference), threeColour(fallback)});
  return entry->second;
}

AIColor SvgPaints::withHostPaint(NodeIndex element, const Side& side, const AIColor& color) {
  const auto text = source_.attribute(element, XmlNamespace::Host, side.hostAttribute);
  if (!text) return color;
  const std::string name = "ch:" + std::string(side.hostAttribute);
  const auto paint = paintFrom(*text, document_);
  if (!paint) {
    remarks_.add(element, "its " + name + " " + quoted(*text) + " is not understood");
    return color;
  }
  if (fits(*paint, color, document_)) return *paint;
  remarks_.add(element, "its " + name + " does not fit its " + std::string(side.name) +
                            " any more, so it does not count");
  return color;
}

}  // namespace host
