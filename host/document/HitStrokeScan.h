// Which cells a stroke covers, as HitFillScan has it for fills.
#pragma once

#include "HitCells.h"
#include "HitShapes.h"

namespace host {

class HitStrokeScan {
 public:
  explicit HitStrokeScan(const CellFrame& frame) : frame_(frame) {}

  CellRows scan(const HitShapes& shapes, const HitShapes::Object& object);

 private:
  // All points within `radius` of the line from `a` to `b`, in coordinates of the frame.
  struct Capsule {
    AIRealPoint a, b;
    double radius;
  };
  class Course;

  void add(const Course& course);
  void addInside(const Course& course, std::uint32_t from, std::uint32_t to, double radius);
  void add(const Capsule& capsule, bool full);

  CellFrame frame_;
  CellCollector cells_;
};

}  // namespace host
