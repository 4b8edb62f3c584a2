// The end of a palette's turn at the keyboard.
#pragma once

namespace qRVADM {

// Gives the keyboard from the widget that has it, which is one of a palette, to the host. Handlers that hear
// of the loss may delete anything.
void HandBackKeyboard();

}  // namespace qRVADM
