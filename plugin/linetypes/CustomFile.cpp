#include "CustomFile.h"

#include <boost/property_tree/ptree.hpp>
#include <filesystem>

#include "DefinitionFile.h"
#include "LineTypeGroup.h"

namespace Vandrell::Corvane {
namespace {

namespace fs = std::filesystem;

// A second name where the disk knows such a thing, else a copy. Never in the place of another file.
bool KeepAs(const fs::path& file, const fs::path& name, std::error_code& error) {
  fs::create_hard_link(file, name, error);
  if (!error) return true;
  if (error == std::errc::file_exists) return false;
  return fs::copy_file(file, name, fs::copy_options::none, error);
}

}  // namespace

CustomFileState ReadCustomFile(const std::string& path, std::vector<LineType>& types) {
  if (!FileExists(path)) return CustomFileState::Missing;
  try {
    const LineTypeTree file = ReadDefinitionFile(path);
    const bool whole = ReadLineTypes(file.get_child("Groups").get_child(kCustomGroup), types);
    return whole ? CustomFileState::Whole : CustomFileState::Incomplete;
  } catch (const std::exception&) {
    return CustomFileState::Unreadable;
  }
}

bool SetCustomFileAside(const std::string& path) {
  constexpr int kMostNames = 10000;
  std::error_code error;
  const fs::path file = fs::canonical(path, error);
  if (error) return false;
  for (int number = 1; number < kMostNames; ++number) {
    fs::path name = file;
    name.replace_filename(file.stem().string() + "-kept-" + std::to_string(number));
    name += file.extension();
    if (KeepAs(file, name, error)) return true;
    if (error != std::errc::file_exists) return false;
  }
  return false;
}

}  // namespace Vandrell::Corvane
