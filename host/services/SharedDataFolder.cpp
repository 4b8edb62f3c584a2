#include "SharedDataFolder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "Folders.h"

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr char kInstalled[] = "/var/lib/corvane-host";

fs::path wantedFolder() {
  const char* const chosen = std::getenv("CORVANE_SHARED_DATA");
  if (chosen != nullptr && chosen[0] == '/') return fs::path(chosen).lexically_normal();
  std::error_code ignored;
  if (fs::is_directory(kInstalled, ignored)) return fs::path(kInstalled) / "shared";
  const std::string own = userFolders().userData;
  return own.empty() ? fs::path() : fs::path(own) / "shared";
}

}  // namespace

std::string sharedDataFolder() {
  fs::path folder = wantedFolder();
  if (!folder.has_filename()) folder = folder.parent_path();  // no "/" at the end
  std::error_code error;
  const bool made = fs::create_directories(folder, error);
  if (error || !fs::is_directory(folder, error)) return {};
  if (made) fs::permissions(folder, fs::perms::all, error);
  return folder.string();
}

}  // namespace host
