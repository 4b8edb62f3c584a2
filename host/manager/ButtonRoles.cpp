#include "ButtonRoles.h"

#include <QCoreApplication>
#include <QDynamicPropertyChangeEvent>
#include <QPushButton>

namespace host {

void ButtonRoles::watch(QWidget& widget) {
  if (qobject_cast<QPushButton*>(&widget) != nullptr) widget.installEventFilter(this);
}

void ButtonRoles::release(QWidget& widget) {
  widget.removeEventFilter(this);
}

bool ButtonRoles::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::DynamicPropertyChange) return false;
  if (static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName().startsWith("_rvadm_is")) {
    QEvent restyled(QEvent::StyleChange);  // the button has its size in store until then
    QCoreApplication::sendEvent(watched, &restyled);
  }
  return false;
}

}  // namespace host
