// The plain way to tell that something went wrong.
#pragma once

namespace qRVADM {

// A critical message dialog with the one button "OK". `text` is an English sentence and gets translated.
// Returns when the user has answered, or at once while the user must not be told anything.
void ShowCriticalMessage(const char* text);

}  // namespace qRVADM
