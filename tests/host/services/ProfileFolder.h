// A folder with files for the length of a test.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace host {

class ProfileFolder {
 public:
  ProfileFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "profiles-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("cannot make a scratch folder");
    path = pattern;
  }
  ProfileFolder(const ProfileFolder&) = delete;
  ProfileFolder& operator=(const ProfileFolder&) = delete;
  ~ProfileFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }

  // Folders on the way are made.
  std::filesystem::path write(const std::string& name, const std::string& bytes) const {
    const std::filesystem::path file = path / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
  }

  std::filesystem::path path;
};

}  // namespace host
