// Files in the resource folder of a bundle, in the language they are wanted in.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

// A bundle is a folder with Contents/Resources in it. What lies there is in English or in no language; a
// folder "<localisation>.lproj" in it holds what is in another. "pt_BR" and "pt-BR" are one localisation.
bool isBundle(const std::filesystem::path& folder);

// Folder of a localisation; nullopt if the bundle lacks it.
std::optional<std::filesystem::path> localisationFolder(const std::filesystem::path& bundle,
                                                        std::string_view localisation);

// The bundle's own choice for a user of these languages: the folder of the first of them that the bundle
// has, in that region or else in any. The resource folder stands for English and for all other languages.
std::filesystem::path chosenFolder(const std::filesystem::path& bundle,
                                   const std::vector<std::string>& languages);

// Absolute path of "<name>.<extension>", or of `name` with an empty extension, directly in the folder.
// Nullopt if no file is there or the name would lead out of the folder.
std::optional<std::string> fileInFolder(const std::filesystem::path& folder, std::string_view name,
                                        std::string_view extension);

}  // namespace host
