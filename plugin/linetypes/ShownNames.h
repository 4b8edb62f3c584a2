// Which line types of a group the user wants to see, in the host's preferences.
#pragma once

#include <string>
#include <vector>

#include "LineTypeGroup.h"

namespace Vandrell::Corvane {

// Names are UTF-8 as they stand in the file, never translated. One that holds a "|" comes back in parts. A
// list of more than 4094 bytes, with a "|" between two names, does not come back whole.

// Where nothing was stored: all of the group "Standard", none of any other.
void ReadShownNames(const LineTypeGroup& group, std::vector<std::string>& names);

// False if the host refuses.
bool WriteShownNames(const std::string& groupName, const std::vector<std::string>& names);

}  // namespace Vandrell::Corvane
