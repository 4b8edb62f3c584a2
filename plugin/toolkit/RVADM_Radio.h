// A choice of which one is checked among its group, or else among all radios of the dialog.
#pragma once

#include <QRadioButton>

#include "RVADM_Item.h"
#include "RVADM_QMetaObjectProxy.h"

namespace qRVADM {

class RVADM_Radio : public RVADM_QMetaObjectProxy<RVADM_Item, QRadioButton> {
 public:
  RVADM_Radio(RVADM_ItemParent* itemParent, const char* shownText);  // UTF-8, translated

  bool IsChecked() const { return isChecked(); }
  void SetChecked(bool checked) { setChecked(checked); }  // notifies of nothing
};

}  // namespace qRVADM
