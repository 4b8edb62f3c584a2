#include "ActiveFields.h"

#include <QAbstractSpinBox>
#include <QFocusEvent>
#include <QIcon>
#include <QLineEdit>
#include <QVariant>
#include <QWidget>

#include "QtManager.h"
#include "ThemePalette.h"

namespace host {
namespace {

using RVADMQtManager::kActiveInputIconProperty;
using RVADMQtManager::kInactiveInputIconProperty;
constexpr char kIcon[] = "icon";
constexpr char kRecoloured[] = "_host_recoloured";

bool holdsIcon(const QVariant& value) {
  return value.userType() == QMetaType::QIcon;
}

void showActiveIcon(QObject& picture) {
  const QVariant active = picture.property(kActiveInputIconProperty);
  if (!holdsIcon(active) || holdsIcon(picture.property(kInactiveInputIconProperty))) return;
  picture.setProperty(kInactiveInputIconProperty, picture.property(kIcon));
  picture.setProperty(kIcon, active);
}

void showInactiveIcon(QObject& picture) {
  const QVariant inactive = picture.property(kInactiveInputIconProperty);
  if (!holdsIcon(inactive)) return;
  picture.setProperty(kInactiveInputIconProperty, QVariant());
  picture.setProperty(kIcon, inactive);
}

void forEachPicture(const QWidget& field, void (*act)(QObject&)) {
  const QWidget* edit = qobject_cast<const QLineEdit*>(&field);
  if (edit == nullptr) edit = field.findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
  if (edit == nullptr) return;
  for (QObject* child : edit->children()) {
    if (child->isWidgetType() && child->metaObject()->indexOfProperty(kIcon) >= 0) act(*child);
  }
}

bool isReadOnly(const QWidget& field) {
  return field.property("readOnly").toBool();
}

void activate(QWidget& field) {
  if (isReadOnly(field)) return;
  if (!field.testAttribute(Qt::WA_SetPalette)) {
    field.setPalette(activeFieldPalette(field.palette()));
    field.setProperty(kRecoloured, true);
  }
  forEachPicture(field, showActiveIcon);
}

void deactivate(QWidget& field) {
  if (field.property(kRecoloured).toBool()) {
    field.setPalette(QPalette());
    field.setProperty(kRecoloured, QVariant());
  }
  forEachPicture(field, showInactiveIcon);
}

}  // namespace

void ActiveFields::watch(QWidget& widget) {
  if (qobject_cast<QLineEdit*>(&widget) == nullptr && qobject_cast<QAbstractSpinBox*>(&widget) == nullptr) {
    return;
  }
  widget.installEventFilter(this);
  if (widget.hasFocus()) activate(widget);
}

void ActiveFields::release(QWidget& widget) {
  widget.removeEventFilter(this);
  deactivate(widget);
}

bool ActiveFields::eventFilter(QObject* watched, QEvent* event) {
  auto* field = qobject_cast<QWidget*>(watched);
  if (field == nullptr) return false;
  if (event->type() == QEvent::FocusIn) activate(*field);
  // While its own menu is up the field keeps its place in the text, and its look.
  if (event->type() == QEvent::FocusOut &&
      static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
    deactivate(*field);
  }
  return false;
}

}  // namespace host
