// Finds the boxes about a point, however they differ in size and wherever they crowd.
//
// Grids over one region, each with cells of another size. A box lies in a grid whose cells are so large that
// it covers no more than two each way, so the lists take memory in proportion to the number of boxes; and not
// much larger, so they stay short. What lies outside the region belongs to the cells at its rim.
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
  static constexpr std::size_t kMostGrids = 64;

  // What one grid has to say about a point, from the greatest shape down. It may hold boxes beside the point.
  struct List {
    const HitEntry* at;
    const HitEntry* end;
  };
  using Lists = std::array<List, kMostGrids>;

  // `entries` ascend by shape.
  void build(const AIRealRect& region, const std::vector<HitEntry>& entries);
  // The number of lists set; empty ones are left out.
  std::size_t listsAt(AIRealPoint point, Lists& lists) const;

 private:
  struct Grid {
    int widening, heightening;  // how often the finest cell was doubled
    double columnsPerUnit, rowsPerUnit;
    std::uint32_t columns, rows;
    std::size_t firstCell;  // in begins_
  };

  std::size_t gridFor(const HitBox& box);
  void addGrid(int widening, int heightening);
  template <typename Visit>
  void forEachCell(const std::vector<HitEntry>& entries, const std::vector<std::uint8_t>& grids,
                   Visit visit) const;

  AIRealRect region_{};
  double finest_ = 1;  // the side of the finest cell
  int mostDoublings_ = 0;
  std::vector<Grid> grids_;
  std::vector<std::uint32_t> begins_;  // where each cell's entries begin; one more at the end
  std::vector<HitEntry> entries_;
};

}  // namespace host
