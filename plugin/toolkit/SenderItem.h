// Which item a slot of a dialog runs for.
#pragma once

class QObject;

namespace qRVADM {

class RVADM_Item;

// The sender if it is an item, else `currentItem`: that of a meta-call, during which the sender is none or
// one that is no item.
RVADM_Item* ItemOfSender(QObject* sender, RVADM_Item* currentItem);

}  // namespace qRVADM
