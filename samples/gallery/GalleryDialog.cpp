#include "GalleryDialog.h"

#include "GalleryContent.h"
#include "RVADM_Frame.h"
#include "RVADM_ModalDialogButtons.h"
#include "RVADM_TextPushButton.h"
#include "TextKey.h"

namespace gallery {

using namespace qRVADM;

namespace {

constexpr int kAccepted = 1;
constexpr int kCancelled = 0;
constexpr bool kResizable = true;

}  // namespace

GalleryDialog::GalleryDialog() : RVADM_ModalDialog(kResizable) {}

GalleryDialog::~GalleryDialog() = default;

void GalleryDialog::CreateItems() {
  content = std::make_unique<GalleryContent>(this, [this] { EndDialog(kAccepted, false); });
  line = new RVADM_Frame(this, true);
  buttons = new RVADM_ModalDialogButtons(this, false);
  ok = new RVADM_TextPushButton(this, TextKey("OK"));
  cancel = new RVADM_TextPushButton(this, TextKey("Cancel"));
  buttons->AddButton(kAcceptButton, ok, true);
  buttons->AddButton(kRejectButton, cancel, false);
  SetDefaultButton(ok);
  SetCancelButton(cancel);
}

void GalleryDialog::InitItems() {
  content->InitItems();
}

// As large as the items at first, and then as the user wants it, but not smaller.
void GalleryDialog::LayoutItems() {
  content->LayoutAll();
  content->GetLowest()->PlaceBelow(line, kAlignBase | kAlignLeft, kDefaultGap);
  line->PlaceBelow(buttons, kAlignBase, kDefaultGap);
  if (!wasLaidOut) {
    content->GetWidest()->FitDialogToItem(kStretchRight);
    buttons->FitDialogToItem(kStretchBottom);
    SetMinimumWidth(width());
    SetMinimumHeight(height());
    CenterOnScreen();
    wasLaidOut = true;
  }
  AlignItem(buttons, kAlignRight | kAlignBottom);
  buttons->PlaceAbove(line, kAlignBase, kDefaultGap);
  AlignItem(line, kStretchLeft | kStretchRight);
  content->EndLayout();
}

void GalleryDialog::OnItemNotify(RVADM_Item* item) {
  if (item == ok) {
    EndDialog(kAccepted, false);
  } else if (item == cancel) {
    EndDialog(kCancelled, true);
  } else {
    content->OnItemNotify(item);
  }
}

}  // namespace gallery
