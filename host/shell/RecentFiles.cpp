#include "RecentFiles.h"

#include <algorithm>

#include "WindowSettings.h"

namespace host {

std::vector<std::string> RecentFiles::all() const {
  return settings_.recentFiles();
}

// Another window may have opened drawings meanwhile.
std::vector<std::string> RecentFiles::without(const std::string& file) {
  settings_.catchUp();
  std::vector<std::string> files = all();
  files.erase(std::remove(files.begin(), files.end(), file), files.end());
  return files;
}

void RecentFiles::add(const std::string& file) {
  if (file.empty()) return;
  std::vector<std::string> files = without(file);
  files.insert(files.begin(), file);
  if (files.size() > kMost) files.resize(kMost);
  settings_.setRecentFiles(files);
}

void RecentFiles::drop(const std::string& file) {
  settings_.setRecentFiles(without(file));
}

void RecentFiles::clear() {
  settings_.catchUp();
  settings_.setRecentFiles({});
}

}  // namespace host
