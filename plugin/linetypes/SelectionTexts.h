// What the user is told when a command could not do all that was asked. All are keys of translations.
#pragma once

#include "TextKey.h"

namespace Vandrell::Corvane {

constexpr const char* kNotAllConvertedText = TextKey("One or more objects could not be converted.");

constexpr const char* kLayersBlockedText =
    TextKey("Could not move selection because one or more line type layers are locked or hidden.");

// Left behind for any other reason.
constexpr const char* kNotAllMovedText =
    TextKey("One or more objects could not be moved to a Line Type Layer.");

}  // namespace Vandrell::Corvane
