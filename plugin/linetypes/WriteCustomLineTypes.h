// The file of the line types that the user made, rewritten.
#pragma once

#include "LineTypeGroup.h"

namespace Vandrell::Corvane {

// Replaces the custom file by one of these line types, whatever the group's name is; the old file stays whole
// until the new one stands. If that cannot be read whole, or the caller did not read it, it is kept beside
// the new one under a name of its own. False if that did not work: the user has been told then.
bool WriteCustomLineTypes(const LineTypeGroup& group, bool oldWasRead = true);

}  // namespace Vandrell::Corvane
