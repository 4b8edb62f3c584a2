// The line types that ship with the product.
#pragma once

#include <filesystem>

#include "AskedKeys.h"

namespace texts {

constexpr std::size_t kLineTypeNameLength = 31;  // the longest name, in UTF-16 units
constexpr char kNameSeparator = '|';             // stands between names where they are stored

// Asks for the names of the group whose names are translated.
void AskForLineTypeNames(AskedKeys& keys, const std::filesystem::path& definitionFile);

}  // namespace texts
