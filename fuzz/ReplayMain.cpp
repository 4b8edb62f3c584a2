// Runs a harness over files: those named and those in the folders named.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "FuzzTarget.h"

namespace {

void Replay(const std::filesystem::path& path) {
  std::printf("%s\n", path.filename().c_str());
  std::fflush(stdout);
  std::ifstream file(path, std::ios::binary);
  const std::vector<char> bytes(std::istreambuf_iterator<char>(file), {});
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int count, char** arguments) {
  int files = 0;
  for (int at = 1; at < count; ++at) {
    const std::filesystem::path path = arguments[at];
    if (!std::filesystem::is_directory(path)) {
      Replay(path);
      ++files;
      continue;
    }
    for (const auto& entry : std::filesystem::directory_iterator(path)) {
      Replay(entry.path());
      ++files;
    }
  }
  if (files == 0) std::fputs("there is nothing to run\n", stderr);
  return files > 0 ? 0 : 1;
}
