// Where dialogs stand: what they are parented on, and whether a widget is part of a palette.
#include <QApplication>
#include <QVariant>
#include <QWidget>

#include "HostWindow.h"
#include "PluginWidgets.h"
#include "QtManager.h"

namespace RVADMQtManager {

QWidget* QtManager::GetModalDialogParent(QWidget* hint, bool modal) {
  if (hint != nullptr && hint->window()->isVisible()) return hint->window();
  QWidget* up = modal ? QApplication::activeModalWidget() : nullptr;
  return up != nullptr ? up : host::hostWindow();
}

void QtManager::RegisterPalette(QWidget* palette) {
  if (palette != nullptr) host::markPalette(*palette);
}

bool QtManager::IsOnNonModalDialog(const QWidget* widget) {
  return widget != nullptr && host::isInPalette(*widget);
}

}  // namespace RVADMQtManager
