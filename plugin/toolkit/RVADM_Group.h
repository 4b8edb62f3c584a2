// A titled box around items that are its siblings.
#pragma once

#include <QGroupBox>

#include "RVADM_Item.h"
#include "RVADM_QMetaObjectProxy.h"

namespace qRVADM {

class RVADM_Group : public RVADM_QMetaObjectProxy<RVADM_Item, QGroupBox>, public RVADM_ItemParent {
 public:
  RVADM_Group(RVADM_ItemParent* itemParent, const char* title, bool localize);  // UTF-8

  // Where the items in the group stand, in the coordinates of its bounds and theirs.
  void GetInnerRect(ADMRect* rect);
  void SetInnerRect(const ADMRect& rect);
  void AlignItemInside(RVADM_Item* item, int flags);
  void FitToItem(RVADM_Item* item, int flags);  // the inner rectangle takes after the item

 protected:
  void childEvent(QChildEvent* event) override;
  void showEvent(QShowEvent* event) override;
};

}  // namespace qRVADM
