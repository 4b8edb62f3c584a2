#include "QAIPaletteWidget.h"

#include "NativeView.h"

namespace qRVADM {

// The host's view is a widget of the same process, and this is a child of it. A tool window it is not: that
// would stand beside the panel, as a window of its own. As a subwindow it keeps to itself what a tool window
// would: Tab and the shortcuts of its items.
QAIPaletteWidget::QAIPaletteWidget(NativeView* hostView) {
  setAttribute(Qt::WA_DontCreateNativeAncestors);
  setAutoFillBackground(true);
  AddSubview(hostView, NativeViewOf(this));
  setWindowFlags(Qt::SubWindow);
}

QAIPaletteWidget::~QAIPaletteWidget() {
  const QList<QWidget*> dialogs = findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  for (QWidget* dialog : dialogs) RemoveFromSuperview(NativeViewOf(dialog));
  RemoveFromSuperview(NativeViewOf(this));
}

void QAIPaletteWidget::SetNativeFrame(const QRect& frame) {
  if (frame != geometry()) SetFrame(NativeViewOf(this), frame.x(), frame.y(), frame.width(), frame.height());
}

bool QAIPaletteWidget::focusNextPrevChild(bool next) {
  const QWidget* focused = focusWidget();
  if (QWidget::focusNextPrevChild(next)) return true;
  return focused != nullptr && (focused->focusPolicy() & Qt::TabFocus) != 0;
}

}  // namespace qRVADM
