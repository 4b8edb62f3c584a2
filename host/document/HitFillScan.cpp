#include "HitFillScan.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr double kMargin = 1e-3;  // of a cell
constexpr double kFlat = 0.01;    // an edge that climbs less is not worth, nor fit, to be cut at its rows

}  // namespace

void HitFillScan::addRing(const HitOutline& outline, const HitRing& ring) {
  // What rounding does to a coordinate, at most: nothing to speak of unless the ring reaches far out.
  const AIRealPoint low = frame_.toFrame({outline.box.left, outline.box.bottom});
  const AIRealPoint high = frame_.toFrame({outline.box.right, outline.box.top});
  const double reach = std::max({std::abs(low.x), std::abs(low.y), std::abs(high.x), std::abs(high.y)});
  const double rounding = reach < 1e5 ? 0 : 1e-14 * reach;

  AIRealPoint from = frame_.toFrame(ring[0]);
  for (std::uint32_t i = 1; i < ring.size(); ++i) {
    const AIRealPoint to = frame_.toFrame(ring[i]);
    addEdge(from, to, rounding);
    from = to;
  }
  closeTouch();
}

void HitFillScan::addEdge(AIRealPoint a, AIRealPoint b, double rounding) {
  const double climb = b.y - a.y;
  const bool isFlat = std::abs(climb) < kFlat;
  const double slope = isFlat ? 0 : (b.x - a.x) / climb;  // columns a row
  const double margin = kMargin + rounding * (1 + std::abs(slope));
  const double low = std::min(a.y, b.y);
  const double high = std::max(a.y, b.y);
  const double left = std::min(a.x, b.x);
  const double right = std::max(a.x, b.x);
  if (!(high + margin >= 0 && low - margin < frame_.rows)) {
    closeTouch();
    return;
  }
  const int lowRow = floorWithin(low - margin, 0, frame_.rows - 1);
  const int highRow = floorWithin(high + margin, 0, frame_.rows - 1);
  const int step = climb < 0 ? -1 : 1;
  const int endRow = step > 0 ? highRow + 1 : lowRow - 1;
  for (int row = step > 0 ? lowRow : highRow; row != endRow; row += step) {
    double from = left;
    double to = right;
    if (!isFlat && lowRow != highRow) {
      const double x0 = a.x + (std::max<double>(row, low) - a.y) * slope;
      const double x1 = a.x + (std::min<double>(row + 1, high) - a.y) * slope;
      from = std::max(left, std::min(x0, x1));
      to = std::min(right, std::max(x0, x1));
    }
    const double middle = row + 0.5;
    const int winding = (a.y <= middle) == (b.y <= middle) ? 0 : step;
    touch(row, floorWithin(from - margin, -1, frame_.columns), floorWithin(to + margin, -1, frame_.columns),
          winding);
  }
}

void HitFillScan::touch(int row, int first, int last, int winding) {
  if (open_.row == row) {
    open_.first = static_cast<std::int16_t>(std::min<int>(open_.first, first));
    open_.last = static_cast<std::int16_t>(std::max<int>(open_.last, last));
    open_.winding += winding;
    return;
  }
  closeTouch();
  open_ = {static_cast<std::int16_t>(row), static_cast<std::int16_t>(first), static_cast<std::int16_t>(last),
           winding};
}

void HitFillScan::closeTouch() {
  if (open_.row >= 0) touches_.add(open_);
  open_.row = -1;
}

// From the left to the right: where no edge touches, the winding is the same all through.
void HitFillScan::findSpans(int row, bool evenOdd) {
  spans_.clear();
  Touch* const begin = touches_.begin(row);
  Touch* const end = touches_.end(row);
  std::sort(begin, end, [](const Touch& a, const Touch& b) { return a.first < b.first; });
  const auto add = [this](int first, int last, bool full) {
    first = std::max(first, 0);
    last = std::min(last, frame_.columns - 1);
    if (first <= last) spans_.push_back({first, last, full});
  };
  int winding = 0;
  int next = -1;  // the column after the last one touched
  for (const Touch* touch = begin; touch != end;) {
    const bool inside = evenOdd ? winding % 2 != 0 : winding != 0;
    if (inside) add(next, touch->first - 1, true);
    const int first = touch->first;
    int last = touch->last;
    for (; touch != end && touch->first <= last + 1; ++touch) {
      last = std::max<int>(last, touch->last);
      winding += touch->winding;
    }
    add(first, last, false);
    next = last + 1;
  }
}

}  // namespace host
