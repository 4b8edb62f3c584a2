// Plug-ins' top-levels in the host's look, and how they hear of a change of brightness.
#include <QApplication>
#include <QColor>
#include <QEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <vector>

#include "HostWindow.h"
#include "Look.h"
#include "PluginWidgets.h"
#include "QtManager.h"
#include "Theme.h"
#include "ThemePalette.h"

namespace RVADMQtManager {
namespace {

using WidgetList = std::vector<QPointer<QWidget>>;

constexpr char kKeepsItsLook[] = "_host_keeps_its_look";

WidgetList& awareTopLevels() {
  static WidgetList inOrder;
  return inOrder;
}

void remember(QWidget& topLevel) {
  WidgetList& aware = awareTopLevels();
  aware.erase(std::remove(aware.begin(), aware.end(), nullptr), aware.end());
  if (std::find(aware.begin(), aware.end(), &topLevel) == aware.end()) aware.emplace_back(&topLevel);
}

// The host's window, the aware top-levels in the order in which they became so, and then all others.
std::vector<QWidget*> topLevelsInOrder() {
  std::vector<QWidget*> found;
  const auto add = [&found](QWidget* widget) {
    if (widget == nullptr || !widget->isWindow()) return;
    if (std::find(found.begin(), found.end(), widget) == found.end()) found.push_back(widget);
  };
  add(host::hostWindow());
  for (const QPointer<QWidget>& widget : awareTopLevels()) add(widget);
  for (QWidget* widget : QApplication::topLevelWidgets()) add(widget);
  return found;
}

// Children before their parents, so that a dialog that hears of the change finds its items changed.
void collect(QWidget& widget, WidgetList& all) {
  if (widget.property(kKeepsItsLook).toBool()) return;
  for (QObject* child : widget.children()) {
    QWidget* part = qobject_cast<QWidget*>(child);
    if (part != nullptr && !part->isWindow()) collect(*part, all);
  }
  all.emplace_back(&widget);
}

// Handlers may delete any widget: those that are gone when their turn comes are left out.
void deliver() {
  WidgetList all;
  for (QWidget* topLevel : topLevelsInOrder()) collect(*topLevel, all);
  for (const QPointer<QWidget>& widget : all) {
    if (widget == nullptr) continue;
    QEvent event(static_cast<QEvent::Type>(kThemeChangedEvent));
    QCoreApplication::sendEvent(widget, &event);
  }
}

QPalette paletteAround(const QWidget* widget) {
  return widget != nullptr ? widget->palette() : host::themePalette(host::theme());
}

}  // namespace

void QtManager::MakeDVAStyleAware(QWidget* topLevel, bool followTheme) {
  host::bringLook();
  if (topLevel == nullptr) return;
  host::markPluginDialog(*topLevel);
  remember(*topLevel);
  const bool kept = topLevel->property(kKeepsItsLook).toBool();
  if (kept == !followTheme) return;
  topLevel->setProperty(kKeepsItsLook, !followTheme);
  topLevel->setPalette(followTheme ? QPalette() : host::themePalette(host::theme()));
}

bool QtManager::IsInDarkMode(const QWidget* widget) {
  if (widget == nullptr) return host::theme() == host::Theme::Dark;
  return widget->palette().color(QPalette::Window).lightness() < 128;
}

QColor QtManager::GetControlColor(const QWidget* widget, EControlColor, bool enabled) {
  const QPalette::ColorGroup group = enabled ? QPalette::Active : QPalette::Disabled;
  return paletteAround(widget).color(group, QPalette::Midlight);
}

void QtManager::UpdateUIColorScheme() {
  static bool delivering = false;
  host::bringLook();
  if (delivering || qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) return;
  const QScopedValueRollback<bool> guard(delivering, true);
  host::Theme delivered = host::theme();
  deliver();
  while (delivered != host::theme()) {  // a handler chose another one meanwhile
    delivered = host::theme();
    deliver();
  }
}

}  // namespace RVADMQtManager
