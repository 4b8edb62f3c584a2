// Which cells a fill covers: full ones wholly, while in mixed ones its border may run. Cells count with their
// rims, and a little beyond, so no rounding puts a point into a wrong one.
#pragma once

#include <cstdint>

#include "HitCells.h"
#include "HitShapes.h"

namespace host {

class HitFillScan {
 public:
  explicit HitFillScan(const CellFrame& frame) : frame_(frame) {}

  // Calls visit(row, spans) for each row in which the object's fill covers any cells.
  template <typename Visit>
  void scan(const HitShapes& shapes, const HitShapes::Object& object, Visit visit) {
    touches_.clear();
    for (std::uint32_t id = object.firstOutline; id < object.endOutline; ++id) {
      addRing(shapes.outlines()[id], shapes.outlines().ring(id));
    }
    touches_.sort();
    for (int row = touches_.firstRow(); row < touches_.endRow(); ++row) {
      findSpans(row, object.paint.evenOdd);
      if (!spans_.empty()) visit(row, spans_);
    }
  }

 private:
  // What an outline touches of a row in one go. Columns -1 and frame_.columns stand for all beyond the sides.
  struct Touch {
    std::int16_t row, first, last;
    std::int32_t winding;  // of the crossings of the row's middle line: upwards 1, downwards -1
  };

  void addRing(const HitOutline& outline, const HitRing& ring);
  void addEdge(AIRealPoint a, AIRealPoint b, double rounding);
  void touch(int row, int first, int last, int winding);
  void closeTouch();
  void findSpans(int row, bool evenOdd);

  CellFrame frame_;
  HitRowSort<Touch> touches_;
  Touch open_{-1, 0, 0, 0};  // the last one, for as long as the outline stays in its row; row -1: none
  CellSpans spans_;
};

}  // namespace host
