#include "Items.h"

#include <QStyleOption>

#include "Measures.h"
#include "Shapes.h"
#include "Tones.h"

namespace host::look {

void itemPanel(const Paint& paint) {
  const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(&paint.option);
  if (item == nullptr) return;
  const Tones tones(*item);
  if (item->backgroundBrush.style() != Qt::NoBrush) paint.painter.fillRect(item->rect, item->backgroundBrush);
  if ((item->state & QStyle::State_Selected) != 0) {
    paint.painter.fillRect(item->rect, tones.accent);
  } else if (isUnderPointer(*item)) {
    QColor veil = tones.text;
    veil.setAlphaF(0.07);
    paint.painter.fillRect(item->rect, veil);
  }
}

void dropMark(const Paint& paint) {
  const QRect rect = paint.option.rect;
  const QColor colour = Tones(paint.option).ring;
  if (rect.height() <= 1) {
    paint.painter.fillRect(rect.x(), rect.y() - 1, rect.width(), 2, colour);
  } else {
    outlineRounded(paint.painter, rect, 1, colour);
  }
}

void branch(const Paint& paint) {
  if ((paint.option.state & QStyle::State_Children) == 0) return;
  const bool open = (paint.option.state & QStyle::State_Open) != 0;
  const Qt::ArrowType closed = paint.option.direction == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow;
  const bool selected = (paint.option.state & QStyle::State_Selected) != 0;
  const Tones tones(paint.option);
  chevron(paint.painter, paint.option.rect, open ? Qt::DownArrow : closed,
          Measures(&paint.option, paint.widget).chevron(), selected ? tones.onAccent : tones.faint);
}

void headerSection(const Paint& paint) {
  const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(&paint.option);
  if (header == nullptr) return;
  const Tones tones(*header);
  const QRect rect = header->rect;
  paint.painter.fillRect(rect, reacting(tones.groove, tones.text, *header));
  paint.painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, tones.outline);
  const bool last =
      header->position == QStyleOptionHeader::End || header->position == QStyleOptionHeader::OnlyOneSection;
  if (header->orientation == Qt::Horizontal && !last) {
    paint.painter.fillRect(rect.right(), rect.top(), 1, rect.height(), tones.outline);
  }
}

void headerEmptyArea(const Paint& paint) {
  const Tones tones(paint.option);
  const QRect rect = paint.option.rect;
  paint.painter.fillRect(rect, tones.groove);
  paint.painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, tones.outline);
}

void headerArrow(const Paint& paint) {
  const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(&paint.option);
  if (header == nullptr || header->sortIndicator == QStyleOptionHeader::None) return;
  chevron(paint.painter, header->rect,
          header->sortIndicator == QStyleOptionHeader::SortUp ? Qt::UpArrow : Qt::DownArrow,
          Measures(header, paint.widget).chevron(), Tones(*header).faint);
}

}  // namespace host::look
