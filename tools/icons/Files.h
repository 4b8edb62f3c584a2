// Files, whole, with faults that name them.
#pragma once

#include <filesystem>
#include <string>

namespace icons {

std::string readFile(const std::filesystem::path& file);

// Folders on the way are made.
void writeFile(const std::filesystem::path& file, const std::string& bytes);

}  // namespace icons
