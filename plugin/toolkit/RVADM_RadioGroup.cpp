#include "RVADM_RadioGroup.h"

#include <QWidget>

namespace qRVADM {

RVADM_RadioGroup::RVADM_RadioGroup(RVADM_ItemParent* itemParent)
    : QButtonGroup(itemParent->GetWidget()), parent(itemParent) {}

RVADM_Dialog* RVADM_RadioGroup::GetDialog() {
  return parent->GetDialog();
}

QWidget* RVADM_RadioGroup::GetWidget() {
  return parent->GetWidget();
}

}  // namespace qRVADM
