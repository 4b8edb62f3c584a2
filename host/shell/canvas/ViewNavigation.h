// The way about a drawing with wheel, keys, middle button and fingers.
#pragma once

#include <QPointF>
#include <QtCore/Qt>

class QGestureEvent;
class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace host {

class DrawingView;

// The wheel moves the drawing, sideways with Shift, and zooms round the pointer with Ctrl. The middle button,
// or the left one while Space is held, takes the drawing along. Arrows and the page keys move, Home shows all
// artboards. Each function says whether the event was used; nobody else is to see it then.
class ViewNavigation {
 public:
  explicit ViewNavigation(DrawingView& view) : view_(view) {}  // `view` must outlive it
  ViewNavigation(const ViewNavigation&) = delete;
  ViewNavigation& operator=(const ViewNavigation&) = delete;

  void wheel(QWheelEvent& event);
  bool press(const QMouseEvent& event);
  bool move(const QMouseEvent& event);
  bool release(const QMouseEvent& event);
  bool keyPress(const QKeyEvent& event);
  // `tapped`: Space went down and up, and nothing was done with it.
  bool keyRelease(const QKeyEvent& event, bool& tapped);
  void pinch(QGestureEvent& event);
  void letGo();  // the keyboard is somebody else's now

  // The pointer is a hand: it is not over the drawing for anybody else.
  bool isHand() const { return spaceIsHeld_ || dragButton_ != Qt::NoButton; }

 private:
  void showHand();
  bool moveByKey(const QKeyEvent& event);

  DrawingView& view_;
  Qt::MouseButton dragButton_ = Qt::NoButton;  // that takes the drawing along
  QPointF dragged_;                            // where the pointer was last, pixels of the view
  bool spaceIsHeld_ = false;
  bool spaceWasUsed_ = false;
};

}  // namespace host
