#include "Scratch.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>

Scratch::Scratch() {
  std::string pattern = (std::filesystem::temp_directory_path() / "rdb-test-XXXXXX").string();
  if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no scratch folder: " + pattern);
  folder_ = pattern;
}

Scratch::~Scratch() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

std::string Scratch::Write(const std::string& name, std::string_view bytes) const {
  const std::filesystem::path path = folder_ / name;
  std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return path.string();
}
