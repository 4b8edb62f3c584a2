#include "HexGrid.h"

#include "Truncation.h"

namespace Vandrell::Corvane {
namespace {

struct CellStep {
  std::int32_t columns, rows;
};

// The steps to the columns beside are those from an even column; from an odd one they lead one row higher.
constexpr CellStep kEdgeNeighbours[] = {{-1, 0}, {0, -1}, {0, 1}, {1, 0}};
constexpr CellStep kNeighbours[] = {{0, 1}, {0, -1}, {-1, -1}, {-1, 0}, {1, -1}, {1, 0}};
constexpr CellStep kRingBeyond[] = {{0, 2}, {0, -2}, {-2, -1}, {-2, 0}, {-2, 1}, {2, -1},
                                    {2, 0}, {2, 1},  {-1, -2}, {-1, 1}, {1, -2}, {1, 1}};

constexpr int kLeastOccupiedBeyond = 2;

bool IsOdd(std::int32_t number) {
  return (number & 1) != 0;
}

}  // namespace

std::optional<GridSize> GridSizeFor(const GridArea& area, double cellSize) {
  if (!(cellSize > 0)) return std::nullopt;
  const GridSize size{TruncToInt32(area.width / cellSize), TruncToInt32(area.height / cellSize)};
  if (size.columns < 4 || size.rows < 4) return std::nullopt;
  return size;
}

std::int64_t CellCount(const GridSize& size) {
  return (std::int64_t{size.columns} + 1) * (std::int64_t{size.rows} + 1);
}

HexGrid::HexGrid(const GridArea& area, const GridSize& size)
    : area_(area),
      size_(size),
      cellWidth_(area.width / size.columns),
      cellHeight_(area.height / size.rows),
      cells_(static_cast<std::size_t>(CellCount(size)), kNotProbed) {}

AIRealPoint HexGrid::PositionOf(std::int32_t column, std::int32_t row) const {
  const double shift = IsOdd(column) ? cellHeight_ / 2 : 0;
  return {area_.x + column * cellWidth_, area_.y + row * cellHeight_ + shift};
}

HexGrid::Index HexGrid::IndexOf(std::int32_t column, std::int32_t row) const {
  return static_cast<Index>(column) * static_cast<Index>(size_.rows + 1) + static_cast<Index>(row);
}

void HexGrid::ProbeCell(std::int32_t column, std::int32_t row, const CellProbe& probe) {
  const Index index = IndexOf(column, row);
  cells_[index] = probe(PositionOf(column, row));
  if (cells_[index] == kFree) frontier_.push_back(index);
}

void HexGrid::Probe(const CellProbe& probe) {
  ProbeOuterRing(probe);
  FloodInwards(probe);
}

void HexGrid::ProbeOuterRing(const CellProbe& probe) {
  for (std::int32_t column = 0; column <= size_.columns; ++column) {
    const bool isSide = column == 0 || column == size_.columns;
    const std::int32_t step = isSide ? 1 : size_.rows;
    for (std::int32_t row = 0; row <= size_.rows; row += step) ProbeCell(column, row, probe);
  }
}

// Breadth first: the list of cells to go on from stays as short as the edge of what is known.
void HexGrid::FloodInwards(const CellProbe& probe) {
  const auto stride = static_cast<Index>(size_.rows + 1);
  while (!frontier_.empty()) {
    std::vector<Index> reached;
    reached.swap(frontier_);
    for (const Index index : reached) {
      for (const CellStep& step : kEdgeNeighbours) {
        const std::int32_t column = static_cast<std::int32_t>(index / stride) + step.columns;
        const std::int32_t row = static_cast<std::int32_t>(index % stride) + step.rows;
        if (IsInside(column, row) && cells_[IndexOf(column, row)] == kNotProbed)
          ProbeCell(column, row, probe);
      }
    }
  }
}

// Within the outer ring.
bool HexGrid::IsInside(std::int32_t column, std::int32_t row) const {
  return column > 0 && column < size_.columns && row > 0 && row < size_.rows;
}

PositionList HexGrid::Candidates() const {
  PositionList candidates;
  for (std::int32_t column = 2; column <= size_.columns - 2; ++column) {
    // The ring beyond a cell reaches one row higher in an odd column.
    const std::int32_t lastRow = size_.rows - (IsOdd(column) ? 3 : 2);
    for (std::int32_t row = 2; row <= lastRow; ++row) {
      if (IsCandidate(column, row)) candidates.push_back(PositionOf(column, row));
    }
  }
  return candidates;
}

bool HexGrid::IsCandidate(std::int32_t column, std::int32_t row) const {
  const auto isFree = [&](const CellStep& step) {
    const bool isBeside = step.columns == 1 || step.columns == -1;
    const std::int32_t higher = isBeside && IsOdd(column) ? 1 : 0;
    return cells_[IndexOf(column + step.columns, row + step.rows + higher)] == kFree;
  };
  if (!isFree({0, 0})) return false;
  for (const CellStep& step : kNeighbours) {
    if (!isFree(step)) return false;
  }
  int occupied = 0;
  for (const CellStep& step : kRingBeyond) occupied += isFree(step) ? 0 : 1;
  return occupied >= kLeastOccupiedBeyond;
}

}  // namespace Vandrell::Corvane
