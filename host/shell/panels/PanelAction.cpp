#include "PanelAction.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>

#include "Contexts.h"
#include "PluginDock.h"

namespace host {
namespace {

template <typename Widget>
const Widget* around(const QWidget* widget) {
  while (widget != nullptr && qobject_cast<const Widget*>(widget) == nullptr) widget = widget->parentWidget();
  return static_cast<const Widget*>(widget);
}

bool isInPanel(const QWidget* widget) {
  while (widget != nullptr && dynamic_cast<const PluginDock*>(widget) == nullptr) {
    widget = widget->parentWidget();
  }
  return widget != nullptr;
}

QString rowName(const QModelIndex& row) {
  const QString shown = row.data(Qt::DisplayRole).toString();
  return shown.isEmpty() ? row.data(Qt::AccessibleTextRole).toString() : shown;
}

// Without the "&" of a mnemonic.
QString plainText(const QString& text) {
  QString plain = text;
  plain.replace("&&", QChar(0)).remove('&').replace(QChar(0), '&');
  return plain;
}

}  // namespace

PanelAction::PanelAction(Contexts& contexts) : contexts_(contexts) {
  contexts_.nameOfStep = [this] { return name(); };
  QCoreApplication::instance()->installEventFilter(this);
}

PanelAction::~PanelAction() {
  contexts_.nameOfStep = nullptr;
}

bool PanelAction::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
      if (watched->isWidgetType()) used_ = static_cast<QWidget*>(watched);
      break;
    default:
      break;
  }
  return false;
}

std::string PanelAction::name() const {
  if (!isInPanel(used_)) return {};
  if (const auto* button = around<QAbstractButton>(used_)) return plainText(button->text()).toStdString();
  const auto* list = around<QAbstractItemView>(used_);
  return list == nullptr ? std::string() : rowName(list->currentIndex()).toStdString();
}

}  // namespace host
