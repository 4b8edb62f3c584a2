// A folder of a test's own, removed with all its files.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

class Scratch {
 public:
  Scratch();
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;
  ~Scratch();

  const std::filesystem::path& Folder() const { return folder_; }
  // The path of a new file with these bytes.
  std::string Write(const std::string& name, std::string_view bytes) const;

 private:
  std::filesystem::path folder_;
};
