// The course that text on a path follows.
#pragma once

#include <optional>
#include <vector>

#include "SvgReading.h"

namespace host {

class SvgTextLine {
 public:
  // The path that a <textPath> names, in the user space round it; nullopt if there is none.
  static std::optional<SvgTextLine> of(SvgReading& reading, NodeIndex textPath, const SvgContext& context);

  double startOffset() const { return startOffset_; }
  // What turns a glyph with its middle at the origin so that it stands on the line; nullopt beyond its ends.
  std::optional<AIRealMatrix> userFromGlyphAt(double distance) const;

 private:
  std::vector<AIRealPoint> points_;
  std::vector<double> distances_;  // of each point from the first one
  double startOffset_ = 0;
};

}  // namespace host
