// For each cell of a region: is all of it painted, or nothing, or must one look closer?
#pragma once

#include <cstdint>
#include <vector>

#include "HitCells.h"
#include "HitClips.h"
#include "HitShapes.h"

namespace host {

class HitMask {
 public:
  // A state is a sum of these; 0 says that nothing comes near.
  static constexpr unsigned kFull = 1;                  // all of the cell is painted
  static constexpr unsigned kMixed = 2;                 // part of it may be; of no account beside kFull
  static constexpr std::size_t kMostCells = 64U << 20;  // four in a byte

  // Covers the main region of the shapes. Cells are as small as serves the edges there are, and so coarse
  // that neither memory nor the time to fill them in outgrow their number by much.
  HitMask(const HitShapes& shapes, const HitClips& clips);

  // For what `request` asks for, a sum of AIHitRequest. Outside of the region, or if there are also shapes
  // that are not asked for, it knows less.
  unsigned stateAt(AIRealPoint point, std::int32_t request) const {
    const AIRealPoint cell = frame_.toFrame(point);
    if (!(cell.x >= 0 && cell.x < end_.x && cell.y >= 0 && cell.y < end_.y)) return kMixed;
    const auto column = static_cast<std::uint32_t>(cell.x);
    const unsigned four = states_[static_cast<std::uint32_t>(cell.y) * stride_ + column / 4];
    const unsigned state = four >> (column % 4 * 2) & 3U;
    return (requests_ & ~request) == 0 || state == 0 ? state : kMixed;
  }

 private:
  void fillIn(const HitShapes& shapes, const HitClips& clips);
  void mark(int row, const CellSpan& span);

  CellFrame frame_;
  AIRealPoint end_{};                 // columns and rows
  std::int32_t requests_ = 0;         // what all the shapes are asked for by
  std::size_t stride_ = 0;            // bytes in a row
  std::vector<std::uint8_t> states_;  // row by row
};

}  // namespace host
