#include "TypeLayerEntry.h"

#include "CutPreferencesDialog.h"
#include "RowText.h"

namespace Vandrell::Corvane {

TypeLayerEntry::TypeLayerEntry(qRVADM::RVADM_ListBox* types, CutPreferencesDialog* owner)
    : RVADM_ListEntry(types, "PlaceHolder", false), dialog(owner) {
  SetCheckable();
  SetChecked(false);
}

bool TypeLayerEntry::Track(qRVADM::ADMTracker& tracker) {
  if (tracker.IsDoubleClick() && dialog->IsCustomGroupSelected()) dialog->EditLineType(RowText(*this));
  return true;
}

}  // namespace Vandrell::Corvane
