#include "RVADM_CustomItem.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include "AppContext.h"
#include "ItemDefaultPainter.h"

namespace qRVADM {
namespace {

Qt::CursorShape QtShape(int shape) {
  switch (shape) {
    case kSizeHorCursor:
      return Qt::SizeHorCursor;
    case kClosedHandCursor:
      return Qt::ClosedHandCursor;
    case kPointingHandCursor:
      return Qt::PointingHandCursor;
    case kArrowCursor:
      return Qt::ArrowCursor;
    default:
      return Qt::UpArrowCursor;
  }
}

// 0, which no item takes for anything, for the buttons of browsers and the like.
int DownAction(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return kLeftDownAction;
    case Qt::MiddleButton:
      return kMiddleDownAction;
    case Qt::RightButton:
      return kRightDownAction;
    default:
      return 0;
  }
}

std::uint32_t KeyCode(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Space:
      return kSpaceKey;
    case Qt::Key_0:
      return event.modifiers().testFlag(Qt::KeypadModifier) ? kKeypadZeroKey : kZeroKey;
    case Qt::Key_Escape:
      return kEscapeKey;
    case Qt::Key_Shift:
      return kShiftKey;
    case Qt::Key_Control:
      return kControlKey;
    default:
      return 0;
  }
}

}  // namespace

RVADM_CustomItem::RVADM_CustomItem(RVADM_ItemParent* itemParent)
    : RVADM_QMetaObjectProxy(itemParent, kCustomItemKind) {
  SetFontKind(0);
  setFocusPolicy(Qt::NoFocus);
  clearFocus();
}

void RVADM_CustomItem::SetCursorShape(int shape) {
  setCursor(QtShape(shape));
}

void RVADM_CustomItem::paintEvent(QPaintEvent* event) {
  ItemDefaultPainter<RVADM_CustomItem> ordinaryLook(*this, event);
  IADMDrawer drawer(this, &ordinaryLook);
  const AppContext context;
  Draw(drawer);
}

void RVADM_CustomItem::DefaultPaint(QPaintEvent* event) {
  QWidget::paintEvent(event);
}

void RVADM_CustomItem::OnMouseDoubleClick(QMouseEvent* event) {
  TrackInContext(kDoubleClickAction, event->localPos());
}

void RVADM_CustomItem::OnMousePress(QMouseEvent* event) {
  TrackInContext(DownAction(event->button()), event->localPos());
}

void RVADM_CustomItem::OnMouseRelease(QMouseEvent* event) {
  TrackInContext(-DownAction(event->button()), event->localPos());
}

void RVADM_CustomItem::OnMouseMove(QMouseEvent* event) {
  const bool drag = event->buttons().testFlag(Qt::LeftButton);
  TrackInContext(drag ? kDragAction : kMoveAction, event->localPos());
}

void RVADM_CustomItem::OnKeyPress(QKeyEvent* event) {
  TrackInContext(kKeyAction, mapFromGlobal(QCursor::pos()), KeyCode(*event));
}

void RVADM_CustomItem::OnKeyRelease(QKeyEvent* event) {
  const bool spaceUp = event->key() == Qt::Key_Space && !event->isAutoRepeat();
  TrackInContext(spaceUp ? kSpaceUpAction : kKeyAction, mapFromGlobal(QCursor::pos()), KeyCode(*event));
}

void RVADM_CustomItem::OnWheel(QWheelEvent* event) {
  TrackInContext(kWheelAction, event->angleDelta().transposed());
}

void RVADM_CustomItem::TrackInContext(int action, const QPointF& point, std::uint32_t key) {
  ADMTracker tracker;
  tracker.action = action;
  tracker.modifiers = InputState();
  tracker.key = key;
  tracker.x = qRound(point.x());
  tracker.y = qRound(point.y());
  const AppContext context;
  Track(tracker);
}

}  // namespace qRVADM
