// How an element looks, after the cascade and inheritance.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "AIPathStyle.h"
#include "SvgColour.h"

namespace host {

struct SvgPaintValue {
  enum class Kind : std::uint8_t { None, Colour, CurrentColour, Server, ContextFill, ContextStroke };
  Kind kind = Kind::None;
  SvgColour colour;       // Colour only
  std::string_view text;  // Server only: the value as written
};

// Nullopt if the text is no paint.
std::optional<SvgPaintValue> parsePaint(std::string_view text);

enum class SvgTextAnchor : std::uint8_t { Start, Middle, End };

// Lengths in user units. Views point into the source or its style sheet.
struct SvgStyle {
  // Inherited.
  SvgPaintValue fill{SvgPaintValue::Kind::Colour, {}, {}};
  SvgPaintValue stroke;
  double fillOpacity = 1;
  double strokeOpacity = 1;
  double strokeWidth = 1;
  std::array<double, kMaxDashComponents> dashes{};
  std::size_t dashCount = 0;
  double dashOffset = 0;
  double miterLimit = 4;
  AILineCap cap = kAIButtCap;
  AILineJoin join = kAIMiterJoin;
  bool evenOdd = false;
  bool clipEvenOdd = false;
  SvgColour colour;
  bool visible = true;
  std::uint8_t markers = 0;  // not 0 if there are any
  bool reordered = false;    // painted in another order than fill, stroke, markers
  double fontSize = 16;
  std::string_view fontFamily = "serif";
  int fontWeight = 400;
  bool italic = false;
  double letterSpacing = 0;
  SvgTextAnchor anchor = SvgTextAnchor::Start;
  double baselineOffset = 0;  // how far below its place the baseline lies, in em
  bool vertical = false;
  bool keepsBlanks = false;
  // What context-fill and context-stroke mean: the paints of the <use> it all lies in.
  SvgPaintValue contextFill;
  SvgPaintValue contextStroke;

  // Not inherited.
  bool displayed = true;
  bool nonScalingStroke = false;
  bool overflows = false;
  double opacity = 1;  // of the element as a whole
  bool masked = false;
  bool filtered = false;
  bool isolated = false;       // what lies in it is mixed with nothing but what else lies in it
  std::string_view blendMode;  // such as "multiply"; empty: normal
  std::string_view clipPath;   // empty: none
};

// What an element starts from that lies in another one.
SvgStyle inheritedStyle(const SvgStyle& parent);

}  // namespace host
