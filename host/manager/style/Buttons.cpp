#include "Buttons.h"

#include <QAbstractItemView>
#include <QStyleOption>
#include <QVariant>
#include <QWidget>

#include "Measures.h"
#include "QtManager.h"
#include "Shapes.h"
#include "Tones.h"

namespace host::look {
namespace {

using RVADMQtManager::kIsDefaultProperty;
using RVADMQtManager::kIsModalButtonProperty;
constexpr double kOnShare = 0.2;

QColor panelFill(const QStyleOptionButton& option, const Tones& tones, bool byDefault) {
  if (byDefault) return reactingAccent(tones, option);
  const QColor face = isOn(option) ? mixed(tones.face, tones.faceText, kOnShare) : tones.face;
  return reacting(face, tones.faceText, option);
}

void buttonRing(const Paint& paint, const Tones& tones, bool byDefault) {
  const Measures measures(&paint.option, paint.widget);
  const QRectF rect = paint.option.rect;
  outlineRounded(paint.painter, rect, measures.radius(), tones.ring, 2);
  if (byDefault) {
    outlineRounded(paint.painter, rect.adjusted(2, 2, -2, -2), measures.radius() - 1, tones.onAccent);
  }
}

struct IndicatorTones {
  QColor fill, outline, mark;
};

IndicatorTones indicatorTones(const Paint& paint, bool filled) {
  const Tones tones(paint.option);
  if (!filled) {
    const QColor outline =
        isUnderPointer(paint.option) ? mixed(tones.outline, tones.text, 0.4) : tones.outline;
    return {reacting(tones.field, tones.text, paint.option), outline, tones.text};
  }
  const QColor accent = reactingAccent(tones, paint.option);
  return {accent, accent, tones.onAccent};
}

// Of a view that selects one row at a time the accent says where the keyboard is.
bool isOnlyChoice(const QWidget* widget) {
  const auto* view = qobject_cast<const QAbstractItemView*>(widget);
  return view != nullptr && view->selectionMode() == QAbstractItemView::SingleSelection;
}

}  // namespace

bool looksDefault(const QStyleOptionButton& option, const QWidget* widget) {
  const QVariant said = widget != nullptr ? widget->property(kIsDefaultProperty) : QVariant();
  if (said.isValid() || closesModalDialog(widget)) return said.toBool();
  return (option.features & QStyleOptionButton::DefaultButton) != 0;
}

bool closesModalDialog(const QWidget* widget) {
  return widget != nullptr && widget->property(kIsModalButtonProperty).toBool();
}

void pushButton(const Paint& paint) {
  paint.style.drawControl(QStyle::CE_PushButtonBevel, &paint.option, &paint.painter, paint.widget);
  paint.style.drawControl(QStyle::CE_PushButtonLabel, &paint.option, &paint.painter, paint.widget);
}

void pushButtonPanel(const Paint& paint) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&paint.option);
  if (button == nullptr) return;
  const Tones tones(*button);
  const bool byDefault = looksDefault(*button, paint.widget);
  const bool plain = (button->features & QStyleOptionButton::Flat) != 0 && !byDefault;
  const bool idle = !isUnderPointer(*button) && !isPressed(*button) && !isOn(*button);
  if (!plain || !idle) {
    const QColor fill = panelFill(*button, tones, byDefault);
    framed(paint.painter, button->rect, Measures(button, paint.widget).radius(), fill,
           byDefault || plain ? fill : tones.outline);
  }
  if (showsRing(*button)) buttonRing(paint, tones, byDefault);
}

void pushButtonLabel(const Paint& paint) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&paint.option);
  if (button == nullptr) return;
  QStyleOptionButton label(*button);
  if (looksDefault(*button, paint.widget)) {
    label.palette.setBrush(QPalette::ButtonText, label.palette.brush(QPalette::HighlightedText));
  }
  label.state &= ~QStyle::State_HasFocus;
  paint.plain.drawControl(QStyle::CE_PushButtonLabel, &label, &paint.painter, paint.widget);
}

void toolButtonPanel(const Paint& paint) {
  const Tones tones(paint.option);
  QColor veil = tones.text;
  const bool on = isOn(paint.option);
  if (!on && !isUnderPointer(paint.option) && !isPressed(paint.option)) return;
  veil.setAlphaF(isPressed(paint.option) ? 0.24 : on ? 0.2 : 0.1);
  const double radius = Measures(&paint.option, paint.widget).radius();
  fillRounded(paint.painter, paint.option.rect, radius, veil);
  if (on) outlineRounded(paint.painter, paint.option.rect, radius, tones.outline);
}

void checkBoxIndicator(const Paint& paint) {
  const bool between = (paint.option.state & QStyle::State_NoChange) != 0;
  const IndicatorTones tones = indicatorTones(paint, isOn(paint.option) || between);
  const QRectF box = paint.option.rect;
  framed(paint.painter, box, box.width() * 0.18, tones.fill, tones.outline);
  if (between) return dash(paint.painter, box, tones.mark);
  if (isOn(paint.option)) checkMark(paint.painter, box, tones.mark);
}

void radioButtonIndicator(const Paint& paint) {
  const IndicatorTones tones = indicatorTones(paint, isOn(paint.option));
  const QRectF box = paint.option.rect;
  framed(paint.painter, box, box.width() / 2, tones.fill, tones.outline);
  if (!isOn(paint.option)) return;
  const double inset = box.width() * 0.31;
  fillRounded(paint.painter, box.adjusted(inset, inset, -inset, -inset), box.width() / 2, tones.mark);
}

void focusRing(const Paint& paint) {
  if (paint.widget != nullptr && !paint.widget->window()->testAttribute(Qt::WA_KeyboardFocusChange)) return;
  const Tones tones(paint.option);
  const bool selected = (paint.option.state & QStyle::State_Selected) != 0;
  if (selected && isOnlyChoice(paint.widget)) return;
  outlineRounded(paint.painter, paint.option.rect, Measures(&paint.option, paint.widget).radius(),
                 selected ? tones.onAccent : tones.ring);
}

}  // namespace host::look
