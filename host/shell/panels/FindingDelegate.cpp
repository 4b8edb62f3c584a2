#include "FindingDelegate.h"

#include <QAbstractItemView>
#include <QIcon>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "PanelList.h"

namespace host {
namespace {

// Pixels.
constexpr int kSide = 4;
constexpr int kAbove = 3;  // and below
constexpr int kSignSize = 12;
constexpr int kSignToText = 5;
constexpr int kLeastTextWidth = 40;

// A sentence beside the sign, a heading from the edge on.
QRect textPlace(const QRect& row, bool hasSign) {
  const QRect place = row.adjusted(kSide + (hasSign ? kSignSize + kSignToText : 0), kAbove, -kSide, -kAbove);
  return {place.topLeft(), QSize(std::max(kLeastTextWidth, place.width()), place.height())};
}

// Returns the height.
double layOut(QTextLayout& layout, double width) {
  QTextOption wrap;
  wrap.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(wrap);
  double height = 0;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    line.setPosition({0, height});
    height += line.height();
  }
  layout.endLayout();
  return height;
}

bool hasSign(const QModelIndex& index) {
  return index.data(Qt::DecorationRole).isValid();
}

}  // namespace

FindingDelegate::FindingDelegate(QAbstractItemView* view) : QStyledItemDelegate(view), view_(*view) {}

void FindingDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
  QStyleOptionViewItem row = option;
  initStyleOption(&row, index);
  view_.style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &row, painter, &view_);
  const QRect place = textPlace(row.rect, hasSign(index));
  QTextLayout layout(row.text, row.font, painter->device());
  layOut(layout, place.width());
  const bool isChosen = row.state.testFlag(QStyle::State_Selected);
  painter->setPen(row.palette.color(QPalette::Active, isChosen ? QPalette::HighlightedText : QPalette::Text));
  layout.draw(painter, place.topLeft());
  const double firstLine = layout.lineCount() > 0 ? layout.lineAt(0).height() : 0;
  row.icon.paint(painter, row.rect.left() + kSide,
                 place.top() + static_cast<int>(std::lround((firstLine - kSignSize) / 2)), kSignSize,
                 kSignSize);
}

QSize FindingDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const int width = view_.viewport()->width();
  const QVariant font = index.data(Qt::FontRole);
  QTextLayout layout(index.data().toString(),
                     font.isValid() ? font.value<QFont>().resolve(option.font) : option.font);
  const double height = layOut(layout, textPlace({0, 0, width, 0}, hasSign(index)).width());
  return {width, std::max(panelRowHeight(option.font), static_cast<int>(std::ceil(height)) + 2 * kAbove)};
}

}  // namespace host
