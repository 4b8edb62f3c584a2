// What an element takes from those round it.
#pragma once

#include "SvgLength.h"
#include "SvgSource.h"
#include "SvgStyle.h"

namespace host {

struct SvgContext {
  AIRealMatrix documentFromUser{};
  double width = 0;  // of the viewport, in user units
  double height = 0;
  SvgStyle style;
  bool flattened = false;  // by the element's own transform, which counts by uprightTransformOf() then

  SvgMeasure measure() const { return {width, height, style.fontSize}; }
};

// The user space inside an element and the viewport it belongs to.
struct SvgFrame {
  AIRealMatrix documentFromUser;
  double width;
  double height;
};

// An element's `transform`; the identity if it has none or none that is understood.
AIRealMatrix transformOf(const SvgSource& source, NodeIndex element);
// What counts for the place of art that the document holds. A transform that flattens hides the element, and
// its content keeps the place that it would have without.
AIRealMatrix uprightTransformOf(const SvgSource& source, NodeIndex element);
// The frame inside an element that is not the root: its uprightTransformOf(), and its viewport
// if it is an <svg>.
SvgFrame frameInside(const SvgSource& source, NodeIndex element, const SvgFrame& outer);

}  // namespace host
