#include "PluginWidgets.h"

#include <QVariant>
#include <QWidget>

namespace host {
namespace {

constexpr char kPalette[] = "_host_palette";
constexpr char kPluginDialog[] = "_host_plugin_dialog";

bool isInMarked(const QWidget& widget, const char* mark) {
  for (const QWidget* part = &widget; part != nullptr; part = part->parentWidget()) {
    if (part->property(mark).toBool()) return true;
    if (part->isWindow()) return false;
  }
  return false;
}

}  // namespace

void markPalette(QWidget& palette) {
  palette.setProperty(kPalette, true);
}

bool isInPalette(const QWidget& widget) {
  return isInMarked(widget, kPalette);
}

void markPluginDialog(QWidget& topLevel) {
  topLevel.setProperty(kPluginDialog, true);
}

bool isInPluginDialog(const QWidget& widget) {
  return isInMarked(widget, kPluginDialog) || isInPalette(widget);
}

}  // namespace host
