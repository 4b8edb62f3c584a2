#include "ViewNavigation.h"

#include <QGestureEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPinchGesture>
#include <QWheelEvent>
#include <cmath>
#include <map>

#include "DrawingView.h"

namespace host {
namespace {

constexpr double kNotch = 120;        // eighths of a degree
constexpr double kZoomOfNotch = 1.2;  // of the wheel
constexpr double kPixelsOfNotch = 60;
constexpr double kPixelsOfArrow = 20;
constexpr double kPixelsOfShiftArrow = 100;
constexpr double kShareOfPage = 0.9;  // of the view: something stays to go on from

// How far the wheel wants to look to the right and down.
QPointF wayOf(const QWheelEvent& event) {
  QPointF way = event.pixelDelta();
  if (way.isNull()) way = QPointF(event.angleDelta()) * (kPixelsOfNotch / kNotch);
  if (event.modifiers().testFlag(Qt::ShiftModifier) && way.x() == 0) way = way.transposed();
  return -way;
}

}  // namespace

void ViewNavigation::wheel(QWheelEvent& event) {
  event.accept();
  if (!event.modifiers().testFlag(Qt::ControlModifier)) return view_.panBy(wayOf(event));
  const double notches = event.angleDelta().y() / kNotch;
  if (notches != 0) view_.zoomAround(event.position(), view_.zoom() * std::pow(kZoomOfNotch, notches));
}

bool ViewNavigation::press(const QMouseEvent& event) {
  if (dragButton_ != Qt::NoButton) return true;
  const bool takes = event.button() == Qt::MiddleButton || (event.button() == Qt::LeftButton && spaceIsHeld_);
  if (!takes) return false;
  dragButton_ = event.button();
  dragged_ = event.localPos();
  spaceWasUsed_ = true;
  showHand();
  return true;
}

bool ViewNavigation::move(const QMouseEvent& event) {
  if (dragButton_ == Qt::NoButton) return spaceIsHeld_;
  const QPointF way = event.localPos() - dragged_;
  dragged_ = event.localPos();
  view_.panBy(-way);
  return true;
}

bool ViewNavigation::release(const QMouseEvent& event) {
  if (dragButton_ == Qt::NoButton || event.button() != dragButton_) return false;
  dragButton_ = Qt::NoButton;
  showHand();
  return true;
}

bool ViewNavigation::keyPress(const QKeyEvent& event) {
  if (event.key() != Qt::Key_Space || event.modifiers() != Qt::NoModifier) return moveByKey(event);
  if (spaceIsHeld_) return true;
  if ((QGuiApplication::mouseButtons() & Qt::LeftButton) != 0) return false;  // somebody's drag
  spaceIsHeld_ = true;
  spaceWasUsed_ = false;
  showHand();
  return true;
}

bool ViewNavigation::keyRelease(const QKeyEvent& event, bool& tapped) {
  if (event.key() != Qt::Key_Space || !spaceIsHeld_) return false;
  if (event.isAutoRepeat()) return true;
  spaceIsHeld_ = false;
  tapped = !spaceWasUsed_;
  showHand();
  return true;
}

bool ViewNavigation::moveByKey(const QKeyEvent& event) {
  const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
  if ((held & ~Qt::ShiftModifier) != 0) return false;
  const double step = held == Qt::ShiftModifier ? kPixelsOfShiftArrow : kPixelsOfArrow;
  const double page = std::floor(view_.height() * kShareOfPage);
  const std::map<int, QPointF> ways = {{Qt::Key_Left, {-step, 0}},   {Qt::Key_Right, {step, 0}},
                                       {Qt::Key_Up, {0, -step}},     {Qt::Key_Down, {0, step}},
                                       {Qt::Key_PageUp, {0, -page}}, {Qt::Key_PageDown, {0, page}}};
  const auto way = ways.find(event.key());
  if (way != ways.end()) {
    view_.panBy(way->second);
  } else if (event.key() == Qt::Key_Home) {
    view_.fitArtboards();
  } else {
    return false;
  }
  view_.reportPointer();  // over another place
  return true;
}

void ViewNavigation::pinch(QGestureEvent& event) {
  const auto* pinch = static_cast<const QPinchGesture*>(event.gesture(Qt::PinchGesture));
  if (pinch == nullptr) return;
  event.accept();
  const QPointF centre = view_.mapFromGlobal(pinch->centerPoint().toPoint());
  if ((pinch->changeFlags() & QPinchGesture::CenterPointChanged) != 0) {
    view_.panBy(pinch->lastCenterPoint() - pinch->centerPoint());
  }
  if ((pinch->changeFlags() & QPinchGesture::ScaleFactorChanged) != 0) {
    view_.zoomAround(centre, view_.zoom() * pinch->scaleFactor() / pinch->lastScaleFactor());
  }
}

void ViewNavigation::letGo() {
  if (!isHand()) return;
  spaceIsHeld_ = false;
  dragButton_ = Qt::NoButton;
  showHand();
}

void ViewNavigation::showHand() {
  if (dragButton_ != Qt::NoButton) return view_.setCursor(Qt::ClosedHandCursor);
  if (spaceIsHeld_) return view_.setCursor(Qt::OpenHandCursor);
  view_.unsetCursor();
  view_.reportPointer();  // whoever gives it its shape does so again
}

}  // namespace host
