// Gives back the work of runs that did not come to their end.
#pragma once

#include <string>

namespace host {

class Autosave;
struct WindowParts;

// If there is any below `root`, where the copies of all runs lie, the user is asked what is to become of it.
// What he wants back is opened, and in copies of this run before those of the others go.
void offerLost(const WindowParts& parts, Autosave& autosave, const std::string& root);

}  // namespace host
