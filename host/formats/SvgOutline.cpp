#include "SvgOutline.h"

#include <algorithm>
#include <cmath>

#include "Bounds.h"
#include "Geometry.h"
#include "SvgArc.h"

namespace host {
namespace {

// Where a control point of a quarter of the unit circle lies: 4/3 (sqrt 2 - 1).
constexpr double kQuarterArc = 0.55228474983079339840;

AIRealPoint between(AIRealPoint from, AIRealPoint to, double part) {
  return {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
}

// Do the handles leave the anchor in opposite directions?
bool isSmooth(const AIPathSegment& segment) {
  const AIRealPoint in{segment.in.x - segment.p.x, segment.in.y - segment.p.y};
  const AIRealPoint out{segment.out.x - segment.p.x, segment.out.y - segment.p.y};
  const double cross = in.x * out.y - in.y * out.x;
  const double dot = in.x * out.x + in.y * out.y;
  return dot < 0 && std::abs(cross) <= -dot * 1e-4;
}

AIPathSegment anchor(AIRealPoint at) {
  return {at, at, at, 1};
}

}  // namespace

void SvgOutline::clear() {
  segments_.clear();
  runs_.clear();
  start_ = current_ = {};
  open_ = false;
}

void SvgOutline::moveTo(AIRealPoint to) {
  open_ = false;
  start_ = current_ = to;
}

void SvgOutline::beginRunIfNone() {
  if (open_) return;
  open_ = true;
  runs_.push_back({segments_.size(), segments_.size() + 1, false});
  segments_.push_back(anchor(current_));
}

void SvgOutline::lineTo(AIRealPoint to) {
  beginRunIfNone();
  segments_.push_back(anchor(to));
  runs_.back().end = segments_.size();
  current_ = to;
}

void SvgOutline::cubicTo(AIRealPoint control1, AIRealPoint control2, AIRealPoint to) {
  beginRunIfNone();
  segments_.back().out = control1;
  segments_.push_back({to, control2, to, 1});
  runs_.back().end = segments_.size();
  current_ = to;
}

void SvgOutline::quadraticTo(AIRealPoint control, AIRealPoint to) {
  constexpr double part = 2.0 / 3;
  cubicTo(between(current_, control, part), between(to, control, part), to);
}

void SvgOutline::arcTo(AIRealPoint radii, double rotation, bool large, bool sweep, AIRealPoint to) {
  if (to.x == current_.x && to.y == current_.y) return;
  if (radii.x == 0 || radii.y == 0) return lineTo(to);
  const SvgArc arc(current_, radii, rotation, large, sweep, to);
  for (int i = 0; i < arc.cubicCount(); ++i) {
    const SvgArc::Cubic cubic = arc.cubic(i);
    const bool last = i + 1 == arc.cubicCount();
    cubicTo(cubic.control1, cubic.control2, last ? to : cubic.to);
  }
}

void SvgOutline::close() {
  beginRunIfNone();
  Run& run = runs_.back();
  run.closed = true;
  if (run.end - run.begin > 1 && coincide(segments_.back().p, segments_[run.begin].p)) {
    segments_[run.begin].in = segments_.back().in;
    segments_.pop_back();
    run.end = segments_.size();
  }
  open_ = false;
  current_ = start_;
}

bool SvgOutline::coincide(AIRealPoint a, AIRealPoint b) {
  constexpr double relative = 1e-10;
  const double size = std::max({std::abs(a.x), std::abs(a.y), std::abs(b.x), std::abs(b.y)});
  return std::abs(a.x - b.x) <= size * relative && std::abs(a.y - b.y) <= size * relative;
}

void SvgOutline::addEllipse(AIRealPoint centre, AIRealPoint radii) {
  const auto at = [&](double x, double y) {
    return AIRealPoint{centre.x + x * radii.x, centre.y + y * radii.y};
  };
  const double k = kQuarterArc;
  moveTo(at(1, 0));
  cubicTo(at(1, k), at(k, 1), at(0, 1));
  cubicTo(at(-k, 1), at(-1, k), at(-1, 0));
  cubicTo(at(-1, -k), at(-k, -1), at(0, -1));
  cubicTo(at(k, -1), at(1, -k), at(1, 0));
  close();
}

void SvgOutline::addRect(AIRealPoint corner, AIRealPoint size, AIRealPoint radii) {
  const AIRealPoint end{corner.x + size.x, corner.y + size.y};
  if (radii.x == 0 || radii.y == 0) {
    moveTo(corner);
    lineTo({end.x, corner.y});
    lineTo(end);
    lineTo({corner.x, end.y});
    return close();
  }
  // How far a corner's control points lie from its tip.
  const AIRealPoint tip{radii.x * (1 - kQuarterArc), radii.y * (1 - kQuarterArc)};
  const bool flatX = size.x > 2 * radii.x;
  const bool flatY = size.y > 2 * radii.y;
  moveTo({corner.x + radii.x, corner.y});
  if (flatX) lineTo({end.x - radii.x, corner.y});
  cubicTo({end.x - tip.x, corner.y}, {end.x, corner.y + tip.y}, {end.x, corner.y + radii.y});
  if (flatY) lineTo({end.x, end.y - radii.y});
  cubicTo({end.x, end.y - tip.y}, {end.x - tip.x, end.y}, {end.x - radii.x, end.y});
  if (flatX) lineTo({corner.x + radii.x, end.y});
  cubicTo({corner.x + tip.x, end.y}, {corner.x, end.y - tip.y}, {corner.x, end.y - radii.y});
  if (flatY) lineTo({corner.x, corner.y + radii.y});
  cubicTo({corner.x, corner.y + tip.y}, {corner.x + tip.x, corner.y}, {corner.x + radii.x, corner.y});
  close();
}

std::vector<PathGeometry> SvgOutline::paths(const AIRealMatrix& destinationFromUser) const {
  std::vector<PathGeometry> paths;
  paths.reserve(runs_.size());
  for (const Run& run : runs_) {
    PathGeometry path;
    path.closed = run.closed;
    path.segments.reserve(run.end - run.begin);
    for (std::size_t i = run.begin; i < run.end; ++i) {
      const AIPathSegment& from = segments_[i];
      AIPathSegment segment{apply(destinationFromUser, from.p), apply(destinationFromUser, from.in),
                            apply(destinationFromUser, from.out), 1};
      if (isSmooth(segment)) segment.corner = 0;
      path.segments.push_back(segment);
    }
    paths.push_back(std::move(path));
  }
  return paths;
}

AIRealRect SvgOutline::box() const {
  AIRealRect box = kEmptyRect;
  for (const PathGeometry& path : paths(kIdentity)) box = unite(box, pathBounds(path));
  return box;
}

}  // namespace host
