#include "RVADM_ModalDialogButtons.h"

#include <QLayout>
#include <QVariant>

#include "QtManager.h"
#include "RVADM_ModalDialog.h"
#include "RVADM_TextPushButton.h"

namespace qRVADM {
namespace {

struct Role {
  QDialogButtonBox::ButtonRole boxRole;
  bool isModalButton;  // one that answers the dialog
};

Role RoleOf(int role) {
  switch (role) {
    case kAcceptButton:
      return {QDialogButtonBox::AcceptRole, true};
    case kRejectButton:
      return {QDialogButtonBox::RejectRole, true};
    case kApplyButton:
      return {QDialogButtonBox::ApplyRole, true};
    case kDestructiveButton:
      return {QDialogButtonBox::DestructiveRole, true};
    case kResetButton:
      return {QDialogButtonBox::ResetRole, false};
    case kYesButton:
      return {QDialogButtonBox::YesRole, true};
    case kNoButton:
      return {QDialogButtonBox::NoRole, true};
    case kHelpButton:
      return {QDialogButtonBox::HelpRole, false};
    default:
      return {QDialogButtonBox::InvalidRole, false};
  }
}

}  // namespace

RVADM_ModalDialogButtons::RVADM_ModalDialogButtons(RVADM_ModalDialog* modalDialog, bool vertical)
    : RVADM_QMetaObjectProxy(modalDialog, kCustomItemKind), dialog(modalDialog) {
  setOrientation(vertical ? Qt::Vertical : Qt::Horizontal);
  SetFontKind(0);
  ensurePolished();
  connect(this, SIGNAL(clicked(QAbstractButton*)), SLOT(ButtonClicked(QAbstractButton*)));
}

void RVADM_ModalDialogButtons::AddButton(int role, RVADM_TextPushButton* button, bool isDefault) {
  const auto [boxRole, isModalButton] = RoleOf(role);
  addButton(button, boxRole);
  if (isDefault) {
    button->setDefault(true);
    button->setProperty(RVADMQtManager::kIsDefaultProperty, true);
  }
  button->setProperty(RVADMQtManager::kIsModalButtonProperty, isModalButton);
  if (layout() != nullptr) layout()->setContentsMargins(0, 0, 0, 0);
  resize(sizeHint());
}

void RVADM_ModalDialogButtons::EndWithCommit(RVADM_TextPushButton* button, int result) {
  commit = {button, result};
}

void RVADM_ModalDialogButtons::EndWithoutCommit(RVADM_TextPushButton* button, int result) {
  cancel = {button, result};
}

void RVADM_ModalDialogButtons::ButtonClicked(QAbstractButton* button) {
  if (button == commit.button) {
    dialog->EndDialog(commit.result, false);
  } else if (button == cancel.button) {
    dialog->EndDialog(cancel.result, true);
  }
}

}  // namespace qRVADM

using namespace qRVADM;
#include "moc_RVADM_ModalDialogButtons.cpp"
