// A button with a text.
#pragma once

#include <QPushButton>

#include "RVADM_Item.h"
#include "RVADM_QMetaObjectProxy.h"

namespace qRVADM {

class RVADM_TextPushButton : public RVADM_QMetaObjectProxy<RVADM_Item, QPushButton> {
 public:
  RVADM_TextPushButton(RVADM_ItemParent* itemParent, const char* shownText);  // UTF-8, translated

 protected:
  bool event(QEvent* event) override;
};

}  // namespace qRVADM
