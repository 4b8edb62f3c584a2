#include "PieceIndex.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <tuple>

#include "Vector.h"

namespace host {
namespace {

constexpr double kSameDirection = 0.18;  // radians, 10 degrees: chords of one curve differ by as much
constexpr double kLevelStep = 4;         // from the length of one level to the next
constexpr double kShortestLevel = 6;     // in distances: shorter pieces need no level of their own
constexpr double kCellSize = 4;          // in the reach of pieces: most look into two or three
constexpr double kMostCells = 1e15;      // in a row
constexpr double kMostBins = 1e5;
constexpr std::uint64_t kBinMask = 0x1FFFF;  // of a slot

std::int64_t cellAt(double coordinate, double size) {
  return static_cast<std::int64_t>(std::clamp(std::floor(coordinate / size), -kMostCells, kMostCells));
}

std::uint64_t mixed(std::uint64_t seed, std::int64_t value) {
  const std::uint64_t product = (seed ^ static_cast<std::uint64_t>(value)) * 0x9E3779B97F4A7C15U;
  return (product ^ (product >> 29)) * 0xBF58476D1CE4E5B9U;
}

// The bins of a cell are beside each other. Two cells that are equal by chance cost time, and nothing else.
std::uint64_t slotOf(std::size_t level, std::int64_t column, std::int64_t row, std::int64_t bin) {
  const std::uint64_t cell = mixed(mixed(level + 1, column), row);
  return (cell & ~kBinMask) | static_cast<std::uint64_t>(bin);
}

// 0 to pi: the same either way round.
double directionOf(AIRealPoint way) {
  const double angle = std::atan2(way.y, way.x);
  return angle < 0 ? angle + M_PI : angle < M_PI ? angle : 0;
}

AIRealPoint middleOf(const LinePiece& piece) {
  return (piece.from + piece.to) * 0.5;
}

double offsetIn(std::int64_t bin, double binSize, AIRealPoint point) {
  const double direction = (static_cast<double>(bin) + 0.5) * binSize;
  return cross({std::cos(direction), std::sin(direction)}, point);
}

}  // namespace

struct PieceIndex::Seeker {
  std::size_t place;  // of its entry
  const LinePiece& piece;
  AIRealPoint middle;
  double direction, bend;

  bool isIn(const Run& run) const { return place >= run.first && place < run.end; }
};

PieceIndex::PieceIndex(const LinePieces& lines, const OverlapLimits& limits)
    : lines_(lines), limits_(limits) {
  double longest = lines.longest;
  do {
    levels_.push_back(levelOf(longest));
    longest /= kLevelStep;
  } while (longest > kShortestLevel * limits.distance);
  entries_.reserve(lines.pieces.size());
  for (std::uint32_t i = 0; i < lines.pieces.size(); ++i) entries_.push_back(entryOf(i));
  std::sort(entries_.begin(), entries_.end(), [](const Entry& a, const Entry& b) {
    return std::tie(a.slot, a.offset, a.piece) < std::tie(b.slot, b.offset, b.piece);
  });
  findRuns();
}

// Cells are numbered at random, as it were, so their leading bits tell nearly where they are.
void PieceIndex::findRuns() {
  for (std::size_t first = 0, end = 0; first < entries_.size(); first = end) {
    while (end < entries_.size() && entries_[end].slot == entries_[first].slot) ++end;
    runs_.push_back({entries_[first].slot, first, end});
  }
  int bits = 1;
  while ((std::size_t{1} << bits) < 2 * runs_.size()) ++bits;
  trailingBits_ = 64 - bits;
  firstRuns_.assign((std::size_t{1} << bits) + 1, 0);
  for (const Run& run : runs_) ++firstRuns_[(run.slot >> trailingBits_) + 1];
  std::partial_sum(firstRuns_.begin(), firstRuns_.end(), firstRuns_.begin());
}

const PieceIndex::Run* PieceIndex::runOf(std::uint64_t slot) const {
  const std::size_t leading = slot >> trailingBits_;
  for (std::size_t i = firstRuns_[leading]; i < firstRuns_[leading + 1]; ++i) {
    if (runs_[i].slot == slot) return &runs_[i];
  }
  return nullptr;
}

PieceIndex::Level PieceIndex::levelOf(double longest) const {
  const double bend = std::min(kSameDirection, kLevelStep * limits_.distance / longest);
  const double binSize = M_PI / std::clamp(std::ceil(M_PI / (2 * bend)), 1.0, kMostBins);
  const double reach = longest / 2 + limits_.distance;
  return {longest, kCellSize * reach, bend, binSize, reach * std::sin(binSize / 2) + limits_.distance};
}

std::size_t PieceIndex::levelFor(double size) const {
  std::size_t level = 0;
  while (level + 1 < levels_.size() && size <= levels_[level + 1].longest) ++level;
  return level;
}

PieceIndex::Entry PieceIndex::entryOf(std::uint32_t number) {
  const LinePiece& piece = lines_.pieces[number];
  const AIRealPoint middle = middleOf(piece);
  const std::size_t index = levelFor(length(piece.to - piece.from));
  Level& level = levels_[index];
  level.isUsed = true;
  const auto bin = static_cast<std::int64_t>(directionOf(piece.to - piece.from) / level.binSize);
  return {slotOf(index, cellAt(middle.x, level.cell), cellAt(middle.y, level.cell), bin),
          offsetIn(bin, level.binSize, middle), number};
}

// In the order of the lines: what one piece has looked at is at hand for the next.
std::vector<bool> PieceIndex::findDoubled() const {
  std::vector<std::size_t> places(entries_.size());
  for (std::size_t place = 0; place < entries_.size(); ++place) places[entries_[place].piece] = place;
  std::vector<bool> doubled;
  doubled.reserve(places.size());
  for (const std::size_t place : places) doubled.push_back(hasPartner(place));
  return doubled;
}

// In its own slot before all others: there most of a crowd find each other, each beside itself.
bool PieceIndex::hasPartner(std::size_t place) const {
  const LinePiece& piece = lines_.pieces[entries_[place].piece];
  const AIRealPoint way = piece.to - piece.from;
  const std::size_t index = levelFor(length(way));
  const Level& level = levels_[index];
  const Seeker seeker{place, piece, middleOf(piece), directionOf(way), level.bend};
  if (hasPartnerIn(seeker, *runOf(entries_[place].slot), entries_[place].offset, level.band)) return true;
  for (std::size_t i = 0; i < levels_.size(); ++i) {
    if (levels_[i].isUsed && hasPartnerIn(seeker, i)) return true;
  }
  return false;
}

bool PieceIndex::hasPartnerIn(const Seeker& seeker, std::size_t index) const {
  const Level& level = levels_[index];
  const double bend = std::min(seeker.bend, level.bend);
  const double reach = level.longest / 2 + limits_.distance;
  const auto half = [&](double part) {
    return std::min(1.0, std::abs(part) + bend) * reach + limits_.distance;
  };
  const double halfWidth = half(std::cos(seeker.direction)), halfHeight = half(std::sin(seeker.direction));
  const auto bins = static_cast<std::int64_t>(std::lround(M_PI / level.binSize));
  const auto firstBin = static_cast<std::int64_t>(std::floor((seeker.direction - bend) / level.binSize));
  const auto lastBin = static_cast<std::int64_t>(std::floor((seeker.direction + bend) / level.binSize));
  const std::int64_t right = cellAt(seeker.middle.x + halfWidth, level.cell);
  const std::int64_t top = cellAt(seeker.middle.y + halfHeight, level.cell);
  for (std::int64_t any = firstBin; any <= std::min(lastBin, firstBin + bins - 1); ++any) {
    const std::int64_t bin = (any + bins) % bins;
    for (std::int64_t row = cellAt(seeker.middle.y - halfHeight, level.cell); row <= top; ++row) {
      for (std::int64_t column = cellAt(seeker.middle.x - halfWidth, level.cell); column <= right; ++column) {
        const Run* const run = runOf(slotOf(index, column, row, bin));
        if (run == nullptr || seeker.isIn(*run)) continue;
        const double offset = offsetIn(bin, level.binSize, seeker.middle);
        if (hasPartnerIn(seeker, *run, offset, level.band)) return true;
      }
    }
  }
  return false;
}

std::size_t PieceIndex::firstFrom(const Run& run, double offset) const {
  const auto at = [this](std::size_t place) { return entries_.begin() + static_cast<std::ptrdiff_t>(place); };
  const auto first = std::lower_bound(at(run.first), at(run.end), offset,
                                      [](const Entry& entry, double value) { return entry.offset < value; });
  return static_cast<std::size_t>(first - entries_.begin());
}

// From the nearest on.
bool PieceIndex::hasPartnerIn(const Seeker& seeker, const Run& run, double offset, double band) const {
  std::size_t above = seeker.isIn(run) ? seeker.place : firstFrom(run, offset);
  std::size_t below = above;
  for (;;) {
    const bool goesUp = above < run.end && entries_[above].offset <= offset + band;
    const bool goesDown = below > run.first && entries_[below - 1].offset >= offset - band;
    if (!goesUp && !goesDown) return false;
    if (goesUp && runsAlong(lines_.pieces[entries_[above++].piece], seeker)) return true;
    if (goesDown && runsAlong(lines_.pieces[entries_[--below].piece], seeker)) return true;
  }
}

bool PieceIndex::runsAlong(const LinePiece& other, const Seeker& seeker) const {
  const AIRealPoint way = other.to - other.from;
  const double size = length(way);
  if (size == 0 || lines_.areNeighbours(other, seeker.piece, 2 * limits_.least + lines_.longest))
    return false;
  const AIRealPoint from = seeker.middle - other.from;
  const double reach = limits_.distance * size;
  const double along = dot(from, way);
  if (along < -reach || along > size * size + reach || std::abs(cross(way, from)) > reach) return false;
  const AIRealPoint own = seeker.piece.to - seeker.piece.from;
  return std::abs(cross(way, own)) <=
         std::min(seeker.bend, levels_[levelFor(size)].bend) * size * length(own);
}

}  // namespace host
