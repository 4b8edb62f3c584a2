// Where the signals and meta-calls of items arrive.
#include <QCoreApplication>
#include <QLineEdit>
#include <exception>

#include "RVADM_Dialog.h"
#include "RVADM_ListBox.h"
#include "RVADM_NumericEdit.h"
#include "RVADM_TextEdit.h"

namespace qRVADM {
namespace {

// Tells whether the user changed the field since this was last asked.
bool TakeModified(QLineEdit& field) {
  const bool modified = field.isModified();
  field.setModified(false);
  return modified;
}

}  // namespace

void RVADM_Dialog::OnButtonClicked() {
  NotifyItem(GetSenderItem(), kUserChanged);
}

void RVADM_Dialog::OnPictureButtonClicked() {
  NotifyItem(GetSenderItem(), kUserChanged);
}

void RVADM_Dialog::OnLabelClicked() {
  NotifyItem(GetSenderItem(), kUserChanged);
}

void RVADM_Dialog::OnHyperlinkClicked() {
  NotifyItem(GetSenderItem(), kUserChanged);
}

void RVADM_Dialog::OnPictureLabelClicked() {
  NotifyItem(GetSenderItem(), kUserChanged);
}

void RVADM_Dialog::OnRadioButtonClicked() {
  NotifyItem(GetSenderItem(), kUserChanged);
}

void RVADM_Dialog::OnCheckBoxClicked() {
  NotifyItem(GetSenderItem(), kUserChanged);
}

// Qt's list is at work meanwhile and loses memory to what is thrown through it: that comes out of the event
// loop instead.
void RVADM_Dialog::OnListBoxChanged() {
  try {
    NotifyItem(GetSenderItem(), kUserChanged);
  } catch (...) {
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [failure = std::current_exception()] { std::rethrow_exception(failure); }, Qt::QueuedConnection);
  }
}

void RVADM_Dialog::OnListBoxChangedAsync() {
  CallHandler(&RVADM_Dialog::OnItemNotifyAsync, GetSenderItem());
}

void RVADM_Dialog::OnListBoxItemDoubleClicked() {
  auto* list = dynamic_cast<RVADM_ListBox*>(GetSenderItem());
  RVADM_Item* item = list == nullptr ? nullptr : list->GetDoubleClickItem();
  if (item != nullptr && item->IsEnabled()) NotifyItem(item, kUserChanged);
}

void RVADM_Dialog::OnComboBoxChanged() {
  NotifyItem(GetSenderItem(), kUserChanged);
}

void RVADM_Dialog::OnComboBoxEdited() {
  NotifyItem(GetSenderItem(), kUserChanged);
}

void RVADM_Dialog::OnComboBoxEditedAsync() {
  CallHandler(&RVADM_Dialog::OnItemNotifyAsync, GetSenderItem());
}

void RVADM_Dialog::OnSliderChanged() {
  NotifyItem(GetSenderItem(), kUserChanged);
}

void RVADM_Dialog::OnSliderMoved() {
  NotifyItem(GetSenderItem(), kIntermediateChange);
}

void RVADM_Dialog::OnScrollBarChanged() {
  NotifyItem(GetSenderItem(), kUserChanged);
}

void RVADM_Dialog::OnTextEditChanged() {
  RVADM_Item* sender = GetSenderItem();
  auto* edit = dynamic_cast<RVADM_TextEdit*>(sender);
  if (edit == nullptr || TakeModified(*edit)) NotifyItem(sender, kUserChanged);
}

void RVADM_Dialog::OnIntermediateTextEditChanged() {
  NotifyItem(GetSenderItem(), kIntermediateChange);
}

void RVADM_Dialog::OnNumericTextEditChanged() {
  auto* edit = dynamic_cast<RVADM_NumericEdit*>(GetSenderItem());
  if (edit == nullptr || !edit->IsModified()) return;
  edit->SetModified(false);
  NotifyItem(edit, kUserChanged);
}

void RVADM_Dialog::OnTextEditSelectionChanged() {
  NotifyItem(GetSenderItem(), kTextSelectionChanged);
}

void RVADM_Dialog::OnActiveTabPanelChanged() {
  NotifyItem(GetSenderItem(), kUserChanged);
}

}  // namespace qRVADM
