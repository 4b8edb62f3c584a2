#include "ItemDelegateDefaultPainter.h"

#include <QItemDelegate>
#include <QPainter>

namespace qRVADM {

template <typename Delegate>
ItemDelegateDefaultPainter<Delegate>::ItemDelegateDefaultPainter(const Delegate& rowDelegate,
                                                                 const QStyleOptionViewItem& rowOption,
                                                                 const QModelIndex& rowIndex)
    : delegate(rowDelegate), option(rowOption), index(rowIndex) {}

template <typename Delegate>
void ItemDelegateDefaultPainter<Delegate>::Paint(QPainter* painter) {
  const bool antialiasing = painter->testRenderHint(QPainter::Antialiasing);
  painter->setRenderHint(QPainter::Antialiasing, false);
  delegate.Delegate::paint(painter, option, index);
  painter->setRenderHint(QPainter::Antialiasing, antialiasing);
}

template class ItemDelegateDefaultPainter<QItemDelegate>;

}  // namespace qRVADM
