// A line or a box around items that are its siblings.
#pragma once

#include <QFrame>

#include "RVADM_Item.h"
#include "RVADM_QMetaObjectProxy.h"

namespace qRVADM {

class RVADM_Frame : public RVADM_QMetaObjectProxy<RVADM_Item, QFrame>, public RVADM_ItemParent {
 public:
  // 2 pixels high. Without a border nothing is drawn.
  RVADM_Frame(RVADM_ItemParent* itemParent, bool bordered);

  // A bordered frame less than 3 pixels high or wide is a line.
  void SetBounds(const ADMRect& bounds) override;

 protected:
  void childEvent(QChildEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  bool bordered;
};

}  // namespace qRVADM
