// How a row of the preflight looks: a sign, and its sentence in as many lines as it takes.
#pragma once

#include <QStyledItemDelegate>

class QAbstractItemView;

namespace host {

class FindingDelegate : public QStyledItemDelegate {
 public:
  // Rows are as wide as the view's viewport, and have to be laid out again when that changes.
  explicit FindingDelegate(QAbstractItemView* view);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  const QAbstractItemView& view_;
};

}  // namespace host
