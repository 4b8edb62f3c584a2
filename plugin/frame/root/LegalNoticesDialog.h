// The notices of the plug-in and of the software that it rests on.
#pragma once

#include "RVADM_ModalDialog.h"

namespace qRVADM {
class RVADM_TextPushButton;
}

namespace Vandrell::Corvane {

class CutPlugin;
class LegalNoticesTextEdit;

// Shows "LegalNotices.html" of the plug-in's resources from its anchor "Copyright" on, or nothing where there
// is no such file. The lines of the file are joined without their line feeds.
class LegalNoticesDialog : public qRVADM::RVADM_ModalDialog {
 public:
  explicit LegalNoticesDialog(const CutPlugin& owner);  // must outlive the dialog
  ~LegalNoticesDialog() override;

  void CreateItems() override;
  void InitItems() override;
  void LayoutItems() override;
  void OnItemNotify(qRVADM::RVADM_Item* item) override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  LegalNoticesTextEdit* textEdit = nullptr;
  qRVADM::RVADM_TextPushButton* okButton = nullptr;
  const CutPlugin* plugin;
};

}  // namespace Vandrell::Corvane
