#include "InputStateManaged.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWheelEvent>

#include "ADMTracker.h"
#include "MouseRoute.h"

namespace qRVADM {
namespace {

// Is there still an object for the widget's own handling? One that was deleted has done with the event: it
// stays accepted, so that nobody looks for a parent to pass it on to.
template <typename Object, typename Event>
bool Outlives(Object& object, void (Object::*operation)(Event*), Event* event) {
  const QPointer<QObject> alive(&object);
  (object.*operation)(event);
  if (!alive) event->accept();
  return !alive.isNull();
}

}  // namespace

template <typename Widget>
void InputStateManaged<Widget>::mouseDoubleClickEvent(QMouseEvent* event) {
  NoteMouse(*event);
  if (Outlives(*this, &InputStateManaged::OnMouseDoubleClick, event)) Widget::mouseDoubleClickEvent(event);
}

template <typename Widget>
void InputStateManaged<Widget>::mousePressEvent(QMouseEvent* event) {
  NoteMouse(*event);
  if (Outlives(*this, &InputStateManaged::OnMousePress, event)) Widget::mousePressEvent(event);
}

template <typename Widget>
void InputStateManaged<Widget>::mouseReleaseEvent(QMouseEvent* event) {
  NoteMouse(*event);
  if (Outlives(*this, &InputStateManaged::OnMouseRelease, event)) Widget::mouseReleaseEvent(event);
}

template <typename Widget>
void InputStateManaged<Widget>::mouseMoveEvent(QMouseEvent* event) {
  NoteMouse(*event);
  if (Outlives(*this, &InputStateManaged::OnMouseMove, event)) Widget::mouseMoveEvent(event);
}

template <typename Widget>
void InputStateManaged<Widget>::keyPressEvent(QKeyEvent* event) {
  NoteKey(*event);
  if (Outlives(*this, &InputStateManaged::OnKeyPress, event)) Widget::keyPressEvent(event);
}

template <typename Widget>
void InputStateManaged<Widget>::keyReleaseEvent(QKeyEvent* event) {
  NoteKey(*event);
  if (Outlives(*this, &InputStateManaged::OnKeyRelease, event)) Widget::keyReleaseEvent(event);
}

template <typename Widget>
void InputStateManaged<Widget>::wheelEvent(QWheelEvent* event) {
  buttons = ButtonModifiers(event->buttons());
  modifiers = KeyModifiers(event->modifiers());
  if (Outlives(*this, &InputStateManaged::OnWheel, event)) Widget::wheelEvent(event);
}

template <typename Widget>
void InputStateManaged<Widget>::OnMouseDoubleClick(QMouseEvent*) {}
template <typename Widget>
void InputStateManaged<Widget>::OnMousePress(QMouseEvent*) {}
template <typename Widget>
void InputStateManaged<Widget>::OnMouseRelease(QMouseEvent*) {}
template <typename Widget>
void InputStateManaged<Widget>::OnMouseMove(QMouseEvent*) {}
template <typename Widget>
void InputStateManaged<Widget>::OnKeyPress(QKeyEvent*) {}
template <typename Widget>
void InputStateManaged<Widget>::OnKeyRelease(QKeyEvent*) {}
template <typename Widget>
void InputStateManaged<Widget>::OnWheel(QWheelEvent*) {}

template <typename Widget>
void InputStateManaged<Widget>::NoteMouse(const QMouseEvent& event) {
  buttons = ButtonModifiers(event.buttons());
  modifiers = KeyModifiers(event.modifiers());
}

// A key event names no buttons: those of the last mouse event stand.
template <typename Widget>
void InputStateManaged<Widget>::NoteKey(const QKeyEvent& event) {
  modifiers = KeyModifiers(event.modifiers());
  if (event.key() != Qt::Key_Space) return;
  const bool stillDown = event.type() == QEvent::KeyPress || event.isAutoRepeat();
  keys = stillDown ? keys | kSpaceDown : keys & ~std::uint32_t{kSpaceDown};
}

template class InputStateManaged<QWidget>;

}  // namespace qRVADM
