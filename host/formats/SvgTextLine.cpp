#include "SvgTextLine.h"

#include <algorithm>
#include <cmath>

#include "Geometry.h"
#include "SvgElements.h"
#include "SvgScanner.h"
#include "SvgShapes.h"

namespace host {
namespace {

constexpr double kTolerance = 0.05;  // user units

}  // namespace

std::optional<SvgTextLine> SvgTextLine::of(SvgReading& reading, NodeIndex textPath,
                                           const SvgContext& context) {
  const SvgSource& source = reading.source;
  const std::string_view href = source.href(textPath).value_or("");
  const NodeIndex target = href.size() > 1 && href[0] == '#' ? source.byId(href.substr(1)) : 0;
  if (target == 0 || kindOf(source, target) != SvgElementKind::Shape) {
    reading.remarks.add(textPath, "it refers to " + quoted(href) + ", which is no path of this file");
    return std::nullopt;
  }
  SvgOutline outline;
  const SvgDeclaredValues declared = reading.cascade.declaredFor(target);
  if (!SvgShapeReader(source, reading.remarks, target, declared, context.measure()).read(outline)) {
    return std::nullopt;
  }
  SvgTextLine line;
  for (const PathGeometry& path : outline.paths(transformOf(source, target))) {
    const std::vector<AIRealPoint> points = flatten(path, kTolerance, false);
    line.points_.insert(line.points_.end(), points.begin(), points.end());
  }
  double distance = 0;
  for (std::size_t i = 0; i < line.points_.size(); ++i) {
    const AIRealPoint from = line.points_[i == 0 ? 0 : i - 1];
    distance += std::hypot(line.points_[i].x - from.x, line.points_[i].y - from.y);
    line.distances_.push_back(distance);
  }
  if (!(distance > 0) || distance > kMaxCoordinate) return std::nullopt;
  const auto offset = source.attribute(textPath, "startOffset");
  const SvgMeasure measure{distance, distance, context.style.fontSize};
  if (const auto length = offset ? parseLength(*offset) : std::nullopt) {
    line.startOffset_ = userUnits(*length, SvgAxis::X, measure);
  }
  return line;
}

std::optional<AIRealMatrix> SvgTextLine::userFromGlyphAt(double distance) const {
  if (!(distance >= 0) || distance > distances_.back()) return std::nullopt;
  const auto next = std::upper_bound(distances_.begin() + 1, distances_.end() - 1, distance);
  const auto to = static_cast<std::size_t>(next - distances_.begin());
  const double length = distances_[to] - distances_[to - 1];
  if (length <= 0) return std::nullopt;
  const AIRealPoint a = points_[to - 1];
  const AIRealPoint b = points_[to];
  const double part = (distance - distances_[to - 1]) / length;
  const double cosine = (b.x - a.x) / length;
  const double sine = (b.y - a.y) / length;
  return AIRealMatrix{cosine, sine, -sine, cosine, a.x + part * (b.x - a.x), a.y + part * (b.y - a.y)};
}

}  // namespace host
