// A text field of one line.
#pragma once

#include <QLineEdit>

#include "NoticeAfterEvent.h"
#include "RVADM_Item.h"
#include "RVADM_QMetaObjectProxy.h"

namespace qRVADM {

// The user's action is complete when the field is left, or Return pressed, with a text that was edited since.
// On a palette Return and Escape give the keyboard back.
class RVADM_TextEdit : public RVADM_QMetaObjectProxy<RVADM_Item, QLineEdit> {
 public:
  // One line high and hardly wide; the dialog's layout gives it its width. A read-only field can be clicked
  // to copy from it.
  RVADM_TextEdit(RVADM_ItemParent* itemParent, const char* shownText, bool localize, bool readOnly);

  void Notify(int code) override;
  void GetText(char* buffer, int size, bool current) override;  // always as shown

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  NoticeAfterEvent notice;
};

}  // namespace qRVADM
