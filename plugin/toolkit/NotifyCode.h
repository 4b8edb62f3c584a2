// What an item tells its dialog.
#pragma once

namespace qRVADM {

enum NotifyCode : int {
  kBoundsChanged = 1,
  kUserChanged = 2,         // the user completed an action
  kIntermediateChange = 3,  // a slider is being dragged, text being typed
  kTextSelectionChanged = 9,
};

}  // namespace qRVADM
