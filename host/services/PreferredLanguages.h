// The languages in which the user wants to be spoken to.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

// The tag of a locale name or of a tag: codeset and modifier dropped, "_" made "-", letters in the case of
// BCP 47 (section 2.1.1), so "pt_br.UTF-8" gives "pt-BR". Nullopt for what names no language, such as "C",
// "POSIX" and "de-".
std::optional<std::string> languageTag(std::string_view localeName);

// The language without region, script and the like: "pt" of "pt-BR".
std::string_view primaryLanguage(std::string_view tag);

// Tags, the most preferred language first and each once, as the environment tells now: the list in LANGUAGE,
// or else LC_ALL, LC_MESSAGES or LANG, whichever is the first that is set and not empty. Unlike in
// gettext, LANGUAGE also counts in the locale "C". Entries that name no language are skipped.
std::vector<std::string> preferredLanguages();

// Makes a language the only preferred one, for this process and those it starts. Not while other threads may
// be reading the environment.
void preferLanguage(std::string_view tag);
// Takes back what preferLanguage has done, however often: the environment tells as it told at the start.
void preferSystemLanguages();

}  // namespace host
