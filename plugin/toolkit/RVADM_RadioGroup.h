// Radios of which one is checked, beside other such groups in the same dialog.
#pragma once

#include <QButtonGroup>

#include "RVADM_ItemParent.h"

namespace qRVADM {

// Not to be seen: given as parent to a radio, it takes the radio in, whose bounds and widget belong to the
// group's own parent. Owned by the parent's widget.
class RVADM_RadioGroup : public RVADM_ItemParent, public QButtonGroup {
 public:
  explicit RVADM_RadioGroup(RVADM_ItemParent* itemParent);

  RVADM_ItemParent* ParentOfItems() override { return parent; }
  RVADM_Dialog* GetDialog() override;
  QWidget* GetWidget() override;  // the parent's
  QObject* GetObject() override { return this; }

 private:
  RVADM_ItemParent* parent;
};

}  // namespace qRVADM
