// Finds the boxes about a point, however they differ in size and wherever they crowd.
//
// Grids of square cells over one region, each twice as coarse as the one before. A box lies in the finest
// grid in which it covers no more than two cells each way, so the lists take memory in proportion to the
// number of boxes. What lies outside the region belongs to the cells at its rim.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "HitBands.h"
#include "HitBox.h"

namespace host {

// Part of a shape: an outline of a fill, or a piece of a stroke.
struct HitEntry {
  HitBox box;
  std::uint32_t shape;
  std::uint32_t piece : 28;
  std::uint32_t tag : 4;  // for the caller's use
  HitBands::Ref bands;    // of an outline
};

class HitGrid {
 public:
  static constexpr std::size_t kMaxLevels = 32;

  // What one grid has to say about a point, from the greatest shape down. It may hold boxes beside the point.
  struct List {
    const HitEntry* at;
    const HitEntry* end;
  };
  using Lists = std::array<List, kMaxLevels>;

  // `entries` ascend by shape.
  void build(const AIRealRect& region, const std::vector<HitEntry>& entries);
  std::size_t listsAt(AIRealPoint point,
                      Lists& lists) const;  // the number of lists set; empty ones are left out

 private:
  struct Level {
    std::int64_t columns, rows;
    double cellsPerUnit;
    std::size_t firstCell;  // in begins_
  };

  void setLevels(const AIRealRect& region, std::size_t entryCount);
  std::size_t levelOf(const HitBox& box) const;
  template <typename Visit>
  void forEachCell(const std::vector<HitEntry>& entries, const std::vector<std::uint8_t>& levels,
                   Visit visit) const;
  std::size_t cellAt(const Level& level, AIRealPoint point) const;

  AIRealPoint origin_{};
  std::vector<Level> levels_;          // all of them, the finest first
  std::vector<Level> used_;            // those that hold anything
  std::vector<std::uint32_t> begins_;  // where each cell's entries begin; one more at the end
  std::vector<HitEntry> entries_;
};

}  // namespace host
