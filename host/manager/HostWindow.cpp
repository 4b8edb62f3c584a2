#include "HostWindow.h"

#include <QPointer>
#include <QWidget>

namespace host {
namespace {

QPointer<QWidget>& heldWindow() {
  static QPointer<QWidget> window;
  return window;
}

}  // namespace

void setHostWindow(QWidget* window) {
  heldWindow() = window;
}

QWidget* hostWindow() {
  return heldWindow();
}

}  // namespace host
