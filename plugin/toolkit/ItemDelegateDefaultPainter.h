// The ordinary look of a list row.
#pragma once

#include "IADMDrawer.h"

class QItemDelegate;
class QModelIndex;
class QStyleOptionViewItem;

namespace qRVADM {

// For one call of the delegate's paint. Paints what `Delegate` itself paints, whatever is derived from it;
// instance: QItemDelegate.
template <typename Delegate>
class ItemDelegateDefaultPainter : public IADMDrawer::DefaultPainter {
 public:
  // All of them outlive the painter.
  ItemDelegateDefaultPainter(const Delegate& delegate, const QStyleOptionViewItem& option,
                             const QModelIndex& index);

  void Paint(QPainter* painter) override;  // not antialiased

 private:
  const Delegate& delegate;
  const QStyleOptionViewItem& option;
  const QModelIndex& index;
};

extern template class ItemDelegateDefaultPainter<QItemDelegate>;

}  // namespace qRVADM
