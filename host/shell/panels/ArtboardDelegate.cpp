#include "ArtboardDelegate.h"

#include <QApplication>
#include <QPainter>

#include "ArtboardModel.h"
#include "PanelList.h"

namespace host {
namespace {

constexpr int kMargin = 6;  // pixels
constexpr int kGap = 8;

}  // namespace

void ArtboardDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  QStyleOptionViewItem panel = option;
  initStyleOption(&panel, index);
  const QStyle* style = panel.widget == nullptr ? QApplication::style() : panel.widget->style();
  style->drawPrimitive(QStyle::PE_PanelItemViewItem, &panel, painter, panel.widget);
  const bool isChosen = panel.state.testFlag(QStyle::State_Selected);
  painter->setPen(panel.palette.color(isChosen ? QPalette::HighlightedText : QPalette::Text));
  painter->setFont(panel.font);
  const QRect row = panel.rect.adjusted(kMargin, 0, -kMargin, 0);
  const QString size = index.data(ArtboardModel::kSizeRole).toString();
  painter->drawText(row, Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine, size);
  const QRect rest = row.adjusted(0, 0, -panel.fontMetrics.horizontalAdvance(size) - kGap, 0);
  painter->drawText(rest, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                    panel.fontMetrics.elidedText(panel.text, Qt::ElideRight, rest.width()));
}

QSize ArtboardDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  return {2 * kMargin, panelRowHeight(option.font)};
}

}  // namespace host
