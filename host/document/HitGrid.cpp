#include "HitGrid.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

// Never decreases as the coordinate grows, so whatever lies between two coordinates lies between their cells.
std::int64_t cellIndex(double coordinate, double origin, double cellsPerUnit, std::int64_t count) {
  const double cell = (coordinate - origin) * cellsPerUnit;
  if (!(cell > 0)) return 0;
  return cell < static_cast<double>(count) ? static_cast<std::int64_t>(cell) : count - 1;
}

}  // namespace

void HitGrid::setLevels(const AIRealRect& region, std::size_t entryCount) {
  origin_ = {region.left, region.bottom};
  const double width = region.right - region.left;
  const double height = region.top - region.bottom;
  const auto count = static_cast<double>(std::max<std::size_t>(entryCount, 1));
  double cell = std::max(std::sqrt(width / count * height), std::max(width, height) / count);
  if (!(cell > 0)) cell = 1;
  levels_.clear();
  while (true) {
    const auto columns = static_cast<std::int64_t>(width / cell) + 1;
    const auto rows = static_cast<std::int64_t>(height / cell) + 1;
    levels_.push_back({columns, rows, 1 / cell, 0});
    if ((columns == 1 && rows == 1) || levels_.size() == kMaxLevels) break;
    cell *= 2;
  }
  levels_.back().columns = levels_.back().rows = 1;
}

std::size_t HitGrid::levelOf(const HitBox& box) const {
  const double size = std::max(box.width(), box.height());
  std::size_t level = 0;
  while (level + 1 < levels_.size() && size * levels_[level].cellsPerUnit > 1) ++level;
  return level;
}

std::size_t HitGrid::cellAt(const Level& level, AIRealPoint point) const {
  const std::int64_t column = cellIndex(point.x, origin_.x, level.cellsPerUnit, level.columns);
  const std::int64_t row = cellIndex(point.y, origin_.y, level.cellsPerUnit, level.rows);
  return level.firstCell + static_cast<std::size_t>(row * level.columns + column);
}

// From the greatest shape down.
template <typename Visit>
void HitGrid::forEachCell(const std::vector<HitEntry>& entries, const std::vector<std::uint8_t>& levels,
                          Visit visit) const {
  for (std::size_t i = entries.size(); i-- > 0;) {
    const Level& level = levels_[levels[i]];
    const HitBox& box = entries[i].box;
    const std::size_t first = cellAt(level, {box.left, box.bottom});
    const std::size_t last = cellAt(level, {box.right, box.top});
    const auto columns = static_cast<std::size_t>(level.columns);
    const std::size_t width = (last - level.firstCell) % columns - (first - level.firstCell) % columns;
    for (std::size_t row = first; row <= last; row += columns) {
      for (std::size_t cell = row; cell <= row + width; ++cell) visit(entries[i], cell);
    }
  }
}

void HitGrid::build(const AIRealRect& region, const std::vector<HitEntry>& entries) {
  setLevels(region, entries.size());
  std::vector<std::uint8_t> levels(entries.size());
  std::array<bool, kMaxLevels> holds{};
  for (std::size_t i = 0; i < entries.size(); ++i) {
    levels[i] = static_cast<std::uint8_t>(levelOf(entries[i].box));
    holds[levels[i]] = true;
  }
  std::size_t cells = 0;
  used_.clear();
  for (std::size_t i = 0; i < levels_.size(); ++i) {
    if (!holds[i]) continue;
    levels_[i].firstCell = cells;
    cells += static_cast<std::size_t>(levels_[i].columns * levels_[i].rows);
    used_.push_back(levels_[i]);
  }
  // Counted first, one place to the right, then summed up, then filled in.
  begins_.assign(cells + 1, 0);
  forEachCell(entries, levels, [&](const HitEntry&, std::size_t cell) { ++begins_[cell + 1]; });
  for (std::size_t cell = 0; cell < cells; ++cell) begins_[cell + 1] += begins_[cell];
  entries_.resize(begins_[cells]);
  std::vector<std::uint32_t> next(begins_.begin(), begins_.end());
  forEachCell(entries, levels,
              [&](const HitEntry& entry, std::size_t cell) { entries_[next[cell]++] = entry; });
}

std::size_t HitGrid::listsAt(AIRealPoint point, Lists& lists) const {
  std::size_t count = 0;
  for (const Level& level : used_) {
    const std::size_t cell = cellAt(level, point);
    const List list{entries_.data() + begins_[cell], entries_.data() + begins_[cell + 1]};
    if (list.at != list.end) lists[count++] = list;
  }
  return count;
}

}  // namespace host
