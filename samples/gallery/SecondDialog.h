// A dialog that a dialog opens.
#pragma once

#include "RVADM_ModalDialog.h"

namespace qRVADM {
class RVADM_Label;
class RVADM_TextPushButton;
}  // namespace qRVADM

namespace gallery {

class SecondDialog : public qRVADM::RVADM_ModalDialog {
 public:
  SecondDialog();

  void CreateItems() override;
  void LayoutItems() override;
  void OnItemNotify(qRVADM::RVADM_Item* item) override;

 private:
  qRVADM::RVADM_Label* text = nullptr;
  qRVADM::RVADM_TextPushButton* close = nullptr;
};

}  // namespace gallery
