// How a row of the artboards looks.
#pragma once

#include <QStyledItemDelegate>

namespace host {

// The name, and the size at the right edge. For views of an ArtboardModel.
class ArtboardDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace host
