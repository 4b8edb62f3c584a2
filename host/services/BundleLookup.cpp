#include "BundleLookup.h"

#include <algorithm>
#include <system_error>

#include "PreferredLanguages.h"

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr char kLocalisationSuffix[] = ".lproj";

fs::path resourceFolder(const fs::path& bundle) {
  return bundle / "Contents" / "Resources";
}

std::string withHyphens(std::string_view localisation) {
  std::string text(localisation);
  std::replace(text.begin(), text.end(), '_', '-');
  return text;
}

// Folders of all localisations in the order of their names, so that a choice does not hang on the disk.
std::vector<fs::path> localisations(const fs::path& bundle) {
  std::vector<fs::path> folders;
  std::error_code error;
  for (fs::directory_iterator at(resourceFolder(bundle), error), end; !error && at != end;
       at.increment(error)) {
    std::error_code ignored;
    if (at->path().extension() == kLocalisationSuffix && at->is_directory(ignored)) {
      folders.push_back(at->path());
    }
  }
  std::sort(folders.begin(), folders.end());
  return folders;
}

// Nullopt for a folder such as "de.old.lproj" too: somebody put it aside.
std::optional<std::string> tagOf(const fs::path& folder) {
  const std::string name = folder.stem().string();
  return name.find_first_of(".@") == std::string::npos ? languageTag(name) : std::nullopt;
}

template <typename Wanted>
std::optional<fs::path> firstFolder(const std::vector<fs::path>& folders, Wanted wanted) {
  const auto found = std::find_if(folders.begin(), folders.end(), [&](const fs::path& folder) {
    const std::optional<std::string> tag = tagOf(folder);
    return tag && wanted(std::string_view(*tag));
  });
  return found == folders.end() ? std::nullopt : std::optional(*found);
}

// "zh-Hant-TW" also looks for "zh-Hant" and "zh", and what is in no other region is in none.
std::optional<fs::path> folderForLanguage(const std::vector<fs::path>& folders, const fs::path& english,
                                          std::string_view language) {
  for (std::string_view wanted = language; !wanted.empty();) {
    auto exact = firstFolder(folders, [&](std::string_view tag) { return tag == wanted; });
    if (exact) return exact;
    const std::size_t cut = wanted.rfind('-');
    wanted = cut == std::string_view::npos ? std::string_view() : wanted.substr(0, cut);
  }
  const std::string_view primary = primaryLanguage(language);
  if (primary == "en") return english;
  return firstFolder(folders, [&](std::string_view tag) { return primaryLanguage(tag) == primary; });
}

}  // namespace

bool isBundle(const fs::path& folder) {
  std::error_code ignored;
  return fs::is_directory(resourceFolder(folder), ignored);
}

std::optional<fs::path> localisationFolder(const fs::path& bundle, std::string_view localisation) {
  const std::string wanted = withHyphens(localisation);
  for (const fs::path& folder : localisations(bundle)) {
    if (withHyphens(folder.stem().string()) == wanted) return folder;
  }
  return std::nullopt;
}

fs::path chosenFolder(const fs::path& bundle, const std::vector<std::string>& languages) {
  const std::vector<fs::path> folders = localisations(bundle);
  fs::path english = resourceFolder(bundle);
  for (const std::string& language : languages) {
    if (auto folder = folderForLanguage(folders, english, language)) return *std::move(folder);
  }
  return english;
}

std::optional<std::string> fileInFolder(const fs::path& folder, std::string_view name,
                                        std::string_view extension) {
  std::string file(name);
  if (!extension.empty()) file.append(".").append(extension);
  if (file.empty() || file == "." || file == ".." || file.find('/') != std::string::npos) return std::nullopt;
  std::error_code error;
  const fs::path path = fs::absolute(folder / file, error);
  if (error || !fs::is_regular_file(path, error)) return std::nullopt;
  return path.string();
}

}  // namespace host
