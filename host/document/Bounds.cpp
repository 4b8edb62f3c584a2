#include "Bounds.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "Cubic.h"
#include "Geometry.h"
#include "Paint.h"
#include "StrokeReach.h"
#include "Vector.h"

namespace host {

namespace {

void includePath(AIRealRect& rect, const PathGeometry& path, const AIRealMatrix& matrix) {
  for (const AIPathSegment& segment : path.segments) include(rect, apply(matrix, segment.p));
  for (std::size_t i = 0; i < curveCount(path); ++i) {
    Cubic curve = curveAt(path, i);
    for (AIRealPoint* point : {&curve.p0, &curve.p1, &curve.p2, &curve.p3}) *point = apply(matrix, *point);
    if (contains(rect, curve.p1) && contains(rect, curve.p2)) continue;
    const Parameters turns = extremes(curve);
    for (std::size_t k = 0; k < turns.count; ++k) include(rect, pointAt(curve, turns.t[k]));
  }
}

// Of all points and handles, as they are.
AIRealRect controlBounds(const PathGeometry& path) {
  double left = HUGE_VAL, bottom = HUGE_VAL, right = -HUGE_VAL, top = -HUGE_VAL;
  for (const AIPathSegment& segment : path.segments) {
    const auto [lowX, highX] = std::minmax({segment.p.x, segment.in.x, segment.out.x});
    const auto [lowY, highY] = std::minmax({segment.p.y, segment.in.y, segment.out.y});
    left = std::min(left, lowX);
    right = std::max(right, highX);
    bottom = std::min(bottom, lowY);
    top = std::max(top, highY);
  }
  return {left, top, right, bottom};
}

AIRealRect clipBounds(const Clip& clip, const AIRealMatrix& matrix) {
  AIRealRect result{-HUGE_VAL, HUGE_VAL, HUGE_VAL, -HUGE_VAL};
  for (const Clip* current = &clip; current != nullptr; current = current->further.get()) {
    AIRealRect own = kEmptyRect;
    for (const Clip::Outline& outline : current->outlines) {
      for (const PathGeometry& path : outline.paths) includePath(own, path, matrix);
    }
    result = intersect(result, own);
  }
  return result;
}

// A path that counts, with where it can lie at most.
struct LaidPath {
  const PathGeometry* path;
  const AIPathStyle* stroke;  // null if no stroke counts
  AIRealRect limit;           // what clips leave
  AIRealRect rough;           // holds all of it
};

// Walks arts and all below them. What it has found already spares a closer look at what lies inside that.
class BoundsFinder {
 public:
  BoundsFinder(const Document& document, const AIRealMatrix& matrix, std::int32_t flags)
      : document_(document), matrix_(matrix), flags_(flags) {
    widening_ = std::max(std::hypot(matrix.a, matrix.c), std::hypot(matrix.b, matrix.d));
  }

  void add(ArtId top) {
    const AIRealRect all{-HUGE_VAL, HUGE_VAL, HUGE_VAL, -HUGE_VAL};
    std::vector<AIRealRect> limits;  // of the current art and those that hold it
    ArtId id = top;
    while (document_.art(id) != nullptr) {
      const Art& art = *document_.art(id);
      AIRealRect limit = limits.empty() ? all : limits.back();
      if (art.clip) limit = intersect(limit, clipBounds(*art.clip, matrix_));
      addArt(id, art, limit);
      if (art.firstChild != 0 && !isEmpty(limit)) {
        limits.push_back(limit);
        id = art.firstChild;
        continue;
      }
      while (id != top && document_.art(id)->below == 0) {
        id = document_.art(id)->parent;
        limits.pop_back();
      }
      if (id == top) break;
      id = document_.art(id)->below;
    }
  }

  AIRealRect finish() {
    includePaths();
    return found_;
  }

 private:
  void addArt(ArtId id, const Art& art, const AIRealRect& limit) {
    if (art.guide && (flags_ & kExcludeGuideBounds) != 0) return;
    if (art.path) addPath(*art.path, document_.styleOf(id), limit);
    if (art.body) addBody(*art.body, limit);
  }

  void addBody(const Body& body, const AIRealRect& limit) {
    for (const Body::Part& part : body.parts) {
      const AIRealRect partLimit = part.clip ? intersect(limit, clipBounds(*part.clip, matrix_)) : limit;
      for (const PathGeometry& path : part.paths) addPath(path, &part.style, partLimit);
    }
    if (!body.parts.empty() || isEmpty(body.box)) return;
    AIRealRect box = kEmptyRect;
    for (const double x : {body.box.left, body.box.right}) {
      for (const double y : {body.box.bottom, body.box.top}) host::include(box, apply(matrix_, {x, y}));
    }
    found_ = unite(found_, intersect(box, limit));
  }

  void addPath(const PathGeometry& path, const AIPathStyle* style, const AIRealRect& limit) {
    const bool stroked = style != nullptr && paintsStroke(*style);
    const bool painted = stroked || (style != nullptr && paintsFill(*style));
    if (path.segments.empty() || (!painted && (flags_ & kExcludeUnpaintedObjectBounds) != 0)) return;
    const bool counts = stroked && (flags_ & kNoStrokeBounds) == 0;
    const AIRealRect rough = roughBounds(path, counts ? strokePen(style->stroke) : StrokePen{});
    paths_.push_back({&path, counts ? style : nullptr, limit, intersect(rough, limit)});
  }

  // What reaches furthest comes first: hardly another path sticks out of it then.
  void includePaths() {
    if (paths_.empty()) return;
    const auto furthest = [this](auto reach) {
      include(*std::max_element(paths_.begin(), paths_.end(), [&reach](const auto& a, const auto& b) {
        return reach(a.rough) < reach(b.rough);
      }));
    };
    furthest([](const AIRealRect& rect) { return rect.top; });
    furthest([](const AIRealRect& rect) { return -rect.bottom; });
    furthest([](const AIRealRect& rect) { return rect.right; });
    furthest([](const AIRealRect& rect) { return -rect.left; });
    for (const LaidPath& path : paths_) include(path);
  }

  void include(const LaidPath& laid) {
    if (contains(found_, laid.rough)) return;
    AIRealRect rect = kEmptyRect;
    includePath(rect, *laid.path, matrix_);
    if (laid.stroke != nullptr) includeStroke(rect, *laid.path, strokePen(laid.stroke->stroke), matrix_);
    found_ = unite(found_, intersect(rect, laid.limit));
  }

  // Holds the path and its stroke. Asked for every path, most of which it spares the closer look.
  AIRealRect roughBounds(const PathGeometry& path, const StrokePen& pen) const {
    const AIRealRect own = controlBounds(path);
    AIRealRect rect = kEmptyRect;
    for (const double x : {own.left, own.right}) {
      for (const double y : {own.bottom, own.top}) host::include(rect, apply(matrix_, {x, y}));
    }
    const double miter = pen.join == kAIMiterJoin ? pen.miterLimit : 1;
    return inflated(rect, pen.half * std::max(miter, 1.5) * widening_ * (1 + 1e-9));
  }

  const Document& document_;
  const AIRealMatrix& matrix_;
  std::int32_t flags_;
  double widening_;
  std::vector<LaidPath> paths_;
  AIRealRect found_ = kEmptyRect;
};

}  // namespace

AIRealRect artBounds(const Document& document, ArtId art, const AIRealMatrix* matrix, std::int32_t flags) {
  BoundsFinder finder(document, matrix == nullptr ? kIdentity : *matrix, flags);
  finder.add(art);
  return finder.finish();
}

AIRealRect commonBounds(const Document& document, const std::vector<ArtId>& arts, std::int32_t flags) {
  BoundsFinder finder(document, kIdentity, flags);
  for (const ArtId art : arts) finder.add(art);
  return finder.finish();
}

AIRealRect pathBounds(const PathGeometry& path) {
  AIRealRect rect = kEmptyRect;
  includePath(rect, path, kIdentity);
  return rect;
}

}  // namespace host
