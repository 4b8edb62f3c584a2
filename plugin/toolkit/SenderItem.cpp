#include "SenderItem.h"

#include <QObject>

#include "RVADM_Item.h"

namespace qRVADM {

RVADM_Item* ItemOfSender(QObject* sender, RVADM_Item* currentItem) {
  auto* item = dynamic_cast<RVADM_Item*>(sender);
  return item != nullptr ? item : currentItem;
}

}  // namespace qRVADM
