#include "DialogWatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace host {

DialogWatch::DialogWatch() {
  QCoreApplication::instance()->installEventFilter(this);
}

bool DialogWatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show) {
    const auto* widget = qobject_cast<const QWidget*>(watched);
    hasSeen_ = hasSeen_ || (widget != nullptr && widget->isWindow() && widget->isModal());
  }
  return false;
}

}  // namespace host
