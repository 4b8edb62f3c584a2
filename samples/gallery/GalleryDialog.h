// The gallery in a modal dialog.
#pragma once

#include <memory>

#include "RVADM_ModalDialog.h"

namespace qRVADM {
class RVADM_Frame;
class RVADM_ModalDialogButtons;
class RVADM_TextPushButton;
}  // namespace qRVADM

namespace gallery {

class GalleryContent;

class GalleryDialog : public qRVADM::RVADM_ModalDialog {
 public:
  GalleryDialog();
  ~GalleryDialog() override;

  void CreateItems() override;
  void InitItems() override;
  void LayoutItems() override;
  void OnItemNotify(qRVADM::RVADM_Item* item) override;

 private:
  std::unique_ptr<GalleryContent> content;
  qRVADM::RVADM_Frame* line = nullptr;
  qRVADM::RVADM_ModalDialogButtons* buttons = nullptr;
  qRVADM::RVADM_TextPushButton* ok = nullptr;
  qRVADM::RVADM_TextPushButton* cancel = nullptr;
  bool wasLaidOut = false;
};

}  // namespace gallery
