#include "SvgViewBox.h"

#include <algorithm>
#include <cmath>

#include "SvgScanner.h"

namespace host {
namespace {

double alignment(std::string_view word) {
  if (word == "Min") return 0;
  return word == "Max" ? 1 : 0.5;
}

AIRealMatrix viewportFromViewBox(const SvgViewBox& box, const SvgAspect& aspect, AIRealPoint corner,
                                 double width, double height) {
  double scaleX = width / box.width;
  double scaleY = height / box.height;
  if (!aspect.stretch) {
    scaleX = scaleY = aspect.slice ? std::max(scaleX, scaleY) : std::min(scaleX, scaleY);
  }
  const double freeX = width - box.width * scaleX;
  const double freeY = height - box.height * scaleY;
  return {scaleX,
          0,
          0,
          scaleY,
          corner.x - box.x * scaleX + freeX * aspect.alignX,
          corner.y - box.y * scaleY + freeY * aspect.alignY};
}

}  // namespace

std::optional<SvgViewBox> parseViewBox(std::string_view text) {
  SvgScanner scanner(withoutBlanksAround(text));
  double numbers[4];
  for (double& number : numbers) {
    scanner.skipCommaBlanks();
    const std::optional<double> read = scanner.number();
    if (!read || !std::isfinite(*read)) return std::nullopt;
    number = *read;
  }
  if (!scanner.atEnd()) return std::nullopt;
  return SvgViewBox{numbers[0], numbers[1], numbers[2], numbers[3]};
}

SvgAspect parseAspect(std::string_view text) {
  SvgScanner scanner(withoutBlanksAround(text));
  std::string_view align = scanner.identifier();
  scanner.skipBlanks();
  if (align == "defer") {
    align = scanner.identifier();
    scanner.skipBlanks();
  }
  SvgAspect aspect;
  aspect.stretch = align == "none";
  if (align.size() == 8 && align[0] == 'x' && align[4] == 'Y') {
    aspect.alignX = alignment(align.substr(1, 3));
    aspect.alignY = alignment(align.substr(5, 3));
  }
  aspect.slice = scanner.identifier() == "slice";
  return aspect;
}

SvgViewport viewportOf(const SvgSource& source, NodeIndex element, AIRealPoint corner, double width,
                       double height) {
  SvgViewport viewport;
  viewport.corner = corner;
  viewport.width = viewport.innerWidth = width;
  viewport.height = viewport.innerHeight = height;
  viewport.outerFromInner = {1, 0, 0, 1, corner.x, corner.y};
  viewport.draws = width > 0 && height > 0;
  const auto text = source.attribute(element, "viewBox");
  const std::optional<SvgViewBox> box = text ? parseViewBox(*text) : std::nullopt;
  if (!box || !viewport.draws) return viewport;
  if (box->width <= 0 || box->height <= 0) {
    viewport.draws = false;
    return viewport;
  }
  const SvgAspect aspect = parseAspect(source.attribute(element, "preserveAspectRatio").value_or(""));
  viewport.outerFromInner = viewportFromViewBox(*box, aspect, corner, width, height);
  viewport.innerWidth = box->width;
  viewport.innerHeight = box->height;
  return viewport;
}

SvgViewport nestedViewport(const SvgSource& source, NodeIndex element, const SvgMeasure& outer) {
  const auto length = [&](std::string_view name, SvgAxis axis, double fallback) {
    return lengthOr(source, element, name, axis, outer, fallback);
  };
  return viewportOf(source, element, {length("x", SvgAxis::X, 0), length("y", SvgAxis::Y, 0)},
                    length("width", SvgAxis::X, outer.width), length("height", SvgAxis::Y, outer.height));
}

double lengthOr(const SvgSource& source, NodeIndex element, std::string_view name, SvgAxis axis,
                const SvgMeasure& measure, double fallback) {
  const auto text = source.attribute(element, name);
  const std::optional<SvgLength> length = text ? parseLength(*text) : std::nullopt;
  return length ? userUnits(*length, axis, measure) : fallback;
}

}  // namespace host
