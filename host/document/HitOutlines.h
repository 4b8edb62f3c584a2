// Flattened outlines.
#pragma once

#include <cstdint>
#include <vector>

#include "Art.h"
#include "HitBox.h"

namespace host {

// In steps within the box of its outline, from 0 at the left or bottom to kMost at the right or top. Half the
// size of doubles, which is what the time of a test hangs on once the outlines don't fit into the cache.
struct HitVertex {
  static constexpr std::uint32_t kMost = 0xFFFFFFFF;
  // Outlines no greater than kNarrow units have all their vertices at multiples of kNarrowStep, so that they
  // fit into half the space again.
  static constexpr std::uint32_t kNarrowStep = 0x10001;
  static constexpr double kNarrow = 64;

  std::uint32_t x, y;
};

struct HitOutline {
  HitBox box;
  std::uint32_t firstVertex, vertexCount;
  double length;  // across and up together, in document units

  bool isNarrow() const { return box.width() <= HitVertex::kNarrow && box.height() <= HitVertex::kNarrow; }
};

// An outline's points in document units: a ring, the last one again the first; or one point alone. No two in
// a row are the same.
class HitRing {
 public:
  HitRing(const HitOutline& outline, const HitVertex* vertices)
      : corner_{outline.box.left, outline.box.bottom},
        across_(outline.box.width() / HitVertex::kMost),
        up_(outline.box.height() / HitVertex::kMost),
        vertices_(vertices),
        size_(outline.vertexCount) {}

  std::uint32_t size() const { return size_; }
  const HitVertex* vertices() const { return vertices_; }
  AIRealPoint operator[](std::uint32_t i) const {
    return {corner_.x + across_ * vertices_[i].x, corner_.y + up_ * vertices_[i].y};
  }

 private:
  AIRealPoint corner_;
  double across_, up_;
  const HitVertex* vertices_;
  std::uint32_t size_;
};

class HitOutlines {
 public:
  // Rings lie within `tolerance` of the curves, rounding to vertices included.
  explicit HitOutlines(double tolerance);

  // Ids run from 0 on. `curveEnds`, if not null, gets which of the outline's points ends each curve of the
  // path that is no mere point.
  std::uint32_t add(const PathGeometry& path, std::vector<std::uint32_t>* curveEnds);
  std::uint32_t addBox(const AIRealRect& box);

  void reserve(std::size_t vertices) { vertices_.reserve(vertices); }
  std::size_t size() const { return outlines_.size(); }
  const HitOutline& operator[](std::uint32_t id) const { return outlines_[id]; }
  HitRing ring(std::uint32_t id) const {
    return {outlines_[id], vertices_.data() + outlines_[id].firstVertex};
  }

 private:
  std::uint32_t addRing(std::vector<std::uint32_t>* curveEnds);

  double tolerance_;
  std::vector<HitVertex> vertices_;
  std::vector<HitOutline> outlines_;
  std::vector<AIRealPoint> points_;  // scratch
};

}  // namespace host
