// The row or column of buttons that answer a modal dialog, in the order of the platform.
#pragma once

#include <QDialogButtonBox>

#include "RVADM_Item.h"
#include "RVADM_QMetaObjectProxy.h"

#ifndef Q_MOC_RUN  // the meta-object bears the bare name of the class
namespace qRVADM {
#endif

class RVADM_ModalDialog;
class RVADM_TextPushButton;

enum ModalButtonRole : int {
  kAcceptButton = 0,
  kRejectButton = 1,
  kApplyButton = 2,
  kDestructiveButton = 3,
  kResetButton = 4,
  kYesButton = 5,
  kNoButton = 6,
  kHelpButton = 7,
};

class RVADM_ModalDialogButtons : public RVADM_QMetaObjectProxy<RVADM_Item, QDialogButtonBox> {
  Q_OBJECT

 public:
  RVADM_ModalDialogButtons(RVADM_ModalDialog* modalDialog, bool vertical);

  // Makes the button the box's own child; the box grows with it. The button still notifies the dialog of its
  // clicks.
  void AddButton(int role, RVADM_TextPushButton* button, bool isDefault);
  // A click on the button ends the dialog with `result`, with or without its OnCommit. One button each.
  void EndWithCommit(RVADM_TextPushButton* button, int result);
  void EndWithoutCommit(RVADM_TextPushButton* button, int result);

 private Q_SLOTS:
  void ButtonClicked(QAbstractButton* button);

 private:
  struct Ending {
    QAbstractButton* button = nullptr;  // not owned
    int result = -1;
  };

  RVADM_ModalDialog* dialog;  // not owned
  Ending commit;
  Ending cancel;
};

#ifndef Q_MOC_RUN
}  // namespace qRVADM
#endif
