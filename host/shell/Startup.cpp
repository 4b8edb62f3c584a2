#include "Startup.h"

#include <filesystem>
#include <system_error>
#include <vector>

#include "Commands.h"
#include "Complain.h"
#include "MarksProduct.h"
#include "Session.h"

namespace host {
namespace {

namespace fs = std::filesystem;

// Beside the program as it was built, else where an installation puts it.
fs::path defaultBundle() {
  std::error_code ignored;
  const fs::path folder = fs::read_symlink("/proc/self/exe", ignored).parent_path();
  const fs::path built = folder / kMarksProduct.bundle;
  const fs::path installed = folder.parent_path() / "lib/corvane" / kMarksProduct.bundle;
  return fs::exists(installed, ignored) && !fs::exists(built, ignored) ? installed : built;
}

}  // namespace

Preferences userPreferences() {
  const Folders folders = userFolders();
  if (folders.configuration.empty()) return {};
  std::string complaint;
  Preferences preferences = Preferences::load(folders.configuration + "/preferences.json", complaint);
  if (!complaint.empty()) complain(complaint);
  return preferences;
}

std::string overlayPreferences(Host& host, const CommonOptions& options) {
  for (const std::string& assignment : options.preferences) {
    if (std::string wrong = host.preferences().overlayText(assignment); !wrong.empty()) return wrong;
  }
  return {};
}

std::string armRefusals(Host& host, const CommonOptions& options) {
  for (const std::string& rule : options.refuse) {
    if (std::string wrong = host.refusal().add(rule); !wrong.empty()) return wrong;
  }
  host.refusal().armNth(options.refuseNth);
  return {};
}

std::string loadPlugin(Session& session, const CommonOptions& options) {
  return session.loadPlugin(options.plugin.empty() ? defaultBundle() : fs::path(options.plugin));
}

void RefusalReport::tell(Host& host) {
  const std::vector<std::string>& refused = host.refusal().refused();
  for (; told_ < refused.size(); ++told_) complain("refused " + refused[told_]);
}

}  // namespace host
