#include "HitClips.h"

#include <cmath>
#include <unordered_map>

#include "AIHitTest.h"
#include "Geometry.h"

namespace host {

namespace {

constexpr AIRealRect kEverywhere{-HUGE_VAL, HUGE_VAL, HUGE_VAL, -HUGE_VAL};

HitShapes shapesOfClip(const Clip& clip, double tolerance) {
  HitShapes shapes(tolerance);
  for (const Clip::Outline& outline : clip.outlines) {
    HitShapes::Paint paint;
    paint.fillRequest = kFillHitRequest;
    paint.evenOdd = outline.evenOdd;
    shapes.beginObject(paint, kEverywhere, DrawnArt::kNone);
    for (const PathGeometry& path : outline.paths) shapes.addPath(path);
  }
  shapes.finish();
  return shapes;
}

}  // namespace

HitClips::HitClips(const DrawnArt& drawn, double tolerance) {
  std::unordered_map<const Clip*, std::uint32_t> setOfClip;
  for (const DrawnArt::Scope& scope : drawn.scopes) {
    const auto [known, isNew] = setOfClip.try_emplace(scope.clip, static_cast<std::uint32_t>(sets_.size()));
    if (isNew) sets_.push_back(shapesOfClip(*scope.clip, tolerance));
    const AIRealRect bounds = intersect(sets_[known->second].bounds(), boundsOf(scope.outer));
    scopes_.push_back({known->second, scope.outer, bounds});
  }
}

AIRealRect HitClips::boundsOf(std::uint32_t scope) const {
  return scope == DrawnArt::kNone ? kEverywhere : scopes_[scope].bounds;
}

bool HitClips::contain(std::uint32_t scope, AIRealPoint point) const {
  if (scope == DrawnArt::kNone) return true;
  if (!contains(scopes_[scope].bounds, point)) return false;
  for (; scope != DrawnArt::kNone; scope = scopes_[scope].outer) {
    const HitShapes& shapes = sets_[scopes_[scope].set];
    const std::uint32_t found =
        shapes.find(point, kFillHitRequest, 0, shapes.shapeCount(), [](std::uint32_t) { return true; });
    if (found == HitShapes::kNone) return false;
  }
  return true;
}

}  // namespace host
