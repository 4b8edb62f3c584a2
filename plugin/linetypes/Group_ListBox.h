// The groups of line types in the preferences.
#pragma once

#include "RVADM_ListBox.h"

namespace Vandrell::Corvane {

class CutPreferencesDialog;

class Group_ListBox : public qRVADM::RVADM_ListBox {
 public:
  explicit Group_ListBox(CutPreferencesDialog* owner);

  // The dialog shows the group that the user selects.
  void Notify(int code) override;

  std::string SelectedName();  // empty without a selected row

 private:
  CutPreferencesDialog* const dialog;
};

}  // namespace Vandrell::Corvane
