// Elliptical arcs of path data as cubics.
#pragma once

#include "AITypes.h"

namespace host {

// From end points to centre and angles as in https://www.w3.org/TR/SVG2/implnote.html#ArcImplementationNotes.
// Radii that are too small are enlarged; none may be 0, and the end points must differ.
class SvgArc {
 public:
  struct Cubic {
    AIRealPoint control1, control2, to;
  };

  SvgArc(AIRealPoint from, AIRealPoint radii, double rotationDegrees, bool large, bool sweep, AIRealPoint to);

  int cubicCount() const { return count_; }  // one for each quarter turn begun
  Cubic cubic(int index) const;

 private:
  AIRealPoint at(double x, double y) const;  // from the unit circle

  AIRealPoint centre_{};
  AIRealPoint radii_;
  double cosine_;
  double sine_;
  double startAngle_ = 0;
  double step_ = 0;
  int count_ = 1;
};

}  // namespace host
