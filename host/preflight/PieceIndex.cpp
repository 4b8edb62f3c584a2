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
// A slot is, from its last bits on: the bin, the cell's place in its block, and the block.
constexpr int kBinBits = 14;
constexpr std::uint64_t kBinMask = (1 << kBinBits) - 1;
constexpr double kMostBins = 1 << kBinBits;
constexpr int kBlockBits = 3;  // a block has 8 columns and 8 rows of cells

std::int64_t cellAt(double coordinate, double size) {
  return static_cast<std::int64_t>(std::clamp(std::floor(coordinate / size), -kMostCells, kMostCells));
}

std::uint64_t mixed(std::uint64_t seed, std::int64_t value) {
  const std::uint64_t product = (seed ^ static_cast<std::uint64_t>(value)) * 0x9E3779B97F4A7C15U;
  return (product ^ (product >> 29)) * 0xBF58476D1CE4E5B9U;
}

// The slot of its first bin. The cells of a block are near each other in the index, as the pieces of a line
// are on the sheet; blocks are numbered as if at random, and two that are equal by chance cost time, nothing
// else.
std::uint64_t cellOf(std::size_t level, std::int64_t column, std::int64_t row) {
  constexpr std::int64_t kInBlock = (1 << kBlockBits) - 1;
  const std::uint64_t block = mixed(mixed(level + 1, column >> kBlockBits), row >> kBlockBits);
  const auto place = static_cast<std::uint64_t>((row & kInBlock) << kBlockBits | (column & kInBlock));
  return ((block << 2 * kBlockBits) | place) << kBinBits;
}

// 0 to pi: the same either way round.
double directionOf(AIRealPoint way) {
  const double angle = std::atan2(way.y, way.x);
  return angle < 0 ? angle + M_PI : angle < M_PI ? angle : 0;
}

AIRealPoint middleOf(const LinePiece& piece) {
  return (piece.from + piece.to) * 0.5;
}

std::vector<AIRealPoint> axesOf(double binSize) {
  std::vector<AIRealPoint> axes(static_cast<std::size_t>(std::lround(M_PI / binSize)));
  for (std::size_t bin = 0; bin < axes.size(); ++bin) {
    const double direction = (static_cast<double>(bin) + 0.5) * binSize;
    axes[bin] = {std::cos(direction), std::sin(direction)};
  }
  return axes;
}

}  // namespace

struct PieceIndex::Seeker {
  std::size_t place;  // of its entry
  const LinePiece& piece;
  AIRealPoint middle, axis;  // the axis of length 1
  double direction, bend;

  bool isIn(const Run& run) const { return place >= run.first && place < run.end; }
};

// From one to another bin of a level. Behind its last one comes its first.
struct PieceIndex::Bins {
  Bins(double from, double to, const Level& level)
      : first(std::floor(from / level.binSize)),
        last(std::floor(to / level.binSize)),
        all(static_cast<double>(level.axes.size())) {}

  // False also for a bin that the level does not have: of a cell that is equal by chance.
  bool contain(std::size_t bin) const {
    const auto number = static_cast<double>(bin);
    return number < all &&
           ((number >= first && number <= last) || number - all >= first || number + all <= last);
  }

  double first, last, all;
};

PieceIndex::PieceIndex(const LinePieces& lines, const OverlapLimits& limits)
    : lines_(lines), limits_(limits) {
  double longest = lines.longest;
  do {
    levels_.push_back(levelOf(longest));
    longest /= kLevelStep;
  } while (longest > kShortestLevel * limits.distance);
  directions_.reserve(lines.pieces.size());
  for (const LinePiece& piece : lines.pieces) directions_.push_back(directionOf(piece.to - piece.from));
  entries_.reserve(lines.pieces.size());
  for (std::uint32_t i = 0; i < lines.pieces.size(); ++i) entries_.push_back(entryOf(i));
  std::sort(entries_.begin(), entries_.end(), [](const Entry& a, const Entry& b) {
    return std::tie(a.slot, a.offset, a.piece) < std::tie(b.slot, b.offset, b.piece);
  });
  findRuns();
}

// Since blocks are numbered as if at random, a slot's leading bits tell nearly where it is.
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

std::size_t PieceIndex::firstRunFrom(std::uint64_t slot) const {
  const std::size_t leading = slot >> trailingBits_;
  const auto at = [this](std::size_t run) { return runs_.begin() + static_cast<std::ptrdiff_t>(run); };
  const auto first = std::lower_bound(at(firstRuns_[leading]), at(firstRuns_[leading + 1]), slot,
                                      [](const Run& run, std::uint64_t value) { return run.slot < value; });
  return static_cast<std::size_t>(first - runs_.begin());
}

PieceIndex::Level PieceIndex::levelOf(double longest) const {
  const double bend = std::min(kSameDirection, kLevelStep * limits_.distance / longest);
  const double binSize = M_PI / std::clamp(std::ceil(M_PI / (2 * bend)), 1.0, kMostBins);
  const double reach = longest / 2 + limits_.distance;
  return {longest, kCellSize * reach, bend, binSize, reach * std::sin(binSize / 2) + limits_.distance, {}};
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
  if (level.axes.empty()) level.axes = axesOf(level.binSize);
  const auto bin =
      std::min(static_cast<std::size_t>(directions_[number] / level.binSize), level.axes.size() - 1);
  return {cellOf(index, cellAt(middle.x, level.cell), cellAt(middle.y, level.cell)) | bin,
          cross(level.axes[bin], middle), number};
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
  const Entry& entry = entries_[place];
  const LinePiece& piece = lines_.pieces[entry.piece];
  const AIRealPoint way = piece.to - piece.from;
  const double size = length(way);
  const Level& level = levels_[levelFor(size)];
  const AIRealPoint axis = size > 0 ? way * (1 / size) : AIRealPoint{1, 0};
  const Seeker seeker{place, piece, middleOf(piece), axis, directions_[entry.piece], level.bend};
  if (hasPartnerIn(seeker, runs_[firstRunFrom(entry.slot)], entry.offset, level.band)) return true;
  for (std::size_t i = 0; i < levels_.size(); ++i) {
    if (!levels_[i].axes.empty() && hasPartnerIn(seeker, i)) return true;
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
  const double halfWidth = half(seeker.axis.x), halfHeight = half(seeker.axis.y);
  const Bins bins(seeker.direction - bend, seeker.direction + bend, level);
  const std::int64_t right = cellAt(seeker.middle.x + halfWidth, level.cell);
  const std::int64_t top = cellAt(seeker.middle.y + halfHeight, level.cell);
  for (std::int64_t row = cellAt(seeker.middle.y - halfHeight, level.cell); row <= top; ++row) {
    for (std::int64_t column = cellAt(seeker.middle.x - halfWidth, level.cell); column <= right; ++column) {
      if (hasPartnerIn(seeker, level, cellOf(index, column, row), bins)) return true;
    }
  }
  return false;
}

bool PieceIndex::hasPartnerIn(const Seeker& seeker, const Level& level, std::uint64_t cell,
                              const Bins& bins) const {
  for (std::size_t i = firstRunFrom(cell); i < runs_.size(); ++i) {
    const Run& run = runs_[i];
    if ((run.slot & ~kBinMask) != cell) return false;
    const std::size_t bin = run.slot & kBinMask;
    if (!bins.contain(bin) || seeker.isIn(run)) continue;
    if (hasPartnerIn(seeker, run, cross(level.axes[bin], seeker.middle), level.band)) return true;
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
