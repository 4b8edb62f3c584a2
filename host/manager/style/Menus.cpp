#include "Menus.h"

#include <QIcon>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>

#include "Measures.h"
#include "Shapes.h"
#include "Tones.h"

namespace host::look {
namespace {

constexpr int kSeparatorHeight = 7;

bool isSeparator(const QStyleOptionMenuItem& item) {
  return item.menuItemType == QStyleOptionMenuItem::Separator;
}

bool isChosen(const QStyleOptionMenuItem& item) {
  return isEnabled(item) && (item.state & QStyle::State_Selected) != 0;
}

Measures measuresOf(const QStyleOptionMenuItem& item) {
  return Measures(QFontMetrics(item.font));
}

// The column in front of the texts, for check marks and icons.
int columnWidth(const QStyleOptionMenuItem& item) {
  return std::max(measuresOf(item).menuColumn(), item.maxIconWidth + 4);
}

QColor inkOf(const QStyleOptionMenuItem& item) {
  return item.palette.color(isChosen(item) ? QPalette::HighlightedText : QPalette::Text);
}

void separator(const Paint& paint, const QStyleOptionMenuItem& item) {
  const int side = measuresOf(item).padding();
  const QRect rect = item.rect.adjusted(side, 0, -side, 0);
  const Tones tones(item);
  paint.painter.fillRect(rect.x(), rect.center().y(), rect.width(), 1,
                         mixed(tones.ground, tones.outline, 0.6));
}

void mark(const Paint& paint, const QStyleOptionMenuItem& item, const QRect& column) {
  const bool withIcon = !item.icon.isNull();
  if (item.checked && withIcon) {
    QColor veil = inkOf(item);
    veil.setAlphaF(0.2);
    fillRounded(paint.painter, QRectF(column).adjusted(1, 1, -1, -1), measuresOf(item).radius(), veil);
  }
  if (withIcon) {
    const QIcon::Mode mode = isEnabled(item) ? QIcon::Normal : QIcon::Disabled;
    item.icon.paint(&paint.painter, column, Qt::AlignCenter, mode, item.checked ? QIcon::On : QIcon::Off);
  } else if (item.checked) {
    const int side = measuresOf(item).indicator();
    QRectF box(0, 0, side, side);
    box.moveCenter(QRectF(column).center());
    if (item.checkType == QStyleOptionMenuItem::Exclusive) {
      fillRounded(paint.painter, box.adjusted(3.5, 3.5, -3.5, -3.5), side / 2.0, inkOf(item));
    } else {
      checkMark(paint.painter, box, inkOf(item));
    }
  }
}

void texts(const Paint& paint, const QStyleOptionMenuItem& item, const QRect& room) {
  const bool underline =
      paint.style.styleHint(QStyle::SH_UnderlineShortcut, &item, paint.widget, nullptr) != 0;
  int flags = Qt::AlignVCenter | Qt::AlignLeading | Qt::TextDontClip | Qt::TextSingleLine;
  flags |= static_cast<int>(underline ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
  const PainterState state(paint.painter);
  paint.painter.setLayoutDirection(item.direction);
  QFont font = item.font;
  if (item.menuItemType == QStyleOptionMenuItem::DefaultItem) font.setBold(true);
  paint.painter.setFont(font);
  paint.painter.setPen(inkOf(item));
  paint.painter.drawText(QStyle::visualRect(item.direction, item.rect, room), flags,
                         item.text.section(QLatin1Char('\t'), 0, 0));
  const QRect keys(room.right() + 1 - item.tabWidth, room.y(), item.tabWidth, room.height());
  paint.painter.drawText(QStyle::visualRect(item.direction, item.rect, keys), flags,
                         item.text.section(QLatin1Char('\t'), 1));
}

}  // namespace

void menuPanel(const Paint& paint) {
  const Tones tones(paint.option);
  paint.painter.fillRect(paint.option.rect, tones.ground);
  outlineRounded(paint.painter, paint.option.rect, 0, tones.outline);
}

void menuItem(const Paint& paint) {
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(&paint.option);
  if (item == nullptr) return;
  if (isSeparator(*item)) return separator(paint, *item);
  if (isChosen(*item)) paint.painter.fillRect(item->rect, Tones(*item).accent);
  const Measures measures = measuresOf(*item);
  const QRect rect = item->rect;
  const QRect column(rect.x(), rect.y(), columnWidth(*item), rect.height());
  mark(paint, *item, QStyle::visualRect(item->direction, rect, column));
  texts(paint, *item, rect.adjusted(column.width(), 0, -measures.text(), 0));
  if (item->menuItemType != QStyleOptionMenuItem::SubMenu) return;
  const QRect end(rect.right() - measures.text(), rect.y(), measures.text(), rect.height());
  chevron(paint.painter, QStyle::visualRect(item->direction, rect, end),
          item->direction == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow, measures.chevron() * 0.9,
          inkOf(*item));
}

QSize menuItemSize(const QStyleOptionMenuItem& item, const QSize& text, const QWidget*) {
  if (isSeparator(item)) return {text.width(), kSeparatorHeight};
  const Measures measures = measuresOf(item);
  const int gap = item.text.contains(QLatin1Char('\t')) ? measures.text() : 0;  // before the shortcut
  return {text.width() + columnWidth(item) + gap + measures.text(),
          std::max(text.height(), measures.text() + measures.padding() * 2)};
}

}  // namespace host::look
