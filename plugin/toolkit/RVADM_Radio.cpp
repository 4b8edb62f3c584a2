#include "RVADM_Radio.h"

#include <QButtonGroup>

namespace qRVADM {

RVADM_Radio::RVADM_Radio(RVADM_ItemParent* itemParent, const char* shownText)
    : RVADM_QMetaObjectProxy(itemParent, kRadioKind) {
  SetFontKind(0);
  SetText(shownText, true, true);
  if (auto* group = qobject_cast<QButtonGroup*>(itemParent->GetObject())) group->addButton(this);
  ConnectToDialog(SIGNAL(clicked()), SLOT(OnRadioButtonClicked()), false);
  TakeNoFocusOnPalette();
}

}  // namespace qRVADM
