#include "LineOverlaps.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <tuple>

#include "Cubic.h"
#include "Geometry.h"
#include "Vector.h"

namespace host {
namespace {

constexpr double kMostPieces = 4e5;      // that long lines are cut into
constexpr double kSameDirection = 0.18;  // sine of 10 degrees: chords of one curve differ by as much
constexpr double kSharpBend = 0.5;       // sine of the bend that a piece ends at
constexpr int kMostTested = 400;         // neighbours of a piece
constexpr double kMostCells = 1e15;      // in a row

struct Piece {
  AIRealPoint from, to;
  double along;  // from the start of the path to the piece's middle
  std::uint32_t path;
};

// Where a piece's middle is.
struct Entry {
  std::int64_t row, column;
  float direction;  // radians, -pi/2 to pi/2: the same either way
  std::uint32_t piece;

  bool operator<(const Entry& other) const {
    return std::tie(row, column, direction, piece) <
           std::tie(other.row, other.column, other.direction, other.piece);
  }
};

struct Course {
  std::vector<AIRealPoint> points;
  double length = 0;
  bool closed = false;
};

Course courseOf(const PathGeometry& path, double tolerance) {
  Course course{flatten(path, tolerance, false), 0, path.closed};
  for (std::size_t i = 1; i < course.points.size(); ++i) {
    course.length += length(course.points[i] - course.points[i - 1]);
  }
  return course;
}

class Overlaps {
 public:
  Overlaps(const std::vector<const PathGeometry*>& paths, const OverlapLimits& limits) : limits_(limits) {
    double total = 0;
    for (const PathGeometry* path : paths) {
      courses_.push_back(courseOf(*path, limits.distance / 10));
      if (std::isfinite(courses_.back().length)) total += courses_.back().length;
    }
    longest_ = std::max(limits.least / 2, total / kMostPieces);
    shortest_ = std::min(limits.least / 8, longest_ / 2);
    cell_ = longest_ + 2 * limits.distance;
    for (std::uint32_t i = 0; i < courses_.size(); ++i) {
      if (std::isfinite(courses_[i].length)) cut(courses_[i], i);
    }
  }

  std::vector<LineOverlap> find() {
    markDoubled();
    std::vector<LineOverlap> found;
    for (std::size_t first = 0; first < pieces_.size();) {
      std::size_t end = first;
      while (end < pieces_.size() && pieces_[end].path == pieces_[first].path) ++end;
      const LineOverlap overlap = longestOverlap(first, end);
      const double enough = std::min(limits_.least, 0.9 * courses_[overlap.path].length);
      if (overlap.length > 0 && overlap.length >= enough) found.push_back(overlap);
      first = end;
    }
    return found;
  }

 private:
  // Long chords become several pieces, and short ones one, up to a bend.
  void cut(const Course& course, std::uint32_t path) {
    double along = 0;
    AIRealPoint from = course.points.empty() ? AIRealPoint{} : course.points.front();
    for (std::size_t i = 1; i < course.points.size(); ++i) {
      const AIRealPoint to = course.points[i];
      const double size = length(to - from);
      const bool goesOn = i + 1 < course.points.size() && size < shortest_ &&
                          isStraightOn(to - from, course.points[i + 1] - to);
      if (goesOn) continue;
      // Never more than a few times kMostPieces in all.
      const int count = std::max(1, static_cast<int>(std::ceil(size / longest_)));
      for (int k = 0; k < count; ++k) {
        const double start = static_cast<double>(k) / count, end = static_cast<double>(k + 1) / count;
        add(from + (to - from) * start, from + (to - from) * end, along + size * (start + end) / 2, path);
      }
      along += size;
      from = to;
    }
  }

  static bool isStraightOn(AIRealPoint a, AIRealPoint b) {
    return dot(a, b) > 0 && std::abs(cross(a, b)) < kSharpBend * length(a) * length(b);
  }

  void add(AIRealPoint from, AIRealPoint to, double along, std::uint32_t path) {
    const AIRealPoint middle = (from + to) * 0.5;
    const AIRealPoint way = to.x < from.x ? from - to : to - from;
    const auto number = static_cast<std::uint32_t>(pieces_.size());
    order_.push_back(
        {cellAt(middle.y), cellAt(middle.x), static_cast<float>(std::atan2(way.y, way.x)), number});
    pieces_.push_back({from, to, along, path});
  }

  std::int64_t cellAt(double coordinate) const {
    return static_cast<std::int64_t>(std::clamp(std::floor(coordinate / cell_), -kMostCells, kMostCells));
  }

  // Goes through the pieces row by row, with a place in the row above and below that moves along.
  void markDoubled() {
    std::sort(order_.begin(), order_.end());
    doubled_.assign(pieces_.size(), false);
    std::array<std::size_t, 3> nearby{};
    for (std::size_t place = 0; place < order_.size(); ++place) {
      const Entry& entry = order_[place];
      for (std::size_t i = 0; i < nearby.size(); ++i) {
        const Entry first{rowNearby(entry, i), entry.column - 1, -10, 0};
        while (nearby[i] < order_.size() && order_[nearby[i]] < first) ++nearby[i];
      }
      doubled_[entry.piece] = hasPartnerBeside(place) || hasPartnerAround(place, nearby);
    }
  }

  static std::int64_t rowNearby(const Entry& entry, std::size_t i) {
    return entry.row + static_cast<std::int64_t>(i) - 1;
  }

  // In a crowd the likeliest partners are those that stand beside it in the order, by their direction.
  bool hasPartnerBeside(std::size_t place) const {
    const Piece& piece = pieces_[order_[place].piece];
    for (std::size_t step = 1; step <= kMostTested / 2; ++step) {
      const bool isAfter = place + step < order_.size() && isInOneCell(place, place + step);
      const bool isBefore = place >= step && isInOneCell(place, place - step);
      if (isAfter && runsAlong(pieces_[order_[place + step].piece], piece)) return true;
      if (isBefore && runsAlong(pieces_[order_[place - step].piece], piece)) return true;
      if (!isAfter && !isBefore) break;
    }
    return false;
  }

  bool isInOneCell(std::size_t a, std::size_t b) const {
    return order_[a].row == order_[b].row && order_[a].column == order_[b].column;
  }

  bool hasPartnerAround(std::size_t place, const std::array<std::size_t, 3>& nearby) const {
    const Entry& entry = order_[place];
    const Piece& piece = pieces_[entry.piece];
    for (std::size_t i = 0; i < nearby.size(); ++i) {
      const std::size_t end = std::min(order_.size(), nearby[i] + kMostTested);
      for (std::size_t other = nearby[i]; other < end; ++other) {
        const Entry& candidate = order_[other];
        if (candidate.row != rowNearby(entry, i) || candidate.column > entry.column + 1) break;
        if (other != place && runsAlong(pieces_[candidate.piece], piece)) return true;
      }
    }
    return false;
  }

  bool runsAlong(const Piece& other, const Piece& piece) const {
    const AIRealPoint way = other.to - other.from;
    const double size = length(way);
    if (size == 0 || (other.path == piece.path && isNextTo(other, piece))) return false;
    const AIRealPoint middle = (piece.from + piece.to) * 0.5 - other.from;
    const double reach = limits_.distance * size;
    const double along = dot(middle, way);
    if (along < -reach || along > size * size + reach || std::abs(cross(way, middle)) > reach) return false;
    const AIRealPoint own = piece.to - piece.from;
    return std::abs(cross(way, own)) <= kSameDirection * size * length(own);
  }

  // What a line goes on with is no second line.
  bool isNextTo(const Piece& other, const Piece& piece) const {
    const Course& course = courses_[piece.path];
    double apart = std::abs(other.along - piece.along);
    if (course.closed) apart = std::min(apart, course.length - apart);
    return apart < 2 * limits_.least + longest_;
  }

  LineOverlap longestOverlap(std::size_t first, std::size_t end) const {
    LineOverlap best{pieces_[first].path, 0, pieces_[first].from};
    LineOverlap current = best;
    for (std::size_t i = first; i < end; ++i) {
      if (!doubled_[i]) {
        current.length = 0;
        continue;
      }
      if (current.length == 0) current.start = pieces_[i].from;
      current.length += length(pieces_[i].to - pieces_[i].from);
      if (current.length > best.length) best = current;
    }
    return best;
  }

  OverlapLimits limits_;
  double longest_, shortest_, cell_;
  std::vector<Course> courses_;
  std::vector<Piece> pieces_;  // along one path after the other
  std::vector<Entry> order_;   // row by row
  std::vector<bool> doubled_;
};

}  // namespace

std::vector<LineOverlap> findOverlaps(const std::vector<const PathGeometry*>& paths,
                                      const OverlapLimits& limits) {
  return Overlaps(paths, limits).find();
}

}  // namespace host
