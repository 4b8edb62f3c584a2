#include "DialogAnswerer.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include "DialogAnswer.h"

namespace host {
namespace {

QtMessageHandler nextHandler = nullptr;

// Qt without a display would tell the user that it has no window manager to ask for a size.
void dropSizeHints(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (!text.contains("propagateSizeHints")) nextHandler(type, context, text);
}

}  // namespace

DialogAnswerer::DialogAnswerer(Host& host) : host_(host) {
  nextHandler = qInstallMessageHandler(dropSizeHints);
  QCoreApplication::instance()->installEventFilter(this);
}

DialogAnswerer::~DialogAnswerer() {
  qInstallMessageHandler(nextHandler);
}

bool DialogAnswerer::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Show || event->spontaneous() || !watched->isWidgetType()) return false;
  auto& widget = *static_cast<QWidget*>(watched);
  if (!widget.isWindow() || !widget.isModal()) return false;
  for (QObject* child : children()) {
    auto* answer = static_cast<DialogAnswer*>(child);
    if (!answer->isFor(widget)) continue;
    answer->startAnew();
    return false;
  }
  new DialogAnswer(host_, widget, this);
  return false;
}

}  // namespace host
