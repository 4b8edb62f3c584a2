#include "SecondDialog.h"

#include "RVADM_Label.h"
#include "RVADM_TextPushButton.h"
#include "TextKey.h"

namespace gallery {

using namespace qRVADM;

namespace {

constexpr int kClosed = 1;

}  // namespace

SecondDialog::SecondDialog() : RVADM_ModalDialog(false) {}

void SecondDialog::CreateItems() {
  text = new RVADM_Label(this, TextKey("The dialog behind this one waits."), true);
  close = new RVADM_TextPushButton(this, TextKey("Close"));
  SetDefaultButton(close);
  SetCancelButton(close);
}

void SecondDialog::LayoutItems() {
  AlignItem(text, kAlignBase | kAlignLeft | kAlignTop);
  text->PlaceBelow(close, kAlignBase | kAlignRight, kDefaultGap);
  text->FitDialogToItem(kStretchRight);
  close->FitDialogToItem(kStretchBottom);
}

void SecondDialog::OnItemNotify(RVADM_Item* item) {
  if (item == close) EndDialog(kClosed, false);
}

}  // namespace gallery
