// The scale between the pixels of dialogs and the units of the host's interface.
#pragma once

namespace qRVADM {

// Pixels of a dialog to a unit of the host's, above 0; 1 where the host does not tell its scale.
double UIFactor();

}  // namespace qRVADM
