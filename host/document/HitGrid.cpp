#include "HitGrid.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr int kMostDoublings = 24;
// Cells are square, or longer than wide (or the other way round) by a power of this, so that the grids stay
// few.
constexpr int kThinnings = 4;  // doublings

// Never decreases as the coordinate grows, so whatever lies between two coordinates lies between their cells.
std::uint32_t cellIndex(double coordinate, double origin, double cellsPerUnit, std::uint32_t count) {
  const double cell = (coordinate - origin) * cellsPerUnit;
  if (!(cell > 0)) return 0;
  return cell < count ? static_cast<std::uint32_t>(cell) : count - 1;
}

// How often `cell` must be doubled to reach `size`.
int doublings(double size, double cell, int most) {
  if (!(size > cell)) return 0;
  return std::min(most, static_cast<int>(std::ceil(std::log2(size / cell))));
}

}  // namespace

void HitGrid::addGrid(int widening, int heightening) {
  const double width = std::ldexp(finest_, widening);
  const double height = std::ldexp(finest_, heightening);
  const auto count = [this](int doubled, double size, double cell) {
    return doubled == mostDoublings_ ? 1 : static_cast<std::uint32_t>(size / cell) + 1;
  };
  const std::uint32_t columns = count(widening, region_.right - region_.left, width);
  const std::uint32_t rows = count(heightening, region_.top - region_.bottom, height);
  grids_.push_back({widening, heightening, 1 / width, 1 / height, columns, rows, 0});
}

// Made if there is none yet; the last one that there is room for takes everything.
std::size_t HitGrid::gridFor(const HitBox& box) {
  int widening = doublings(box.width(), finest_, mostDoublings_);
  int heightening = doublings(box.height(), finest_, mostDoublings_);
  const int larger = std::max(widening, heightening);
  widening = larger - (larger - widening) / kThinnings * kThinnings;
  heightening = larger - (larger - heightening) / kThinnings * kThinnings;
  for (std::size_t i = 0; i < grids_.size(); ++i) {
    if (grids_[i].widening == widening && grids_[i].heightening == heightening) return i;
  }
  if (grids_.size() == kMostGrids) return kMostGrids - 1;
  const bool isLast = grids_.size() + 1 == kMostGrids;
  addGrid(isLast ? mostDoublings_ : widening, isLast ? mostDoublings_ : heightening);
  return grids_.size() - 1;
}

// From the greatest shape down.
template <typename Visit>
void HitGrid::forEachCell(const std::vector<HitEntry>& entries, const std::vector<std::uint8_t>& grids,
                          Visit visit) const {
  for (std::size_t i = entries.size(); i-- > 0;) {
    const Grid& grid = grids_[grids[i]];
    const HitBox& box = entries[i].box;
    const std::uint32_t left = cellIndex(box.left, region_.left, grid.columnsPerUnit, grid.columns);
    const std::uint32_t right = cellIndex(box.right, region_.left, grid.columnsPerUnit, grid.columns);
    const std::uint32_t bottom = cellIndex(box.bottom, region_.bottom, grid.rowsPerUnit, grid.rows);
    const std::uint32_t top = cellIndex(box.top, region_.bottom, grid.rowsPerUnit, grid.rows);
    for (std::uint32_t row = bottom; row <= top; ++row) {
      const std::size_t first = grid.firstCell + std::size_t{row} * grid.columns;
      for (std::uint32_t column = left; column <= right; ++column) visit(entries[i], first + column);
    }
  }
}

void HitGrid::build(const AIRealRect& region, const std::vector<HitEntry>& entries) {
  region_ = region;
  const double width = region.right - region.left;
  const double height = region.top - region.bottom;
  const auto count = static_cast<double>(std::max<std::size_t>(entries.size(), 1));
  finest_ = std::max(std::sqrt(width / count * height), std::max(width, height) / count);
  if (!(finest_ > 0)) finest_ = 1;
  mostDoublings_ = doublings(std::max(width, height), finest_, kMostDoublings);

  grids_.clear();
  std::vector<std::uint8_t> grids(entries.size());
  for (std::size_t i = 0; i < entries.size(); ++i) {
    grids[i] = static_cast<std::uint8_t>(gridFor(entries[i].box));
  }
  std::size_t cells = 0;
  for (Grid& grid : grids_) {
    grid.firstCell = cells;
    cells += std::size_t{grid.columns} * grid.rows;
  }
  // Counted first, one place to the right, then summed up, then filled in.
  begins_.assign(cells + 1, 0);
  forEachCell(entries, grids, [&](const HitEntry&, std::size_t cell) { ++begins_[cell + 1]; });
  for (std::size_t cell = 0; cell < cells; ++cell) begins_[cell + 1] += begins_[cell];
  entries_.resize(begins_[cells]);
  std::vector<std::uint32_t> next(begins_.begin(), begins_.end());
  forEachCell(entries, grids,
              [&](const HitEntry& entry, std::size_t cell) { entries_[next[cell]++] = entry; });
}

std::size_t HitGrid::listsAt(AIRealPoint point, Lists& lists) const {
  std::size_t count = 0;
  for (const Grid& grid : grids_) {
    const std::uint32_t column = cellIndex(point.x, region_.left, grid.columnsPerUnit, grid.columns);
    const std::uint32_t row = cellIndex(point.y, region_.bottom, grid.rowsPerUnit, grid.rows);
    const std::size_t cell = grid.firstCell + std::size_t{row} * grid.columns + column;
    const List list{entries_.data() + begins_[cell], entries_.data() + begins_[cell + 1]};
    if (list.at != list.end) lists[count++] = list;
  }
  return count;
}

}  // namespace host
