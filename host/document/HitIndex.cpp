#include "HitIndex.h"

#include <algorithm>

#include "AIHitTest.h"
#include "Cubic.h"
#include "DrawnArt.h"
#include "Geometry.h"
#include "HitClips.h"
#include "HitMask.h"
#include "HitShapes.h"
#include "Paint.h"

namespace host {

namespace {

constexpr double kMostEdges = 8U << 20;

double edgesOf(const PathGeometry& path, double tolerance) {
  double edges = 1;
  for (std::size_t i = 0; i < curveCount(path); ++i) edges += curveSteps(curveAt(path, i), tolerance);
  return edges;
}

// How finely to flatten, and what that comes to.
struct Flattening {
  double tolerance;
  std::size_t edges;  // of the paths, without the clips
};

// By HitIndex::kTolerance, or more coarsely if the curves would then take too many edges to keep: their
// number falls with the root of it.
Flattening flatteningFor(const DrawnArt& drawn) {
  constexpr double kTolerance = HitIndex::kTolerance;
  double edges = 0;
  for (const PathGeometry* path : drawn.paths) edges += edgesOf(*path, kTolerance);
  double clipEdges = 0;
  for (const DrawnArt::Scope& scope : drawn.scopes) {
    for (const Clip::Outline& outline : scope.clip->outlines) {
      for (const PathGeometry& path : outline.paths) clipEdges += edgesOf(path, kTolerance);
    }
  }
  const double excess = std::max(1.0, (edges + clipEdges) / kMostEdges);
  return {kTolerance * excess * excess, static_cast<std::size_t>(edges / excess)};
}

HitShapes::Paint paintOf(const DrawnArt::Object& object) {
  HitShapes::Paint paint;
  if (object.style == nullptr) {
    paint.fillRequest = kBodyHitRequest;
    return paint;
  }
  if (paintsFill(*object.style)) paint.fillRequest = object.isBody ? kBodyHitRequest : kFillHitRequest;
  if (paintsStroke(*object.style)) paint.strokeRequest = object.isBody ? kBodyHitRequest : kStrokeHitRequest;
  paint.evenOdd = object.style->evenodd != 0;
  paint.pen = strokePen(object.style->stroke);
  return paint;
}

// Objects keep their numbers.
HitShapes shapesOf(const DrawnArt& drawn, const HitClips& clips, const Flattening& flattening) {
  HitShapes shapes(flattening.tolerance);
  shapes.reserve(flattening.edges + flattening.edges / 8);
  for (const DrawnArt::Object& object : drawn.objects) {
    const AIRealRect limit = clips.boundsOf(object.scope);
    shapes.beginObject(isEmpty(limit) ? HitShapes::Paint{} : paintOf(object), limit, object.scope);
    for (std::uint32_t i = object.firstPath; i < object.endPath; ++i) shapes.addPath(*drawn.paths[i]);
    if (object.style == nullptr) shapes.addBox(object.box);
  }
  shapes.finish();
  return shapes;
}

}  // namespace

struct HitIndex::Impl {
  explicit Impl(const Document& document) : Impl(DrawnArt(document)) {}
  explicit Impl(DrawnArt&& drawn) : Impl(drawn, flatteningFor(drawn)) { ranges = std::move(drawn.ranges); }
  Impl(const DrawnArt& drawn, const Flattening& flattening)
      : clips(drawn, flattening.tolerance), shapes(shapesOf(drawn, clips, flattening)), mask(shapes, clips) {
    arts.reserve(drawn.objects.size());
    for (const DrawnArt::Object& object : drawn.objects) arts.push_back(object.art);
  }

  // The topmost shape of some, under the point. Kept out of the way of the tests that needn't come here.
  [[gnu::noinline]] std::uint32_t find(AIRealPoint point, std::int32_t request, std::uint32_t first,
                                       std::uint32_t end) const {
    if (!contains(shapes.bounds(), point)) return HitShapes::kNone;
    return shapes.find(point, request, first, end, [&](std::uint32_t object) {
      return clips.size() == 0 || clips.contain(shapes.objects()[object].scope, point);
    });
  }

  [[gnu::noinline]] bool findsAny(AIRealPoint point, std::int32_t request) const {
    return find(point, request, 0, shapes.shapeCount()) != HitShapes::kNone;
  }

  // Nothing of all that is asked for comes near the point.
  bool isClear(AIRealPoint point, std::int32_t request) const { return mask.stateAt(point, request) == 0; }

  // A path inside a compound path counts where it and the whole are painted.
  bool hitsPartOfCompound(const DrawnArt::Range& range, AIRealPoint point, std::int32_t request) const {
    const HitShapes::Object& compound = shapes.objects()[range.first];
    for (const bool stroke : {false, true}) {
      const std::uint32_t shape = 2 * range.first + stroke;
      if (find(point, request, shape, shape + 1) == HitShapes::kNone) continue;
      if (shapes.outlineCovers(range.first, compound.firstOutline + range.path, stroke, point)) return true;
    }
    return false;
  }

  HitClips clips;
  HitShapes shapes;
  HitMask mask;
  std::vector<ArtId> arts;  // of the objects
  std::vector<DrawnArt::Range> ranges;
};

HitIndex::HitIndex(const Document& document) : impl_(std::make_unique<Impl>(document)) {}
HitIndex::~HitIndex() = default;
HitIndex::HitIndex(HitIndex&&) noexcept = default;
HitIndex& HitIndex::operator=(HitIndex&&) noexcept = default;

// The one branch is for the few points that lie near an edge; no other could be foretold.
bool HitIndex::any(AIRealPoint point, std::int32_t request) const {
  request &= kAllHitRequest;
  const unsigned state = impl_->mask.stateAt(point, request);
  return state == HitMask::kMixed ? impl_->findsAny(point, request) : state != 0;
}

ArtId HitIndex::topmost(AIRealPoint point, std::int32_t request) const {
  request &= kAllHitRequest;
  if (impl_->isClear(point, request)) return 0;
  const std::uint32_t shape = impl_->find(point, request, 0, impl_->shapes.shapeCount());
  return shape == HitShapes::kNone ? 0 : impl_->arts[HitShapes::objectOf(shape)];
}

bool HitIndex::hits(ArtId art, AIRealPoint point, std::int32_t request) const {
  request &= kAllHitRequest;
  if (art >= impl_->ranges.size() || impl_->isClear(point, request)) return false;
  const DrawnArt::Range& range = impl_->ranges[art];
  if (range.path != DrawnArt::kNone) return impl_->hitsPartOfCompound(range, point, request);
  return impl_->find(point, request, 2 * range.first, 2 * range.end) != HitShapes::kNone;
}

}  // namespace host
