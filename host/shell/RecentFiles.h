// The drawings that were opened or saved last.
#pragma once

#include <string>
#include <vector>

namespace host {

class WindowSettings;

class RecentFiles {
 public:
  static constexpr std::size_t kMost = 10;

  // `settings` keeps them and must outlive it.
  explicit RecentFiles(WindowSettings& settings) : settings_(settings) {}

  std::vector<std::string> all() const;  // absolute paths, the latest first
  void add(const std::string& file);     // as the latest
  void drop(const std::string& file);
  void clear();

 private:
  std::vector<std::string> without(const std::string& file);  // those of all windows

  WindowSettings& settings_;
};

}  // namespace host
