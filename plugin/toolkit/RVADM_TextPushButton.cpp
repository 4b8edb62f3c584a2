#include "RVADM_TextPushButton.h"

#include <QEvent>

#include "QtManager.h"

namespace qRVADM {

RVADM_TextPushButton::RVADM_TextPushButton(RVADM_ItemParent* itemParent, const char* shownText)
    : RVADM_QMetaObjectProxy(itemParent, kTextPushButtonKind) {
  SetFontKind(0);
  SetText(shownText, true, true);
  ConnectToDialog(SIGNAL(clicked()), SLOT(OnButtonClicked()), false);
  TakeNoFocusOnPalette();
}

bool RVADM_TextPushButton::event(QEvent* event) {
  return event->type() == RVADMQtManager::kThemeChangedEvent || QPushButton::event(event);
}

}  // namespace qRVADM
