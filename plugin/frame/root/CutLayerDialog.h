// The palette of line types, as the rest of the plug-in sees it.
#pragma once

#include "RVADM_NonModalDialog.h"

namespace Vandrell::Corvane {

class CutLayerDialog : public qRVADM::RVADM_NonModalDialog {
 public:
  virtual void SyncWithSelection() = 0;  // rows and buttons as the selected art asks for
};

}  // namespace Vandrell::Corvane
