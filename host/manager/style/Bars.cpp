#include "Bars.h"

#include <QStyleOption>
#include <QTabBar>

#include "Measures.h"
#include "Shapes.h"
#include "Tones.h"

namespace host::look {
namespace {

enum class Edge { Top, Bottom, Left, Right };

QRect alongEdge(const QRect& rect, Edge edge, int width) {
  switch (edge) {
    case Edge::Top:
      return {rect.left(), rect.top(), rect.width(), width};
    case Edge::Bottom:
      return {rect.left(), rect.bottom() + 1 - width, rect.width(), width};
    case Edge::Left:
      return {rect.left(), rect.top(), width, rect.height()};
    case Edge::Right:
      return {rect.right() + 1 - width, rect.top(), width, rect.height()};
  }
  return {};
}

// Away from the page that the tabs belong to.
Edge outerEdge(QTabBar::Shape shape) {
  switch (shape) {
    case QTabBar::RoundedSouth:
    case QTabBar::TriangularSouth:
      return Edge::Bottom;
    case QTabBar::RoundedWest:
    case QTabBar::TriangularWest:
      return Edge::Left;
    case QTabBar::RoundedEast:
    case QTabBar::TriangularEast:
      return Edge::Right;
    default:
      return Edge::Top;
  }
}

Edge opposite(Edge edge) {
  switch (edge) {
    case Edge::Top:
      return Edge::Bottom;
    case Edge::Bottom:
      return Edge::Top;
    case Edge::Left:
      return Edge::Right;
    case Edge::Right:
      return Edge::Left;
  }
  return edge;
}

}  // namespace

void barGround(const Paint& paint) {
  paint.painter.fillRect(paint.option.rect, paint.option.palette.brush(QPalette::Window));
}

void menuBarPanel(const Paint& paint) {
  barGround(paint);
  paint.painter.fillRect(alongEdge(paint.option.rect, Edge::Bottom, 1), Tones(paint.option).line);
}

void menuBarItem(const Paint& paint) {
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(&paint.option);
  if (item == nullptr) return;
  menuBarPanel(paint);
  const Tones tones(*item);
  const bool chosen = isEnabled(*item) && (item->state & QStyle::State_Selected) != 0;
  const bool open = chosen && (item->state & QStyle::State_Sunken) != 0;
  if (chosen) {
    fillRounded(paint.painter, QRectF(item->rect).adjusted(1, 1, -1, -1),
                Measures(item, paint.widget).radius(),
                open ? tones.accent : mixed(tones.ground, tones.text, 0.12));
  }
  const bool underline =
      paint.style.styleHint(QStyle::SH_UnderlineShortcut, item, paint.widget, nullptr) != 0;
  const int flags = Qt::AlignCenter | Qt::TextDontClip | Qt::TextSingleLine |
                    (underline ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
  paint.style.drawItemText(&paint.painter, item->rect, flags, item->palette, isEnabled(*item), item->text,
                           open ? QPalette::HighlightedText : QPalette::WindowText);
}

void toolBar(const Paint& paint) {
  barGround(paint);
  const bool level = (paint.option.state & QStyle::State_Horizontal) != 0;
  paint.painter.fillRect(alongEdge(paint.option.rect, level ? Edge::Bottom : Edge::Right, 1),
                         Tones(paint.option).line);
}

void toolBarHandle(const Paint& paint) {
  const bool level = (paint.option.state & QStyle::State_Horizontal) != 0;
  const QRect rect = paint.option.rect;
  const QPoint middle = rect.center();
  const QColor colour = Tones(paint.option).outline;
  for (const int step : {-6, -3, 0, 3, 6}) {
    const QRectF dot(middle.x() + (level ? 0 : step), middle.y() + (level ? step : 0), 1.5, 1.5);
    fillRounded(paint.painter, dot, 0.75, colour);
  }
}

void toolBarSeparator(const Paint& paint) {
  const bool level = (paint.option.state & QStyle::State_Horizontal) != 0;
  const QRect rect = paint.option.rect;
  const QColor colour = Tones(paint.option).outline;
  if (level) {
    paint.painter.fillRect(rect.center().x(), rect.y() + 3, 1, rect.height() - 6, colour);
  } else {
    paint.painter.fillRect(rect.x() + 3, rect.center().y(), rect.width() - 6, 1, colour);
  }
}

void statusBarPanel(const Paint& paint) {
  barGround(paint);
  paint.painter.fillRect(alongEdge(paint.option.rect, Edge::Top, 1), Tones(paint.option).line);
}

void tabShape(const Paint& paint) {
  const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(&paint.option);
  if (tab == nullptr) return;
  const Tones tones(*tab);
  const bool selected = (tab->state & QStyle::State_Selected) != 0;
  const Edge outer = outerEdge(tab->shape);
  const bool level = outer == Edge::Top || outer == Edge::Bottom;
  if (selected) {
    paint.painter.fillRect(tab->rect, tones.ground);
    paint.painter.fillRect(alongEdge(tab->rect, outer, 2), isEnabled(*tab) ? tones.ring : tones.outline);
    return;
  }
  paint.painter.fillRect(tab->rect, reacting(tones.groove, tones.text, *tab));
  paint.painter.fillRect(alongEdge(tab->rect, opposite(outer), 1), tones.line);
  paint.painter.fillRect(alongEdge(tab->rect, level ? Edge::Right : Edge::Bottom, 1), tones.line);
}

void tabBarBase(const Paint& paint) {
  const auto* base = qstyleoption_cast<const QStyleOptionTabBarBase*>(&paint.option);
  if (base == nullptr) return;
  const Edge inner = opposite(outerEdge(base->shape));
  paint.painter.fillRect(base->rect, Tones(*base).groove);
  paint.painter.fillRect(alongEdge(base->rect, inner, 1), Tones(*base).line);
}

void tabWidgetFrame(const Paint& paint) {
  barGround(paint);
  outlineRounded(paint.painter, paint.option.rect, 0, Tones(paint.option).line);
}

void tabClose(const Paint& paint) {
  const Tones tones(paint.option);
  if (isUnderPointer(paint.option) || isPressed(paint.option)) {
    fillRounded(paint.painter, paint.option.rect, Measures(&paint.option, paint.widget).radius(),
                mixed(tones.ground, tones.text, isPressed(paint.option) ? 0.3 : 0.18));
  }
  crossMark(paint.painter, QRectF(paint.option.rect).adjusted(1, 1, -1, -1),
            isUnderPointer(paint.option) ? tones.text : tones.faint);
}

void dockTitle(const Paint& paint) {
  const auto* dock = qstyleoption_cast<const QStyleOptionDockWidget*>(&paint.option);
  if (dock == nullptr) return;
  if (dock->verticalTitleBar) {
    return paint.plain.drawControl(QStyle::CE_DockWidgetTitle, dock, &paint.painter, paint.widget);
  }
  const Tones tones(*dock);
  const Measures measures(dock, paint.widget);
  paint.painter.fillRect(dock->rect, tones.groove);
  paint.painter.fillRect(alongEdge(dock->rect, Edge::Bottom, 1), tones.line);
  const QRect room = paint.style.subElementRect(QStyle::SE_DockWidgetTitleBarText, dock, paint.widget)
                         .adjusted(measures.padding(), 0, -measures.padding(), 0);
  const QString title = dock->fontMetrics.elidedText(dock->title, Qt::ElideRight, room.width());
  paint.style.drawItemText(&paint.painter, room, Qt::AlignLeading | Qt::AlignVCenter | Qt::TextShowMnemonic,
                           dock->palette, isEnabled(*dock), title, QPalette::WindowText);
}

void dockFrame(const Paint& paint) {
  outlineRounded(paint.painter, paint.option.rect, 0, Tones(paint.option).line);
}

}  // namespace host::look
