// A view is a widget, and a window a widget without a parent. Whoever stands in a view shares one window of
// the system with it, so nothing here asks a child widget for a window of its own.
#include "NativeView.h"

#include <QRect>
#include <QWidget>
#include <QWindow>
#include <cmath>

#include "HostWindow.h"

namespace {

QWidget* widgetOf(NativeView* view) {
  return reinterpret_cast<QWidget*>(view);
}

QWidget* widgetOf(NativeWindow* window) {
  return reinterpret_cast<QWidget*>(window);
}

// Qt hides a shown window to change its flags, which loses its place on the screen and ends the modal state.
// The system takes them as they come.
void changeFlags(QWidget& window, Qt::WindowFlags flags) {
  if (flags == window.windowFlags()) return;
  if (QWindow* handle = window.windowHandle()) handle->setFlags(flags);
  window.overrideWindowFlags(flags);
}

bool takesKeyboard(const QWidget& widget) {
  return widget.focusPolicy() != Qt::NoFocus || widget.focusProxy() != nullptr;
}

}  // namespace

NativeView* NativeViewOf(QWidget* widget) {
  return reinterpret_cast<NativeView*>(widget);
}

NativeWindow* NativeWindowOf(QWidget* widget) {
  QWidget* window = widget == nullptr ? nullptr : widget->window();
  if (window == nullptr || window->windowHandle() == nullptr) return nullptr;
  return reinterpret_cast<NativeWindow*>(window);
}

NativeWindow* MainWindow() {
  return NativeWindowOf(host::hostWindow());
}

void MakeKeyWindow(NativeWindow* window) {
  if (window != nullptr) widgetOf(window)->activateWindow();
}

bool MakeFirstResponder(NativeWindow* window, NativeView* view) {
  if (window == nullptr || view == nullptr) return false;
  QWidget& widget = *widgetOf(view);
  if (widget.window() != widgetOf(window) || !takesKeyboard(widget)) return false;
  widget.setFocus(Qt::OtherFocusReason);
  return true;
}

NativeView* Superview(NativeView* view) {
  if (view == nullptr || widgetOf(view)->isWindow()) return nullptr;
  return NativeViewOf(widgetOf(view)->parentWidget());
}

void AddSubview(NativeView* parent, NativeView* child) {
  if (parent == nullptr || child == nullptr) return;
  QWidget& widget = *widgetOf(child);
  const bool visible = widget.isVisible();
  widget.setParent(widgetOf(parent));
  widget.raise();
  if (visible) widget.show();
}

void RemoveFromSuperview(NativeView* view) {
  if (view != nullptr) widgetOf(view)->setParent(nullptr);
}

void SendToBack(NativeView* view) {
  if (view != nullptr) widgetOf(view)->lower();
}

void SetFrame(NativeView* view, double x, double y, double width, double height) {
  if (view != nullptr) widgetOf(view)->setGeometry(QRectF(x, y, width, height).toRect());
}

// Whether windows come up with an animation is the window manager's business alone.
void SetAnimationBehavior(NativeWindow*, int) {}

unsigned StyleMask(NativeWindow* window) {
  if (window == nullptr) return 0;
  return widgetOf(window)->windowFlags().testFlag(Qt::MSWindowsFixedSizeDialogHint) ? 0 : kResizableWindow;
}

void SetStyleMask(NativeWindow* window, unsigned mask) {
  if (window == nullptr) return;
  const bool resizable = (mask & kResizableWindow) != 0;
  QWidget& widget = *widgetOf(window);
  Qt::WindowFlags flags = widget.windowFlags();
  changeFlags(widget, flags.setFlag(Qt::MSWindowsFixedSizeDialogHint, !resizable));
}

void HideStandardWindowButton(NativeWindow* window, int button) {
  constexpr Qt::WindowType kHints[kStandardWindowButtons] = {
      Qt::WindowCloseButtonHint, Qt::WindowMinimizeButtonHint, Qt::WindowMaximizeButtonHint};
  if (window == nullptr || button < 0 || button >= kStandardWindowButtons) return;
  QWidget& widget = *widgetOf(window);
  // The hints count only on a window that has said which it wants.
  Qt::WindowFlags flags = widget.windowFlags() | Qt::CustomizeWindowHint;
  changeFlags(widget, flags.setFlag(kHints[button], false));
}
