// What stands between the rows of a list box and Qt.
#pragma once

#include <QItemDelegate>

namespace qRVADM {

class RVADM_ListBox;

namespace internal {

// Lets rows draw themselves, gives them their height and shows them the mouse. A child of the list.
class RVADM_ListEntryDelegate : public QItemDelegate {
 public:
  explicit RVADM_ListEntryDelegate(RVADM_ListBox* listBox);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  // The check box takes its clicks first.
  bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

 private:
  RVADM_ListBox* list;
};

}  // namespace internal
}  // namespace qRVADM
