#include "ControlStyle.h"

#include <QAbstractItemView>
#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOption>
#include <QTabBar>

#include "Glyphs.h"
#include "Measures.h"
#include "PaintTable.h"
#include "Sizes.h"
#include "Theme.h"
#include "ThemePalette.h"

namespace host {
namespace {

// These are told of the pointer over them only if they ask for it; the style below does so for the others.
bool reactsToPointer(const QWidget* widget) {
  return qobject_cast<const QLineEdit*>(widget) != nullptr ||
         qobject_cast<const QTabBar*>(widget) != nullptr ||
         qobject_cast<const QHeaderView*>(widget) != nullptr;
}

}  // namespace

ControlStyle::ControlStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ControlStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (reactsToPointer(widget)) widget->setAttribute(Qt::WA_Hover);
  if (auto* view = qobject_cast<QAbstractItemView*>(widget)) view->viewport()->setAttribute(Qt::WA_Hover);
  activeFields_.watch(*widget);
  buttonRoles_.watch(*widget);
}

void ControlStyle::unpolish(QWidget* widget) {
  activeFields_.release(*widget);
  buttonRoles_.release(*widget);
  QProxyStyle::unpolish(widget);
}

QPalette ControlStyle::standardPalette() const {
  return themePalette(theme());
}

void ControlStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
  const look::PaintFunction paint = look::painterOf(element);
  if (paint == nullptr) return QProxyStyle::drawPrimitive(element, option, painter, widget);
  paint({*option, *painter, widget, *this, *baseStyle()});
}

void ControlStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  const look::PaintFunction paint = look::painterOf(element);
  if (paint == nullptr) return QProxyStyle::drawControl(element, option, painter, widget);
  paint({*option, *painter, widget, *this, *baseStyle()});
}

void ControlStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  const look::PaintFunction paint = look::painterOf(control);
  if (paint == nullptr) return QProxyStyle::drawComplexControl(control, option, painter, widget);
  paint({*option, *painter, widget, *this, *baseStyle()});
}

QRect ControlStyle::subElementRect(SubElement element, const QStyleOption* option,
                                   const QWidget* widget) const {
  const QRect rect =
      element == SE_LineEditContents ? QRect() : QProxyStyle::subElementRect(element, option, widget);
  const bool aroundText = element == SE_CheckBoxFocusRect || element == SE_RadioButtonFocusRect;
  if (aroundText && !rect.isEmpty()) return rect.adjusted(-2, 0, 2, 0) & option->rect;
  if (element != SE_LineEditContents) return rect;
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  if (frame == nullptr || frame->lineWidth == 0) return option->rect;
  const int side = look::Measures(option, widget).padding();
  return option->rect.adjusted(side, 1, -side, -1);
}

QRect ControlStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                   const QWidget* widget) const {
  const auto placed = look::partOf(control, *option, part, widget);
  return placed ? *placed : QProxyStyle::subControlRect(control, option, part, widget);
}

QSize ControlStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                     const QWidget* widget) const {
  if (const auto size = look::sizeOf(type, option, contents, widget)) return *size;
  QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  if (type == CT_ItemViewItem) size = size.expandedTo({0, look::Measures(option, widget).row()});
  return size;
}

int ControlStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  const auto length = look::metricOf(metric, option, widget);
  return length ? *length : QProxyStyle::pixelMetric(metric, option, widget);
}

int ControlStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* answer) const {
  const auto known = look::hintOf(hint);
  return known ? *known : QProxyStyle::styleHint(hint, option, widget, answer);
}

QIcon ControlStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                 const QWidget* widget) const {
  const QIcon icon = look::glyph(which);
  return !icon.isNull() ? icon : QProxyStyle::standardIcon(which, option, widget);
}

QPixmap ControlStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                          const QStyleOption*) const {
  if (mode != QIcon::Disabled) return pixmap;
  QPixmap faded(pixmap.size());
  faded.setDevicePixelRatio(pixmap.devicePixelRatio());
  faded.fill(Qt::transparent);
  QPainter painter(&faded);
  painter.setOpacity(0.4);
  painter.drawPixmap(0, 0, pixmap);
  return faded;
}

}  // namespace host
