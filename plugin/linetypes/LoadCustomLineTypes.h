// The line types that the user made.
#pragma once

#include "LineTypeGroup.h"

namespace Vandrell::Corvane {

// `group` becomes the group "Custom" with what the custom file holds; elements that are no line types are
// left out. A name of more than 31 characters is dropped with its line type if `silent`; otherwise the user
// is told and the name is cut. False, without a word, if the file is missing or cannot be read; the line
// types before the fault are in the group.
bool LoadCustomLineTypes(LineTypeGroup& group, bool silent);

}  // namespace Vandrell::Corvane
