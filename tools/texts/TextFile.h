// A text file of the bundle, entry by entry.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace texts {

struct TextEntry {
  std::string key;  // canonical
  std::string text;
  std::size_t line = 0;  // where the key ends, or the next one if it ends its line
};

struct TextFile {
  std::string name;  // below the folder of the texts: "de.lproj/corvane.asc"
  std::vector<TextEntry> entries;
  std::string fault;  // why the product does not read it, or not to its end; empty if it does
};

TextFile ReadTextFile(const std::filesystem::path& folder, const std::string& name);

}  // namespace texts
