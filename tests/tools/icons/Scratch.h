// A folder with a list of icons and its sources, which lasts as long as the object.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>

#include "Files.h"
#include "Run.h"

namespace icons {

class Scratch {
 public:
  Scratch() {
    std::string name = (std::filesystem::temp_directory_path() / "icons-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("cannot make a scratch folder");
    path = name;
  }
  ~Scratch() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  void write(const std::string& file, const std::string& text) const { writeFile(path / file, text); }
  std::string read(const std::string& file) const { return readFile(path / file); }

  std::filesystem::path path;
};

struct Outcome {
  int code;
  std::string errors;
};

inline Outcome runOn(const Scratch& scratch) {
  std::ostringstream errors;
  const int code = run({scratch.path / "icons.txt", scratch.path / "out"}, errors);
  return {code, errors.str()};
}

}  // namespace icons
