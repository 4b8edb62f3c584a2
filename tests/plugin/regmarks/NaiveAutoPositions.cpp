#include "NaiveAutoPositions.h"

#include <cmath>
#include <map>
#include <utility>

#include "AIHitTest.h"

namespace Vandrell::Corvane {
namespace {

using Cell = std::pair<int, int>;

bool IsHit(double x, double y) {
  const AIRealPoint point{x, y};
  AIHitRef hit = nullptr;
  AIHitData data{};
  sAIHitTest->HitTest(nullptr, &point, 7, &hit);
  sAIHitTest->GetHitData(hit, &data);
  return data.hit == 1;
}

int ProbeSquare(double left, double bottom, double side) {
  int samples = static_cast<int>((side + 2.0) * 0.5);
  if (samples < 3) samples = 2;
  const double step = side / (samples - 1);
  for (int i = 0; i < samples; ++i) {
    for (int j = 0; j < samples; ++j) {
      if (IsHit(left + i * step, bottom + j * step)) return 1;
    }
  }
  return 2;
}

class NaiveGrid {
 public:
  NaiveGrid(double gx, double gy, double width, double height, double cell)
      : gx_(gx),
        gy_(gy),
        cell_(cell),
        nx_(static_cast<int>(width / cell)),
        ny_(static_cast<int>(height / cell)) {
    cw_ = width / nx_;
    ch_ = height / ny_;
  }

  PositionList Candidates() {
    if (nx_ < 4 || ny_ < 4) return {};
    for (int i = 0; i <= nx_; ++i) {
      for (int j = 0; j <= ny_; ++j) {
        if (i == 0 || i == nx_ || j == 0 || j == ny_) Probe(i, j);
      }
    }
    while (FloodPass()) {
    }
    PositionList found;
    for (int i = 2; i <= nx_ - 2; ++i) {
      for (int j = 2; j <= ny_ - 2; ++j) {
        if (i % 2 == 1 && j == ny_ - 2) continue;
        if (IsCandidate(i, j)) found.push_back(Position(i, j));
      }
    }
    return found;
  }

 private:
  AIRealPoint Position(int i, int j) const {
    return {gx_ + i * cw_, gy_ + j * ch_ + (i % 2 == 1 ? ch_ / 2 : 0)};
  }

  int State(int i, int j) const {
    const auto found = states_.find({i, j});
    return found == states_.end() ? 0 : found->second;
  }

  void Probe(int i, int j) {
    const AIRealPoint p = Position(i, j);
    states_[{i, j}] = IsHit(p.x, p.y) ? 1 : ProbeSquare(p.x - cell_ / 2, p.y - cell_ / 2, cell_);
  }

  bool FloodPass() {
    bool probed = false;
    for (int i = 1; i <= nx_ - 1; ++i) {
      for (int j = 1; j <= ny_ - 1; ++j) {
        if (State(i, j) != 0) continue;
        if (State(i - 1, j) != 2 && State(i, j - 1) != 2 && State(i, j + 1) != 2 && State(i + 1, j) != 2)
          continue;
        Probe(i, j);
        probed = true;
      }
    }
    return probed;
  }

  bool IsCandidate(int i, int j) const {
    const int a = i % 2 == 1 ? j + 1 : j;
    for (const auto& [x, y] : {Cell{i, j}, Cell{i, j + 1}, Cell{i, j - 1}, Cell{i - 1, a - 1}, Cell{i - 1, a},
                               Cell{i + 1, a - 1}, Cell{i + 1, a}}) {
      if (State(x, y) != 2) return false;
    }
    int others = 0;
    for (const auto& [x, y] :
         {Cell{i, j + 2}, Cell{i, j - 2}, Cell{i - 2, j - 1}, Cell{i - 2, j}, Cell{i - 2, j + 1},
          Cell{i + 2, j - 1}, Cell{i + 2, j}, Cell{i + 2, j + 1}, Cell{i - 1, a - 2}, Cell{i - 1, a + 1},
          Cell{i + 1, a - 2}, Cell{i + 1, a + 1}}) {
      if (State(x, y) != 2) ++others;
    }
    return others >= 2;
  }

  double gx_, gy_, cell_;
  int nx_, ny_;
  double cw_, ch_;
  std::map<Cell, int> states_;
};

PositionList OnePerSector(const PositionList& candidates, double gx, double gy, double width, double height,
                          int n) {
  int cols, rows;
  if (width / n > height / n) {
    cols = n;
    rows = std::max(2, static_cast<int>(n * height / width + 0.5));
  } else {
    rows = n;
    cols = std::max(2, static_cast<int>(n * width / height + 0.5));
  }
  const double sw = width / cols;
  const double sh = height / rows;
  std::vector<PositionList> buckets(static_cast<std::size_t>(cols));
  for (const AIRealPoint& p : candidates) {
    const int bucket = static_cast<int>((p.x - gx) / sw);
    if (bucket < cols) buckets[static_cast<std::size_t>(bucket)].push_back(p);
  }
  PositionList picked;
  for (int k = 0; k < cols; ++k) {
    for (int r = 0; r < rows; ++r) {
      const double tx = gx + k * width / (cols - 1);
      const double ty = gy + r * height / (rows - 1);
      double best = sw * sw + sh * sh;
      const AIRealPoint* choice = nullptr;
      for (const AIRealPoint& p : buckets[static_cast<std::size_t>(k)]) {
        if (static_cast<int>((p.y - gy) / sh) != r) continue;
        const double distance = (p.x - tx) * (p.x - tx) + (p.y - ty) * (p.y - ty);
        if (distance < best) {
          best = distance;
          choice = &p;
        }
      }
      if (choice != nullptr) picked.push_back(*choice);
    }
  }
  return picked;
}

void RemoveClose(PositionList& list, double least) {
  for (std::size_t i = 1; i < list.size();) {
    bool close = false;
    for (std::size_t k = 0; k < i; ++k) {
      close = close || std::fabs(list[i].x - list[k].x) + std::fabs(list[i].y - list[k].y) < least;
    }
    if (close) {
      list.erase(list.begin() + static_cast<std::ptrdiff_t>(i));
    } else {
      ++i;
    }
  }
}

}  // namespace

PositionList NaiveAutoPositions(const NaiveInput& in) {
  const double m = in.extent;
  const double c = 1.1 * m;
  const double lowX = std::max(m / 2 - in.originX, in.art.left - 3 * c);
  const double highX = std::min(in.pageWidth - m / 2 - in.originX, in.art.right + 3 * c);
  const double lowY = std::max(m / 2 - in.originY, in.art.bottom - 3 * c);
  const double highY = std::min(in.pageHeight - m / 2 - in.originY, in.art.top + 3 * c);
  const double gx = lowX - 2 * c;
  const double gy = lowY - 2 * c;
  const double width = highX + 5 * c - gx;
  const double height = highY + 5 * c - gy;

  PositionList positions = NaiveGrid(gx, gy, width, height, c).Candidates();
  if (positions.size() >= 4) positions = OnePerSector(positions, gx, gy, width, height, in.count);
  RemoveClose(positions, std::max(144 / in.scale, 4 * m));
  return positions;
}

}  // namespace Vandrell::Corvane
