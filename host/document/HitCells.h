// Square cells over a region, and sets of them as spans in rows.
#pragma once

#include <cstdint>
#include <vector>

#include "AITypes.h"
#include "HitRowSort.h"

namespace host {

// Cell (column, row) reaches from (column, row) to the next integers, in coordinates of the frame.
struct CellFrame {
  AIRealPoint origin{};
  double cellsPerUnit = 1;
  int columns = 0, rows = 0;

  AIRealPoint toFrame(AIRealPoint point) const {
    return {(point.x - origin.x) * cellsPerUnit, (point.y - origin.y) * cellsPerUnit};
  }
};

// Rounded down, and held to a range; NaN gives the low end.
inline int floorWithin(double value, int low, int high) {
  if (!(value > low)) return low;
  return value < high ? static_cast<int>(value - low) + low : high;
}

// Cells of a row, all inside of something ("full") or perhaps touched by its border ("mixed").
struct CellSpan {
  int first, last;
  bool full;
};
using CellSpans = std::vector<CellSpan>;  // of one row

// Rows of spans, from the left to the right and apart from each other.
class CellRows {
 public:
  struct Row {
    const CellSpan* first;
    const CellSpan* last;
    const CellSpan* begin() const { return first; }
    const CellSpan* end() const { return last; }
  };
  Row row(int index) const;  // empty for a row there isn't
  int firstRow() const { return firstRow_; }
  int endRow() const { return firstRow_ + static_cast<int>(begins_.size()) - 1; }

  // Rows are built in ascending order and without gaps.
  explicit CellRows(int firstRow) : firstRow_(firstRow) {}
  void add(const CellSpans& spans);

 private:
  int firstRow_;
  std::vector<std::size_t> begins_{0};
  CellSpans spans_;
};

// What is in both: full where both are full. Replaces what `result` held.
void intersect(CellRows::Row a, CellRows::Row b, CellSpans& result);
CellRows intersect(const CellRows& a, const CellRows& b);

// Puts spans that come in any order, and on top of each other, into rows. Full wins over mixed.
class CellCollector {
 public:
  void add(int row, const CellSpan& span) { items_.add({row, span}); }
  CellRows take();  // and starts anew

 private:
  struct Item {
    int row;
    CellSpan span;
  };
  HitRowSort<Item> items_;
};

}  // namespace host
