// Where a user's colour profiles lie.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace host {

// The folders for profiles by the XDG base directory standard, the user's own first. Relative values of
// its variables count as unset. None need exist.
std::vector<std::filesystem::path> colourProfileFolders();

// The variables that those depend on as one text, much faster to get: while it is the same, so are they.
std::string colourProfileVariables();

// Files that say in their head that they are ICC profiles of a CMYK printer, in the order of the folders
// and in each by path. Folders within are searched, links to folders are not.
std::vector<std::filesystem::path> cmykProfileFiles(const std::vector<std::filesystem::path>& folders);

// The bytes of a profile; nullopt if it can't be read or is larger than any profile has reason to be.
std::optional<std::string> readColourProfile(const std::filesystem::path& file);

}  // namespace host
