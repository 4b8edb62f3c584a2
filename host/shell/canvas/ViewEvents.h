// What goes on in a view of a drawing that is not the view's own business.
#pragma once

#include <QPointF>
#include <QtCore/Qt>

#include "AITypes.h"

class QKeyEvent;
class QPainter;

namespace host {

class DrawingView;

// Where the pointer is, and what is held with it.
struct PointerEvent {
  AIRealPoint point;  // document units
  QPointF position;   // pixels of the view
  Qt::KeyboardModifiers modifiers;
};

// Must outlive the views that report to it.
class ViewEvents {
 public:
  ViewEvents() = default;
  ViewEvents(const ViewEvents&) = delete;
  ViewEvents& operator=(const ViewEvents&) = delete;
  virtual ~ViewEvents() = default;

  // With the left button up; also when the pointer comes in.
  virtual void pointerMoved(DrawingView& view, const PointerEvent& event) = 0;
  virtual void pointerLeft(DrawingView& view) = 0;
  // Of the left button: a press, moves with the button held, and the release.
  virtual void pointerPressed(DrawingView& view, const PointerEvent& event) = 0;
  virtual void pointerDragged(DrawingView& view, const PointerEvent& event) = 0;
  virtual void pointerReleased(DrawingView& view, const PointerEvent& event) = 0;
  // Keys that the view has no use for itself; the event is ignored unless this accepts it.
  virtual void keyPressed(DrawingView& view, QKeyEvent& event) = 0;

  // While the view is painted, over the drawing, in pixels of the view. `painter` ends with the call.
  virtual void paintOver(DrawingView& view, QPainter& painter) = 0;
  // Before the view shows another part of the drawing, or in another size.
  virtual void aboutToMove(DrawingView& view) = 0;
  virtual void moved(DrawingView& view) = 0;  // after it
};

}  // namespace host
