#include "SectorPicking.h"

#include <algorithm>

#include "Truncation.h"

namespace Vandrell::Corvane {
namespace {

struct SectoredCandidate {
  std::int64_t column, row;
  AIRealPoint position;
};

bool IsInEarlierSector(const SectoredCandidate& a, const SectoredCandidate& b) {
  return a.column != b.column ? a.column < b.column : a.row < b.row;
}

// The sectors along the other side than the one that has `count`.
std::int64_t AcrossCount(std::int64_t count, double length, double countedLength) {
  return std::max<std::int64_t>(2, TruncToInt64(static_cast<double>(count) * length / countedLength + 0.5));
}

// Candidates by sector; within one they keep their order.
std::vector<SectoredCandidate> SortIntoSectors(const PositionList& candidates, const GridArea& area,
                                               const SectorLayout& sectors) {
  std::vector<SectoredCandidate> sorted;
  sorted.reserve(candidates.size());
  for (const AIRealPoint& candidate : candidates) {
    const std::int64_t column = TruncToInt64((candidate.x - area.x) / sectors.width);
    const std::int64_t row = TruncToInt64((candidate.y - area.y) / sectors.height);
    if (column < sectors.columns && row < sectors.rows) sorted.push_back({column, row, candidate});
  }
  std::stable_sort(sorted.begin(), sorted.end(), IsInEarlierSector);
  return sorted;
}

// A single sector has its target at the low end.
double TargetAt(double start, double length, std::int64_t sector, std::int64_t sectors) {
  if (sectors < 2) return start;
  return start + static_cast<double>(sector) * length / static_cast<double>(sectors - 1);
}

double SquaredDistance(const AIRealPoint& a, const AIRealPoint& b) {
  return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y);
}

}  // namespace

SectorLayout SectorsOf(const GridArea& area, std::int64_t count) {
  if (count < 1) return {0, 0, area.width, area.height};
  const auto n = static_cast<double>(count);
  SectorLayout sectors{};
  if (area.width / n > area.height / n) {
    sectors.columns = count;
    sectors.rows = AcrossCount(count, area.height, area.width);
  } else {
    sectors.columns = AcrossCount(count, area.width, area.height);
    sectors.rows = count;
  }
  sectors.width = area.width / static_cast<double>(sectors.columns);
  sectors.height = area.height / static_cast<double>(sectors.rows);
  return sectors;
}

PositionList PickPerSector(const PositionList& candidates, const GridArea& area, std::int64_t count) {
  const SectorLayout sectors = SectorsOf(area, count);
  const auto sorted = SortIntoSectors(candidates, area, sectors);
  const double reach = sectors.width * sectors.width + sectors.height * sectors.height;

  PositionList picked;
  for (auto sector = sorted.begin(); sector != sorted.end();) {
    const AIRealPoint target{TargetAt(area.x, area.width, sector->column, sectors.columns),
                             TargetAt(area.y, area.height, sector->row, sectors.rows)};
    const auto end = std::upper_bound(sector, sorted.end(), *sector, IsInEarlierSector);
    double best = reach;
    auto choice = end;
    for (auto it = sector; it != end; ++it) {
      const double distance = SquaredDistance(it->position, target);
      if (distance < best) best = distance, choice = it;
    }
    if (choice != end) picked.push_back(choice->position);
    sector = end;
  }
  return picked;
}

}  // namespace Vandrell::Corvane
