// A dialog that stays open beside the document.
#pragma once

namespace qRVADM {

class RVADM_NonModalDialog {
 public:
  RVADM_NonModalDialog() = default;
  RVADM_NonModalDialog(const RVADM_NonModalDialog&) = delete;
  RVADM_NonModalDialog& operator=(const RVADM_NonModalDialog&) = delete;
  virtual ~RVADM_NonModalDialog() = default;

  // Stores what the user changed in the dialog. Called whenever user data is to be saved, and last
  // before the dialog is destroyed.
  virtual void OnCommit(int result) = 0;
};

}  // namespace qRVADM
