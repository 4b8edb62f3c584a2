#include "Group_ListBox.h"

#include "CutPreferencesDialog.h"
#include "RowText.h"

namespace Vandrell::Corvane {

using namespace qRVADM;

Group_ListBox::Group_ListBox(CutPreferencesDialog* owner) : RVADM_ListBox(owner, false), dialog(owner) {}

void Group_ListBox::Notify(int code) {
  if (code != kUserChanged || GetSelectedEntry(0) == nullptr) return;
  const std::string name = SelectedName();
  dialog->LayoutItems();
  dialog->ShowGroup(name);
}

std::string Group_ListBox::SelectedName() {
  const RVADM_ListEntry* const entry = GetSelectedEntry(0);
  return entry == nullptr ? std::string() : RowText(*entry);
}

}  // namespace Vandrell::Corvane
