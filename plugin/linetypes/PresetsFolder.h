// Where the files are that all users of the machine share.
#pragma once

#include <string>

namespace Vandrell::Corvane {

// The path, UTF-8 without a "/" at its end. A folder that is missing is made and, as every new folder above
// it, opened to all users. Empty if that fails.
std::string PresetsFolder();

}  // namespace Vandrell::Corvane
