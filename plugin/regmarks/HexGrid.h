// The free space around the artwork, sampled in hexagonally packed cells.
//
// Columns run upwards, and odd ones stand half a cell higher than even ones, so every cell has six
// neighbours and a ring of twelve cells beyond them. The grid is probed from its outer ring inwards, so
// only free space that is joined to the outside, and the outline of the art, is ever tested: the inside
// of the art costs nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "AutoGridArea.h"
#include "PositionList.h"
#include "ProbeArea.h"

namespace Vandrell::Corvane {

// Cells run from 0 to columns and from 0 to rows, both ends included.
struct GridSize {
  std::int32_t columns, rows;
};

// As many whole cells as go into the area. Below 4 either way there is no room for a candidate, and the
// result is empty; likewise for a cell size or an area that is not above 0.
std::optional<GridSize> GridSizeFor(const GridArea& area, double cellSize);

// No grid can have more cells than this; one byte each.
constexpr std::int64_t kMostGridCells = 200'000'000;
std::int64_t CellCount(const GridSize& size);

class HexGrid {
 public:
  // Answers kOccupied or kFree for the cell around a position in document coordinates.
  using CellProbe = std::function<AreaState(const AIRealPoint&)>;

  // At least 4 by 4 and at most kMostGridCells. Throws std::bad_alloc.
  HexGrid(const GridArea& area, const GridSize& size);

  // Probes the outer ring, and from there every cell that is joined to a free one by an edge.
  void Probe(const CellProbe& probe);

  // Positions of the free cells that hug the outline of the art: all six neighbours are free, and at least
  // two of the twelve cells beyond are not. Column by column from the left, upwards in each.
  PositionList Candidates() const;

 private:
  using Index = std::uint32_t;

  AIRealPoint PositionOf(std::int32_t column, std::int32_t row) const;
  Index IndexOf(std::int32_t column, std::int32_t row) const;
  void ProbeCell(std::int32_t column, std::int32_t row, const CellProbe& probe);
  void ProbeOuterRing(const CellProbe& probe);
  void FloodInwards(const CellProbe& probe);
  bool IsInside(std::int32_t column, std::int32_t row) const;
  bool IsCandidate(std::int32_t column, std::int32_t row) const;

  GridArea area_;
  GridSize size_;
  double cellWidth_;
  double cellHeight_;
  std::vector<AreaState> cells_;  // column by column
  std::vector<Index> frontier_;   // free cells whose neighbours are still to be probed
};

}  // namespace Vandrell::Corvane
