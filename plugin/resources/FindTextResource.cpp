#include "FindTextResource.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "Platform.h"

namespace {

constexpr std::size_t kPathSize = 4096;
constexpr std::string_view kOwnChoice = "Bundle";

std::optional<std::string> BundleAround(std::string_view path) {
  for (;;) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string_view::npos) return std::nullopt;
    const bool found = path.substr(slash + 1) == "Contents";
    path.remove_suffix(path.size() - slash);
    if (found) return std::string(path);
  }
}

// Letters beyond ASCII stay as they are, in every locale.
std::string InCapitals(std::string text) {
  for (char& letter : text) {
    if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
  }
  return text;
}
std::string InSmallLetters(std::string text) {
  for (char& letter : text) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return text;
}

std::optional<std::string> Look(const std::string& bundle, const std::string& name,
                                const char* localisation) {
  char path[kPathSize];
  for (const std::string& spelling : {name, InCapitals(name), InSmallLetters(name)}) {
    for (const char* extension : {"asc", "ASC", ""}) {
      if (CopyBundleResourcePath(bundle.c_str(), spelling.c_str(), extension, localisation, path,
                                 sizeof path)) {
        return path;
      }
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> FindTextResource(const char* language, const char* name, const char* extension) {
  const char* folder = std::getenv("LOCALE_PATH");
  if (folder == nullptr) return std::nullopt;
  if (language == nullptr) {
    if (extension == nullptr || extension[0] == '\0') return std::nullopt;
    return std::string(folder) + "/" + name + (extension[0] == '.' ? "" : ".") + extension;
  }
  const auto bundle = BundleAround(folder);
  if (!bundle || !IsBundle(bundle->c_str())) return std::nullopt;
  if (language != kOwnChoice) {
    if (auto path = Look(*bundle, name, language)) return path;
  }
  return Look(*bundle, name, nullptr);
}
