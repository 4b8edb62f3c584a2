// A folder that lasts as long as the object.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace texts {

class Scratch {
 public:
  Scratch() {
    std::string name = (std::filesystem::temp_directory_path() / "texts-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("cannot make a scratch folder");
    path = name;
  }
  ~Scratch() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  // Folders on the way are made.
  void Write(const std::string& file, const std::string& content) const {
    std::filesystem::create_directories((path / file).parent_path());
    std::ofstream stream(path / file, std::ios::binary);
    stream << content;
    if (!stream.flush()) throw std::runtime_error("cannot write " + (path / file).string());
  }

  std::filesystem::path path;
};

}  // namespace texts
