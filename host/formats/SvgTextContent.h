// The characters of a <text> element with all that is said about each of them.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "SvgReading.h"

namespace host {

constexpr double kUnsaid = std::numeric_limits<double>::quiet_NaN();
inline bool isSaid(double value) {
  return !std::isnan(value);
}

// A <text>, <tspan>, <a> or <textPath>.
struct SvgTextSpan {
  NodeIndex element;
  SvgContext context;
  NodeIndex textPath = 0;  // the <textPath> it lies in
};

struct SvgCharacter {
  std::uint32_t begin;  // bytes of SvgTextContent::text
  std::uint32_t length;
  std::uint32_t span;
  double x = kUnsaid;  // user units
  double y = kUnsaid;
  double dx = kUnsaid;
  double dy = kUnsaid;
  double rotate = kUnsaid;  // degrees
};

struct SvgTextContent {
  std::string text;
  std::vector<SvgTextSpan> spans;
  std::vector<SvgCharacter> characters;
};

// `context` is that inside the element. Blanks are already as they are shown.
SvgTextContent readTextContent(SvgReading& reading, NodeIndex element, const SvgContext& context);

}  // namespace host
