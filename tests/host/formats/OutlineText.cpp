#include "OutlineText.h"

#include <cmath>

#include "SvgNumber.h"

namespace host {
namespace {

std::string text(AIRealPoint point) {
  const auto rounded = [](double value) { return numberText(std::round(value * 1000) / 1000 + 0.0); };
  return " " + rounded(point.x) + " " + rounded(point.y);
}

bool isStraight(const AIPathSegment& from, const AIPathSegment& to) {
  return from.out.x == from.p.x && from.out.y == from.p.y && to.in.x == to.p.x && to.in.y == to.p.y;
}

std::string sideText(const AIPathSegment& from, const AIPathSegment& to) {
  if (isStraight(from, to)) return " L" + text(to.p);
  return " C" + text(from.out) + text(to.in) + text(to.p);
}

}  // namespace

std::string outlineText(const std::vector<PathGeometry>& paths) {
  std::string result;
  for (const PathGeometry& path : paths) {
    const auto& segments = path.segments;
    if (!result.empty()) result += " ";
    result += "M" + text(segments.front().p);
    for (std::size_t i = 1; i < segments.size(); ++i) result += sideText(segments[i - 1], segments[i]);
    const bool curvedEnd = path.closed && !isStraight(segments.back(), segments.front());
    if (curvedEnd) result += sideText(segments.back(), segments.front());
    if (path.closed) result += " Z";
  }
  return result;
}

}  // namespace host
