// How often an outline runs about a point.
//
// The edges of an outline lie in bands of equal height, in each the ones that cross it, so that a test reads
// few bytes that lie close together.
#pragma once

#include <cstdint>
#include <vector>

#include "HitOutlines.h"

namespace host {

class HitBands {
 public:
  // The bands of one outline.
  struct Ref {
    std::uint32_t first;
    std::uint32_t count : 31;
    std::uint32_t narrow : 1;
  };

  Ref add(const HitOutline& outline, const HitVertex* ring);

  // Anticlockwise. `box` is the outline's.
  int winding(const Ref& bands, const HitBox& box, AIRealPoint point) const;

 private:
  // Both hold for each outline where the edges of each band begin and where the last end, counted in edges;
  // then the edges, each four numbers: x and y of its start and its end.
  std::vector<std::uint16_t> narrow_;
  std::vector<std::uint32_t> wide_;
  std::vector<std::uint32_t> sizes_;  // scratch
};

}  // namespace host
