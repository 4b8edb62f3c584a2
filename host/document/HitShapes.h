// Painted shapes, and which of them is the topmost under a point.
#pragma once

#include <cstdint>
#include <vector>

#include "HitBands.h"
#include "HitGrid.h"
#include "HitOutlines.h"
#include "HitStrokes.h"

namespace host {

// Objects are added from the bottom up. Each has two shapes, its fill with the number twice its own, and
// above that its stroke; one that isn't painted is never found.
class HitShapes {
 public:
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  struct Paint {
    std::uint8_t fillRequest = 0;  // what asks for the fill, of AIHitRequest; 0: not filled
    std::uint8_t strokeRequest = 0;
    bool evenOdd = false;
    StrokePen pen;
  };
  struct Object {
    Paint paint;
    AIRealRect limit;  // nothing of it outside counts
    std::uint32_t scope;
    std::uint32_t firstOutline, endOutline;
    std::uint32_t firstPiece, endPiece;  // of its stroke
  };

  explicit HitShapes(double tolerance) : outlines_(tolerance) {}
  void reserve(std::size_t edges) { outlines_.reserve(edges); }  // if known

  // `scope` is for the caller's use.
  void beginObject(const Paint& paint, const AIRealRect& limit, std::uint32_t scope);
  void addPath(const PathGeometry& path);  // to the object begun last
  void addBox(const AIRealRect& box);
  void finish();  // once, after all were added; only then the shapes can be searched

  // The topmost shape under the point whose request is asked for, of those from `first` to before `end`, for
  // which `accept(object number)` holds; kNone if there is none.
  template <typename Accept>
  std::uint32_t find(AIRealPoint point, std::int32_t request, std::uint32_t first, std::uint32_t end,
                     Accept accept) const;
  // Is the point inside this one outline, or on its stroke, taken for itself?
  bool outlineCovers(std::uint32_t object, std::uint32_t outline, bool stroke, AIRealPoint point) const;

  static std::uint32_t objectOf(std::uint32_t shape) { return shape / 2; }
  static bool isStroke(std::uint32_t shape) { return shape % 2 != 0; }
  std::uint32_t shapeCount() const { return static_cast<std::uint32_t>(2 * objects_.size()); }

  const AIRealRect& bounds() const { return bounds_; }      // of all that can be found
  const AIRealRect& mainRegion() const { return region_; }  // where nearly all of it lies, of its bounds
  const std::vector<Object>& objects() const { return objects_; }
  const HitOutlines& outlines() const { return outlines_; }
  const HitStrokes& strokes() const { return strokes_; }

 private:
  static constexpr std::uint32_t kEvenOddTag = 8;  // beside the request bits

  static bool isCandidate(const HitEntry& entry, AIRealPoint point, std::int32_t request, std::uint32_t end) {
    return entry.box.contains(point) && entry.shape < end &&
           (entry.tag & static_cast<std::uint32_t>(request)) != 0;
  }
  void addBands(std::uint32_t outline);
  std::vector<HitEntry> entries() const;

  HitOutlines outlines_;
  HitStrokes strokes_;
  HitBands bands_;
  std::vector<HitBands::Ref> bandsOfOutline_;
  std::vector<Object> objects_;
  HitGrid grid_;
  AIRealRect bounds_{};
  AIRealRect region_{};
  std::vector<std::uint32_t> curveEnds_;  // scratch
};

template <typename Accept>
std::uint32_t HitShapes::find(AIRealPoint point, std::int32_t request, std::uint32_t first, std::uint32_t end,
                              Accept accept) const {
  HitGrid::Lists lists;
  const std::size_t count = grid_.listsAt(point, lists);
  const auto settle = [&](HitGrid::List& list) {
    while (list.at != list.end && !isCandidate(*list.at, point, request, end)) ++list.at;
  };
  for (std::size_t i = 0; i < count; ++i) settle(lists[i]);
  while (true) {
    std::uint32_t shape = first;
    bool found = false;
    for (std::size_t i = 0; i < count; ++i) {
      if (lists[i].at == lists[i].end || lists[i].at->shape < shape) continue;
      shape = lists[i].at->shape;
      found = true;
    }
    if (!found) return kNone;
    // All the outlines of a shape count together, whatever their size.
    int winding = 0;
    int counted = -1;  // the bits of it that tell in from out
    bool covered = false;
    for (std::size_t i = 0; i < count; ++i) {
      HitGrid::List& list = lists[i];
      for (; list.at != list.end && list.at->shape == shape; ++list.at, settle(list)) {
        if (!isStroke(shape)) {
          winding += bands_.winding(list.at->bands, list.at->box, point);
          if ((list.at->tag & kEvenOddTag) != 0) counted = 1;
        } else if (!covered) {
          covered = strokes_.covers(outlines_, list.at->piece, point);
        }
      }
    }
    if ((covered || (winding & counted) != 0) && accept(objectOf(shape))) return shape;
  }
}

}  // namespace host
