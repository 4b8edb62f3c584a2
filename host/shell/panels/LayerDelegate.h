// How a row of the layers looks.
#pragma once

#include <QStyledItemDelegate>

namespace host {

// From left to right: an eye, a lock, the title, the pen of the current layer, the square of selected art.
enum class LayerZone { Eye, Lock, Title };

LayerZone layerZoneAt(const QRect& row, const QPoint& point);

// For views of a LayerModel.
class LayerDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;
};

}  // namespace host
