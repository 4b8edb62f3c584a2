#include "Folders.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

namespace host {
namespace {

constexpr char kApplication[] = "/corvane-host";

std::string absoluteFromEnvironment(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && value[0] == '/' ? value : std::string();
}

std::string homeFolder() {
  std::string home = absoluteFromEnvironment("HOME");
  if (!home.empty()) return home;
  const passwd* user = getpwuid(getuid());
  return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : std::string();
}

std::string baseFolder(const char* variable, const char* belowHome) {
  std::string base = absoluteFromEnvironment(variable);
  if (!base.empty()) return base;
  const std::string home = homeFolder();
  return home.empty() ? home : home + belowHome;
}

std::string ownFolder(const std::string& base, const char* name) {
  return base.empty() ? base : base + kApplication + name;
}

}  // namespace

Folders userFolders() {
  Folders folders;
  folders.configuration = ownFolder(baseFolder("XDG_CONFIG_HOME", "/.config"), "");
  folders.state = ownFolder(baseFolder("XDG_STATE_HOME", "/.local/state"), "");
  folders.userData = ownFolder(baseFolder("XDG_DATA_HOME", "/.local/share"), "");
  folders.userPlugins = ownFolder(baseFolder("XDG_DATA_HOME", "/.local/share"), "/plug-ins");
  return folders;
}

}  // namespace host
