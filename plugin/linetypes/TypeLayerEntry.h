// A line type in the preferences: ticked if the palette lists it.
#pragma once

#include "RVADM_ListEntry.h"

namespace Vandrell::Corvane {

class CutPreferencesDialog;

class TypeLayerEntry : public qRVADM::RVADM_ListEntry {
 public:
  // The last row of the list, without a tick. Its text is the dialog's to set.
  TypeLayerEntry(qRVADM::RVADM_ListBox* list, CutPreferencesDialog* owner);

  // A double click edits a custom line type.
  bool Track(qRVADM::ADMTracker& tracker) override;

 private:
  CutPreferencesDialog* const dialog;
};

}  // namespace Vandrell::Corvane
