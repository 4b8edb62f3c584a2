#include "Platform.h"

#include <cstring>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "BundleLookup.h"
#include "NormalForm.h"
#include "PreferredLanguages.h"
#include "SharedDataFolder.h"

namespace {

// False, with the buffer left alone, if the text and the NUL behind it do not fit.
bool copyText(std::string_view text, char* buffer, std::size_t size) {
  if (buffer == nullptr || text.size() >= size) return false;
  std::memcpy(buffer, text.data(), text.size());
  buffer[text.size()] = '\0';
  return true;
}

}  // namespace

bool CopyPreferredLanguage(char* tag, std::size_t size) {
  const std::vector<std::string> languages = host::preferredLanguages();
  return !languages.empty() && copyText(languages.front(), tag, size);
}

NormalFormResult NormalizeFormC(char* text, std::size_t size) {
  if (text == nullptr) return NormalFormResult::NotUTF8;
  const std::optional<std::string> normal = host::normalFormC({text, strnlen(text, size)});
  if (!normal) return NormalFormResult::NotUTF8;
  return copyText(*normal, text, size) ? NormalFormResult::Done : NormalFormResult::TooLong;
}

bool IsBundle(const char* folder) {
  return folder != nullptr && host::isBundle(folder);
}

bool CopyBundleResourcePath(const char* bundle, const char* name, const char* extension,
                            const char* localisation, char* path, std::size_t size) {
  if (bundle == nullptr || name == nullptr) return false;
  const std::optional<std::filesystem::path> folder =
      localisation != nullptr ? host::localisationFolder(bundle, localisation)
                              : host::chosenFolder(bundle, host::preferredLanguages());
  if (!folder) return false;
  const std::optional<std::string> file =
      host::fileInFolder(*folder, name, extension != nullptr ? extension : "");
  return file && copyText(*file, path, size);
}

bool FSFindFolder(std::int16_t domain, std::uint32_t type, char* path, std::size_t size) {
  if (domain != kLocalDomain || type != kSharedUserDataFolderType) return false;
  const std::string folder = host::sharedDataFolder();
  return !folder.empty() && copyText(folder, path, size);
}
