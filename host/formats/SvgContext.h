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
// The frame inside an element that is not the root: its `transform`, and its viewport if it is an <svg>.
SvgFrame frameInside(const SvgSource& source, NodeIndex element, const SvgFrame& outer);

}  // namespace host
