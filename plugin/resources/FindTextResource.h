// Paths of text files below the resource folder, which the environment variable LOCALE_PATH names.
#pragma once

#include <optional>
#include <string>

// With a null `language`: the path in the resource folder itself; the file need not be there. Nothing for a
// null or empty `extension`, which may be written with or without its ".".
// With a language, a localisation's name or "Bundle" for the bundle's own choice: the path of the file in
// that localisation of the bundle, failing that in the one of the bundle's choice, or nothing. The name is
// tried as it is, in capitals and in small letters, each with the extensions "asc", "ASC" and none, whatever
// `extension` says.
std::optional<std::string> FindTextResource(const char* language, const char* name, const char* extension);
