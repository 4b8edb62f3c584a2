#include "RecentFiles.h"

#include <algorithm>

#include "WindowSettings.h"

namespace host {
namespace {

void remove(std::vector<std::string>& files, const std::string& file) {
  files.erase(std::remove(files.begin(), files.end(), file), files.end());
}

}  // namespace

std::vector<std::string> RecentFiles::all() const {
  return settings_.recentFiles();
}

void RecentFiles::add(const std::string& file) {
  if (file.empty()) return;
  std::vector<std::string> files = all();
  remove(files, file);
  files.insert(files.begin(), file);
  if (files.size() > kMost) files.resize(kMost);
  settings_.setRecentFiles(files);
}

void RecentFiles::drop(const std::string& file) {
  std::vector<std::string> files = all();
  remove(files, file);
  settings_.setRecentFiles(files);
}

void RecentFiles::clear() {
  settings_.setRecentFiles({});
}

}  // namespace host
