#include "Files.h"

#include <fstream>
#include <iterator>

#include "Fault.h"

namespace icons {

std::string readFile(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream || std::filesystem::is_directory(file))
    throw Fault(file.string() + ": the file cannot be read");
  return {std::istreambuf_iterator<char>(stream), {}};
}

void writeFile(const std::filesystem::path& file, const std::string& bytes) {
  std::error_code error;
  std::filesystem::create_directories(file.parent_path(), error);
  std::ofstream stream(file, std::ios::binary);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!stream.flush()) throw Fault(file.string() + ": the file cannot be written");
}

}  // namespace icons
