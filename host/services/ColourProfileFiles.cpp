#include "ColourProfileFiles.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <string_view>
#include <system_error>

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr char kBelowData[] = "color/icc";
constexpr std::uintmax_t kLargestProfile = 64U << 20;  // bytes; measured presses take 1 to 3 MB

std::string_view variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string_view() : value;
}

bool isAbsolute(std::string_view path) {
  return !path.empty() && path[0] == '/';
}

void addList(std::vector<fs::path>& folders, std::string_view list) {
  while (!list.empty()) {
    const std::size_t end = std::min(list.find(':'), list.size());
    const std::string_view base = list.substr(0, end);
    if (isAbsolute(base)) folders.push_back(fs::path(base) / kBelowData);
    list.remove_prefix(std::min(end + 1, list.size()));
  }
}

// ICC.1:2022, 7.2: bytes 12 to 15 of a profile are its class, 16 to 19 its colour space.
bool isCmykPrinterProfile(const fs::path& file) {
  char head[20] = {};
  std::ifstream stream(file, std::ios::binary);
  return stream.read(head, sizeof head) && std::string_view(head + 12, 8) == "prtrCMYK";
}

std::vector<fs::path> cmykProfileFilesBelow(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code error;
  fs::recursive_directory_iterator at(folder, fs::directory_options::skip_permission_denied, error);
  for (const fs::recursive_directory_iterator end; !error && at != end; at.increment(error)) {
    std::error_code ignored;
    if (at->is_regular_file(ignored) && isCmykPrinterProfile(at->path())) files.push_back(at->path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

std::vector<fs::path> colourProfileFolders() {
  std::vector<fs::path> folders;
  const std::string_view home = variable("HOME");
  if (const std::string_view data = variable("XDG_DATA_HOME"); isAbsolute(data)) {
    folders.push_back(fs::path(data) / kBelowData);
  } else if (isAbsolute(home)) {
    folders.push_back(fs::path(home) / ".local/share" / kBelowData);
  }
  if (isAbsolute(home)) folders.push_back(fs::path(home) / ".color/icc");
  const std::string_view shared = variable("XDG_DATA_DIRS");
  addList(folders, shared.empty() ? "/usr/local/share:/usr/share" : shared);
  return folders;
}

std::string colourProfileVariables() {
  std::string all;
  for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_DATA_DIRS"}) {
    all.append(variable(name)).push_back('\n');
  }
  return all;
}

std::vector<fs::path> cmykProfileFiles(const std::vector<fs::path>& folders) {
  std::vector<fs::path> files;
  for (const fs::path& folder : folders) {
    const std::vector<fs::path> found = cmykProfileFilesBelow(folder);
    files.insert(files.end(), found.begin(), found.end());
  }
  return files;
}

std::optional<std::string> readColourProfile(const fs::path& file) {
  std::error_code error;
  const std::uintmax_t size = fs::file_size(file, error);
  if (error || size > kLargestProfile) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(size), '\0');
  std::ifstream stream(file, std::ios::binary);
  if (!stream.read(bytes.data(), static_cast<std::streamsize>(size))) return std::nullopt;
  return bytes;
}

}  // namespace host
