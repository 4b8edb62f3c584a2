// What annotators paint on: the window's side of a drawer.
#pragma once

#include "AIAnnotatorDrawer.h"

namespace host {

struct AnnotationPen {
  AIRGBColor color{0, 0, 0};
  AIReal lineWidth = 1;  // pixels, above 0
};

class AnnotationCanvas {
 public:
  AnnotationCanvas() = default;
  AnnotationCanvas(const AnnotationCanvas&) = delete;
  AnnotationCanvas& operator=(const AnnotationCanvas&) = delete;
  virtual ~AnnotationCanvas() = default;

  // `pixels` is of the view being painted, right and bottom beyond left and top. Filled, or its outline with
  // lines of the pen's width.
  virtual void drawRect(const AIRect& pixels, const AnnotationPen& pen, bool fill) = 0;
};

// The same rectangle with its corners in order, at least one pixel wide and high.
AIRect covering(const AIRect& rect);

}  // namespace host
