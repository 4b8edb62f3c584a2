#include "SvgStyleComputer.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>

#include "SvgFont.h"
#include "SvgScanner.h"

namespace host {
namespace {

template <typename Value>
struct Keyword {
  std::string_view name;
  Value value;
};

// False if the text is none of the keywords.
template <typename Value, std::size_t Count>
bool choose(Value& target, const Keyword<Value> (&keywords)[Count], std::string_view text) {
  const auto* found =
      std::find_if(std::begin(keywords), std::end(keywords),
                   [&](const Keyword<Value>& keyword) { return equalsIgnoringCase(keyword.name, text); });
  if (found == std::end(keywords)) return false;
  target = found->value;
  return true;
}

constexpr Keyword<bool> kIsolations[] = {{"auto", false}, {"isolate", true}};
constexpr Keyword<bool> kFillRules[] = {{"nonzero", false}, {"evenodd", true}};
constexpr Keyword<AILineCap> kCaps[] = {
    {"butt", kAIButtCap}, {"round", kAIRoundCap}, {"square", kAIProjectingCap}};
constexpr Keyword<AILineJoin> kJoins[] = {{"miter", kAIMiterJoin},
                                          {"miter-clip", kAIMiterJoin},
                                          {"arcs", kAIMiterJoin},
                                          {"round", kAIRoundJoin},
                                          {"bevel", kAIBevelJoin}};
constexpr Keyword<bool> kVisibilities[] = {{"visible", true}, {"hidden", false}, {"collapse", false}};
constexpr Keyword<bool> kOverflows[] = {
    {"visible", true}, {"auto", true}, {"hidden", false}, {"scroll", false}, {"clip", false}};
constexpr Keyword<SvgTextAnchor> kAnchors[] = {
    {"start", SvgTextAnchor::Start}, {"middle", SvgTextAnchor::Middle}, {"end", SvgTextAnchor::End}};
constexpr Keyword<bool> kWritingModes[] = {
    {"horizontal-tb", false}, {"lr", false}, {"lr-tb", false}, {"rl", false},
    {"rl-tb", false},         {"tb", true},  {"tb-rl", true},  {"vertical-rl", true},
    {"vertical-lr", true}};
constexpr Keyword<bool> kWhiteSpaces[] = {{"normal", false}, {"nowrap", false},  {"pre-line", false},
                                          {"pre", true},     {"pre-wrap", true}, {"break-spaces", true}};

// Views of these last.
constexpr Keyword<std::string_view> kBlendModes[] = {{"normal", ""},
                                                     {"multiply", "multiply"},
                                                     {"screen", "screen"},
                                                     {"overlay", "overlay"},
                                                     {"darken", "darken"},
                                                     {"lighten", "lighten"},
                                                     {"color-dodge", "color-dodge"},
                                                     {"color-burn", "color-burn"},
                                                     {"hard-light", "hard-light"},
                                                     {"soft-light", "soft-light"},
                                                     {"difference", "difference"},
                                                     {"exclusion", "exclusion"},
                                                     {"hue", "hue"},
                                                     {"saturation", "saturation"},
                                                     {"color", "color"},
                                                     {"luminosity", "luminosity"}};
// What is left out comes behind, in the usual order.
constexpr Keyword<bool> kPaintOrders[] = {
    {"normal", false}, {"fill", false}, {"fill stroke", false}, {"fill stroke markers", false}};

constexpr double kAnyLength = -std::numeric_limits<double>::infinity();

}  // namespace

bool SvgStyleComputer::set(SvgProperty property, std::string_view value) {
  switch (property) {
    case SvgProperty::Fill:
      return setPaint(style_.fill, value);
    case SvgProperty::Stroke:
      return setPaint(style_.stroke, value);
    case SvgProperty::FillOpacity:
      return setOpacity(style_.fillOpacity, value);
    case SvgProperty::StrokeOpacity:
      return setOpacity(style_.strokeOpacity, value);
    case SvgProperty::Opacity:
      return setOpacity(style_.opacity, value);
    case SvgProperty::Color:
      return setColour(value);
    case SvgProperty::FillRule:
      return choose(style_.evenOdd, kFillRules, value);
    case SvgProperty::ClipRule:
      return choose(style_.clipEvenOdd, kFillRules, value);
    case SvgProperty::ClipPath:
    case SvgProperty::Mask:
    case SvgProperty::Filter:
    case SvgProperty::MarkerStart:
    case SvgProperty::MarkerMid:
    case SvgProperty::MarkerEnd:
      return setReference(property, value);
    case SvgProperty::Isolation:
    case SvgProperty::MixBlendMode:
    case SvgProperty::PaintOrder:
      return setPainting(property, value);
    case SvgProperty::Display:
    case SvgProperty::Visibility:
    case SvgProperty::Overflow:
      return setVisibility(property, value);
    default:
      return setStroke(property, value) && setFont(property, value) && setText(property, value);
  }
}

bool SvgStyleComputer::setPaint(SvgPaintValue& paint, std::string_view value) {
  const auto parsed = parsePaint(value);
  if (parsed) paint = *parsed;
  return parsed.has_value();
}

bool SvgStyleComputer::setOpacity(double& opacity, std::string_view value) {
  const auto length = parseLength(value);
  if (!length || (length->unit != SvgUnit::None && length->unit != SvgUnit::Percent)) return false;
  opacity = std::clamp(length->unit == SvgUnit::Percent ? length->value / 100 : length->value, 0.0, 1.0);
  return true;
}

bool SvgStyleComputer::setColour(std::string_view value) {
  if (equalsIgnoringCase(value, "currentcolor")) return true;
  const auto parsed = parseColour(value);
  if (parsed) style_.colour = *parsed;
  return parsed.has_value();
}

bool SvgStyleComputer::setReference(SvgProperty property, std::string_view value) {
  const bool none = equalsIgnoringCase(value, "none");
  const auto setMarker = [&](unsigned bit) {
    style_.markers = static_cast<std::uint8_t>(none ? style_.markers & ~bit : style_.markers | bit);
  };
  if (property == SvgProperty::ClipPath) style_.clipPath = none ? std::string_view() : value;
  if (property == SvgProperty::Mask) style_.masked = !none;
  if (property == SvgProperty::Filter) style_.filtered = !none;
  if (property == SvgProperty::MarkerStart) setMarker(1);
  if (property == SvgProperty::MarkerMid) setMarker(2);
  if (property == SvgProperty::MarkerEnd) setMarker(4);
  return true;
}

bool SvgStyleComputer::setPainting(SvgProperty property, std::string_view value) {
  if (property == SvgProperty::Isolation) return choose(style_.isolated, kIsolations, value);
  if (property == SvgProperty::MixBlendMode) return choose(style_.blendMode, kBlendModes, value);
  if (!choose(style_.reordered, kPaintOrders, value)) style_.reordered = true;
  return true;
}

bool SvgStyleComputer::setVisibility(SvgProperty property, std::string_view value) {
  if (property == SvgProperty::Visibility) return choose(style_.visible, kVisibilities, value);
  if (property == SvgProperty::Overflow) return choose(style_.overflows, kOverflows, value);
  style_.displayed = !equalsIgnoringCase(value, "none");
  return true;
}

bool SvgStyleComputer::setStroke(SvgProperty property, std::string_view value) {
  switch (property) {
    case SvgProperty::StrokeWidth:
      return setLength(style_.strokeWidth, value, 0);
    case SvgProperty::StrokeDashoffset:
      return setLength(style_.dashOffset, value, kAnyLength);
    case SvgProperty::StrokeMiterlimit:
      return setLength(style_.miterLimit, value, 0);
    case SvgProperty::StrokeDasharray:
      return setDashes(value);
    case SvgProperty::StrokeLinecap:
      return choose(style_.cap, kCaps, value);
    case SvgProperty::StrokeLinejoin:
      return choose(style_.join, kJoins, value);
    case SvgProperty::VectorEffect:
      style_.nonScalingStroke = equalsIgnoringCase(value, "non-scaling-stroke");
      return true;
    default:
      return true;
  }
}

// Only the first kMaxDashComponents are kept; dashCount counts them all.
bool SvgStyleComputer::setDashes(std::string_view value) {
  std::array<double, kMaxDashComponents> dashes{};
  std::size_t count = 0;
  double sum = 0;
  if (!equalsIgnoringCase(value, "none")) {
    SvgScanner scanner(value);
    for (; !scanner.atEnd(); scanner.skipCommaBlanks(), ++count) {
      const auto length = readLength(scanner);
      const double dash = length ? inUserUnits(*length) : -1;
      if (!(dash >= 0) || !std::isfinite(dash)) return false;
      if (count < dashes.size()) dashes[count] = dash;
      sum += dash;
    }
  }
  style_.dashes = dashes;
  style_.dashCount = sum > 0 ? count : 0;
  return true;
}

bool SvgStyleComputer::setFont(SvgProperty property, std::string_view value) {
  if (property == SvgProperty::FontFamily) style_.fontFamily = value;
  if (property == SvgProperty::FontSize) {
    const auto size = parseFontSize(value, parent_.fontSize);
    style_.fontSize = size.value_or(style_.fontSize);
    return size.has_value();
  }
  if (property == SvgProperty::FontWeight) {
    const auto weight = parseFontWeight(value, parent_.fontWeight);
    style_.fontWeight = weight.value_or(style_.fontWeight);
    return weight.has_value();
  }
  if (property == SvgProperty::FontStyle) {
    const auto italic = parseItalic(value);
    style_.italic = italic.value_or(style_.italic);
    return italic.has_value();
  }
  return true;
}

bool SvgStyleComputer::setText(SvgProperty property, std::string_view value) {
  switch (property) {
    case SvgProperty::LetterSpacing:
      if (!equalsIgnoringCase(value, "normal")) return setLength(style_.letterSpacing, value, kAnyLength);
      style_.letterSpacing = 0;
      return true;
    case SvgProperty::TextAnchor:
      return choose(style_.anchor, kAnchors, value);
    case SvgProperty::WritingMode:
      return choose(style_.vertical, kWritingModes, value);
    case SvgProperty::WhiteSpace:
      return choose(style_.keepsBlanks, kWhiteSpaces, value);
    case SvgProperty::DominantBaseline:
      style_.baselineOffset = parseDominantBaseline(value).value_or(0);
      return true;
    default:
      return true;
  }
}

bool SvgStyleComputer::setLength(double& target, std::string_view value, double least) {
  const auto length = parseLength(value);
  if (!length || length->value < least) return false;
  const double units = inUserUnits(*length);
  if (!std::isfinite(units)) return false;
  target = units;
  return true;
}

double SvgStyleComputer::inUserUnits(SvgLength length) const {
  return userUnits(length, SvgAxis::Diagonal, {viewport_.width, viewport_.height, style_.fontSize});
}

}  // namespace host
