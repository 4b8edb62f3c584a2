// The joint that makes an item and its widget one object.
#pragma once

#include <utility>

#include "RVADM_ItemParent.h"

namespace qRVADM {

// `Base` is RVADM_Item or a class on it.
template <typename Base, typename QtWidget>
class RVADM_QMetaObjectProxy : public Base, public QtWidget {
 protected:
  RVADM_QMetaObjectProxy(RVADM_ItemParent* itemParent, int itemKind)
      : Base(itemParent, itemKind), QtWidget(itemParent->GetWidget()) {
    this->SetItemWidget(this);
  }
};

}  // namespace qRVADM
