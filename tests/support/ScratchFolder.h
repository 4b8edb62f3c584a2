// A folder of a test's own.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

// Made with the object, and removed with it and all its files.
class ScratchFolder {
 public:
  ScratchFolder() : path(make()) {}
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }

  std::string file(const std::string& name) const { return (path / name).string(); }
  // Makes the folders on the way, and gives back the path.
  std::string write(const std::string& name, std::string_view bytes) const {
    std::filesystem::create_directories((path / name).parent_path());
    std::ofstream stream(path / name, std::ios::binary);
    stream << bytes;
    if (!stream.flush()) throw std::runtime_error("cannot write " + file(name));
    return file(name);
  }
  // Empty for a file that is not there.
  std::string read(const std::string& name) const {
    std::ifstream stream(path / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  bool has(const std::string& name) const { return std::filesystem::exists(path / name); }
  std::size_t count() const {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator(path), std::filesystem::directory_iterator()));
  }

  const std::filesystem::path path;

 private:
  static std::string make() {
    std::string pattern = (std::filesystem::temp_directory_path() / "corvane-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("cannot make a scratch folder");
    return pattern;
  }
};
