// Viewports: how the coordinates inside an element become those round it.
#pragma once

#include <optional>
#include <string_view>

#include "AITypes.h"
#include "SvgLength.h"
#include "SvgSource.h"

namespace host {

struct SvgViewBox {
  double x = 0;
  double y = 0;
  double width = 0;  // finite, but maybe not above 0
  double height = 0;
};

// Nullopt for anything but four numbers.
std::optional<SvgViewBox> parseViewBox(std::string_view text);

// `preserveAspectRatio`.
struct SvgAspect {
  bool stretch = false;  // "none"
  bool slice = false;    // fill the viewport rather than fit in
  double alignX = 0.5;   // 0 left .. 1 right
  double alignY = 0.5;   // 0 top .. 1 bottom
};

// The default for what is no such value.
SvgAspect parseAspect(std::string_view text);

struct SvgViewport {
  AIRealPoint corner{};  // in units outside
  double width = 0;
  double height = 0;
  AIRealMatrix outerFromInner{};
  double innerWidth = 0;  // the size that percentages inside refer to
  double innerHeight = 0;
  bool draws = true;  // false if there is no room for anything
};

// The viewport that an element with `viewBox` and `preserveAspectRatio` opens at this place.
SvgViewport viewportOf(const SvgSource& source, NodeIndex element, AIRealPoint corner, double width,
                       double height);
// That of an <svg> inside another one.
SvgViewport nestedViewport(const SvgSource& source, NodeIndex element, const SvgMeasure& outer);

// An attribute's length in user units; `fallback` if there is none, or none that is a length. "auto" is
// `fallback` too.
double lengthOr(const SvgSource& source, NodeIndex element, std::string_view name, SvgAxis axis,
                const SvgMeasure& measure, double fallback);

}  // namespace host
