#include "HandBackKeyboard.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include "NativeView.h"

namespace qRVADM {

void HandBackKeyboard() {
  // Asked before the host's window comes up, which may bring a focus of its own.
  const QPointer<QWidget> focused = QApplication::focusWidget();
  NativeWindow* window = MainWindow();
  MakeKeyWindow(window);
  if (!focused) return;
  for (NativeView* view = Superview(NativeViewOf(focused)); view != nullptr; view = Superview(view)) {
    MakeFirstResponder(window, view);
    if (!focused) return;  // and with it, perhaps, the views above
  }
  focused->clearFocus();
}

}  // namespace qRVADM
