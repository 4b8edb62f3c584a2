// The texts that the product's sources ask for.
#pragma once

#include <filesystem>

#include "AskedKeys.h"

namespace texts {

// Asks for every literal that the C++ files below `folder` (relative to `root`) look up or mark as a key.
// Throws if they cannot be read.
void AskForSourceTexts(AskedKeys& keys, const std::filesystem::path& root, const std::string& folder);

}  // namespace texts
