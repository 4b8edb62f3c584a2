// Whether the text files of a bundle hold what the product asks for, in every language.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "AskedKeys.h"

namespace texts {

// In the order in which they are loaded.
const std::vector<std::string> kModules = {"rv", "corvane"};

// The localisations of a bundle whose resource folder this is, sorted: "de", "pt_BR".
std::vector<std::string> Localisations(const std::filesystem::path& folder);

// One sentence a fault, with file and key. Empty: the English files and those of all localisations have a
// sound text for every key, and for nothing else.
std::vector<std::string> CheckTexts(const std::filesystem::path& folder, const AskedKeys& asked,
                                    const std::vector<std::string>& modules = kModules);

}  // namespace texts
