#include "RVADM_TextEdit.h"

#include <QKeyEvent>

#include "HandBackKeyboard.h"
#include "QtManager.h"

namespace qRVADM {

RVADM_TextEdit::RVADM_TextEdit(RVADM_ItemParent* itemParent, const char* shownText, bool localize,
                               bool readOnly)
    : RVADM_QMetaObjectProxy(itemParent, readOnly ? kReadOnlyTextEditKind : kTextEditKind) {
  if (readOnly) {
    setReadOnly(true);
    setFocusPolicy(Qt::ClickFocus);
  }
  SetFontKind(0);
  SetText(shownText, localize, true);
  resize(minimumSizeHint());
  ConnectToDialog(SIGNAL(editingFinished()), SLOT(OnTextEditChanged()), false);
  ConnectToDialog(SIGNAL(selectionChanged()), SLOT(OnTextEditSelectionChanged()), false);
  ConnectToDialog(SIGNAL(textEdited(const QString&)), SLOT(OnIntermediateTextEditChanged()), false);
}

void RVADM_TextEdit::GetText(char* buffer, int size, bool) {
  RVADM_Item::GetText(buffer, size, true);
}

void RVADM_TextEdit::Notify(int code) {
  if (!notice.Keeps(code)) RVADM_Item::Notify(code);
}

bool RVADM_TextEdit::event(QEvent* event) {
  return notice.After(*this, [this, event] { return QLineEdit::event(event); });
}

void RVADM_TextEdit::keyPressEvent(QKeyEvent* event) {
  QLineEdit::keyPressEvent(event);
  if (!RVADMQtManager::QtManager::IsOnNonModalDialog(this)) return;
  const int key = event->key();
  if (key != Qt::Key_Escape && key != Qt::Key_Return && key != Qt::Key_Enter) return;
  event->accept();
  HandBackKeyboard();
  clearFocus();  // where there is nobody to take it
}

}  // namespace qRVADM
