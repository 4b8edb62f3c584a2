#include "PresetsFolder.h"

#include <filesystem>

#include "Platform.h"

namespace Vandrell::Corvane {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPathSize = 4096;  // bytes, with the closing NUL

// Empty if the machine has no such folder.
std::string SharedUserDataFolder() {
  char path[kPathSize] = "";
  FSFindFolder(kLocalDomain, kSharedUserDataFolderType, path, sizeof path);
  return path;
}

// From the folder up to the first one that is open already, so that every user can store files in it.
void OpenToAllUsers(fs::path folder) {
  std::error_code error;
  for (;; folder = folder.parent_path()) {
    const fs::perms permissions = fs::status(folder, error).permissions();
    if (error || permissions == fs::perms::all) return;
    fs::permissions(folder, fs::perms::all, error);
    if (error || folder == folder.parent_path()) return;
  }
}

}  // namespace

std::string PresetsFolder() {
  const std::string shared = SharedUserDataFolder();
  if (shared.empty()) return {};  // never at the root of the disk
  std::string folder = shared + "/" + "Vandrell" + "/corvane";
  std::error_code error;
  if (fs::exists(folder, error)) return folder;
  if (!fs::create_directories(folder, error) || error) return {};
  OpenToAllUsers(folder);
  return folder;
}

}  // namespace Vandrell::Corvane
