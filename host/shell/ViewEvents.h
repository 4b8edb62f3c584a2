// What goes on in a view of a drawing that is not the view's own business.
#pragma once

#include "AITypes.h"

namespace host {

class AnnotationCanvas;
class DrawingView;

// Must outlive the views that report to it. Points are in document units.
class ViewEvents {
 public:
  ViewEvents() = default;
  ViewEvents(const ViewEvents&) = delete;
  ViewEvents& operator=(const ViewEvents&) = delete;
  virtual ~ViewEvents() = default;

  // With the left button up; also when the pointer comes in.
  virtual void pointerMoved(DrawingView& view, AIRealPoint point) = 0;
  // Of the left button: a press, moves with the button held, and the release.
  virtual void pointerPressed(DrawingView& view, AIRealPoint point) = 0;
  virtual void pointerDragged(DrawingView& view, AIRealPoint point) = 0;
  virtual void pointerReleased(DrawingView& view, AIRealPoint point) = 0;

  // While the view is painted, over the drawing. `canvas` ends with the call.
  virtual void paintOver(DrawingView& view, AnnotationCanvas& canvas) = 0;
  // Before the view shows another part of the drawing, or in another size.
  virtual void aboutToMove(DrawingView& view) = 0;
};

}  // namespace host
