#include "HitOracle.h"

#include <algorithm>
#include <cmath>

namespace host::testing {

namespace {

constexpr int kSamples = 120;  // a curve

AIRealPoint mix(AIRealPoint a, AIRealPoint b, double t) {
  return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
}

AIRealPoint direction(AIRealPoint from, AIRealPoint to) {
  const double size = std::hypot(to.x - from.x, to.y - from.y);
  return {(to.x - from.x) / size, (to.y - from.y) / size};
}

bool same(AIRealPoint a, AIRealPoint b) {
  return a.x == b.x && a.y == b.y;
}

// By de Casteljau.
AIRealPoint onCurve(const AIRealPoint (&c)[4], double t) {
  const AIRealPoint a = mix(c[0], c[1], t), b = mix(c[1], c[2], t), d = mix(c[2], c[3], t);
  return mix(mix(a, b, t), mix(b, d, t), t);
}

// Of convex polygons, either way round.
bool isInPolygon(AIRealPoint p, const std::vector<AIRealPoint>& corners) {
  bool left = false, right = false;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const AIRealPoint a = corners[i], b = corners[(i + 1) % corners.size()];
    const double side = (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
    (side > 0 ? left : right) = true;
  }
  return left != right;
}

}  // namespace

HitOracle::Course HitOracle::courseOf(const PathGeometry& path) {
  Course course{{}, path.closed};
  const std::size_t count = path.segments.size();
  for (std::size_t i = 0; i + (path.closed ? 0 : 1) < count; ++i) {
    const AIPathSegment& from = path.segments[i];
    const AIPathSegment& to = path.segments[(i + 1) % count];
    const AIRealPoint c[4] = {from.p, from.out, to.in, to.p};
    if (same(c[0], c[1]) && same(c[0], c[2]) && same(c[0], c[3])) continue;
    Curve curve;
    for (int k = 0; k <= kSamples; ++k) curve.points.push_back(onCurve(c, static_cast<double>(k) / kSamples));
    for (int k = 0; k <= kSamples; ++k) {
      const double t = static_cast<double>(k) / kSamples, d = 1e-6;
      curve.tangents.push_back(direction(onCurve(c, std::max(0.0, t - d)), onCurve(c, std::min(1.0, t + d))));
    }
    course.curves.push_back(std::move(curve));
  }
  return course;
}

HitOracle::Area HitOracle::areaOf(const std::vector<PathGeometry>& paths, bool evenOdd) {
  Area area{{}, evenOdd};
  for (const PathGeometry& path : paths) area.courses.push_back(courseOf(path));
  return area;
}

void HitOracle::add(const Painted& painted) {
  Item item{painted, areaOf(painted.paths, painted.style.evenodd != 0), {}, {1e300, -1e300, -1e300, 1e300}};
  for (const std::shared_ptr<const Clip>& clip : painted.clips) {
    for (const Clip* one = clip.get(); one != nullptr; one = one->further.get()) {
      item.clips.emplace_back();
      for (const Clip::Outline& outline : one->outlines) {
        item.clips.back().push_back(areaOf(outline.paths, outline.evenOdd));
      }
    }
  }
  const double reach = painted.style.stroke.width * std::max(1.0, painted.style.stroke.miterLimit) + 1;
  for (const PathGeometry& path : painted.paths) {
    for (const AIPathSegment& s : path.segments) {
      for (const AIRealPoint p : {s.p, s.in, s.out}) {
        item.reach = {std::min(item.reach.left, p.x - reach), std::max(item.reach.top, p.y + reach),
                      std::max(item.reach.right, p.x + reach), std::min(item.reach.bottom, p.y - reach)};
      }
    }
  }
  items_.push_back(std::move(item));
}

// By what the outline crosses straight above the point.
bool HitOracle::isInside(const Area& area, AIRealPoint point) {
  int winding = 0;
  const auto cross = [&](AIRealPoint a, AIRealPoint b) {
    if ((a.x > point.x) == (b.x > point.x)) return;
    const double y = a.y + (b.y - a.y) * ((point.x - a.x) / (b.x - a.x));
    if (y > point.y) winding += b.x > a.x ? -1 : 1;
  };
  for (const Course& course : area.courses) {
    if (course.curves.empty()) continue;
    for (const Curve& curve : course.curves) {
      for (std::size_t i = 0; i + 1 < curve.points.size(); ++i) cross(curve.points[i], curve.points[i + 1]);
    }
    cross(course.curves.back().points.back(), course.curves.front().points.front());
  }
  return area.evenOdd ? winding % 2 != 0 : winding != 0;
}

bool HitOracle::isOnJoin(AIRealPoint offset, AIRealPoint in, AIRealPoint out, const AIStrokeStyle& stroke) {
  const double half = stroke.width / 2;
  const double bend = in.x * out.y - in.y * out.x;
  const double side = bend > 0 ? -half : half;  // to the outside
  const AIRealPoint a{-in.y * side, in.x * side}, b{-out.y * side, out.x * side};
  const double turn = std::atan2(std::abs(bend), in.x * out.x + in.y * out.y);
  if (stroke.join == kAIRoundJoin) {
    const bool between = offset.x * in.x + offset.y * in.y >= 0 && offset.x * out.x + offset.y * out.y <= 0;
    return between && std::hypot(offset.x, offset.y) <= half;
  }
  if (stroke.join == kAIMiterJoin && 1 / std::cos(turn / 2) <= stroke.miterLimit) {
    const double along = half * std::tan(turn / 2);
    return isInPolygon(offset, {{0, 0}, a, {a.x + in.x * along, a.y + in.y * along}, b});
  }
  return isInPolygon(offset, {{0, 0}, a, b});
}

bool HitOracle::isOnCap(AIRealPoint offset, AIRealPoint outward, const AIStrokeStyle& stroke) {
  const double along = offset.x * outward.x + offset.y * outward.y;
  const double aside = std::abs(offset.x * outward.y - offset.y * outward.x);
  const double half = stroke.width / 2;
  if (along < 0) return false;
  if (stroke.cap == kAIRoundCap) return std::hypot(along, aside) <= half;
  return stroke.cap == kAIProjectingCap && along <= half && aside <= half;
}

// Covered is what lies within half a width of a point of the course, straight beside it.
bool HitOracle::isOnStroke(const Course& course, const AIStrokeStyle& stroke, AIRealPoint point) {
  const auto offsetFrom = [&](AIRealPoint p) { return AIRealPoint{point.x - p.x, point.y - p.y}; };
  for (const Curve& curve : course.curves) {
    for (std::size_t i = 0; i < kSamples; ++i) {
      const AIRealPoint a = offsetFrom(curve.points[i]), b = offsetFrom(curve.points[i + 1]);
      const double before = a.x * curve.tangents[i].x + a.y * curve.tangents[i].y;
      const double after = b.x * curve.tangents[i + 1].x + b.y * curve.tangents[i + 1].y;
      if ((before >= 0) == (after >= 0)) continue;
      const AIRealPoint foot = mix(a, b, before / (before - after));
      if (std::hypot(foot.x, foot.y) <= stroke.width / 2) return true;
    }
  }
  for (std::size_t i = 0; i + (course.closed ? 0 : 1) < course.curves.size(); ++i) {
    const Curve& next = course.curves[(i + 1) % course.curves.size()];
    if (isOnJoin(offsetFrom(next.points.front()), course.curves[i].tangents.back(), next.tangents.front(),
                 stroke)) {
      return true;
    }
  }
  if (course.closed || course.curves.empty()) return false;
  const AIRealPoint start = course.curves.front().tangents.front();
  return isOnCap(offsetFrom(course.curves.front().points.front()), {-start.x, -start.y}, stroke) ||
         isOnCap(offsetFrom(course.curves.back().points.back()), course.curves.back().tangents.back(),
                 stroke);
}

ArtId HitOracle::topmost(AIRealPoint point, std::int32_t request) const {
  for (auto item = items_.rbegin(); item != items_.rend(); ++item) {
    const auto& [painted, area, clips, reach] = *item;
    const bool near =
        point.x >= reach.left && point.x <= reach.right && point.y >= reach.bottom && point.y <= reach.top;
    if (!near) continue;
    bool hit = (painted.fillRequest & request) != 0 && isInside(area, point);
    for (std::size_t i = 0; !hit && (painted.strokeRequest & request) != 0 && i < area.courses.size(); ++i) {
      hit = isOnStroke(area.courses[i], painted.style.stroke, point);
    }
    const bool left = std::all_of(clips.begin(), clips.end(), [&](const std::vector<Area>& outlines) {
      return std::any_of(outlines.begin(), outlines.end(), [&](const Area& a) { return isInside(a, point); });
    });
    if (hit && left) return painted.art;
  }
  return 0;
}

bool HitOracle::isCertain(AIRealPoint point, std::int32_t request, double margin) const {
  const ArtId here = topmost(point, request);
  for (int i = 0; i < 8; ++i) {
    const double angle = i * std::acos(-1.0) / 4;
    if (topmost({point.x + margin * std::cos(angle), point.y + margin * std::sin(angle)}, request) != here) {
      return false;
    }
  }
  return true;
}

AIRealPoint HitOracle::somewhereOn(std::size_t choice) const {
  const std::vector<Course>& courses = items_[choice % items_.size()].area.courses;
  const std::vector<Curve>& curves = courses[choice / 7 % courses.size()].curves;
  return curves[choice / 13 % curves.size()].points[choice / 17 % kSamples];
}

}  // namespace host::testing
