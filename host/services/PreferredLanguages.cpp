#include "PreferredLanguages.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <utility>

namespace host {
namespace {

constexpr std::size_t kLongestSubtag = 8;
constexpr char kVariable[] = "LANGUAGE";

// What the variable was before the program set it.
struct Replaced {
  bool isReplaced = false;
  std::optional<std::string> value;
};

Replaced& languageOfSystem() {
  static Replaced value;
  return value;
}

// Of ASCII alone, whatever the locale.
bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
char upper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool isLanguage(std::string_view subtag) {
  return (subtag.size() == 2 || subtag.size() == 3) && std::all_of(subtag.begin(), subtag.end(), isLetter);
}

bool isSubtag(std::string_view subtag) {
  return !subtag.empty() && subtag.size() <= kLongestSubtag &&
         std::all_of(subtag.begin(), subtag.end(), [](char c) { return isLetter(c) || isDigit(c); });
}

// A region of two letters is in capitals, a script of four has one.
std::string inItsCase(std::string_view subtag) {
  std::string text(subtag);
  std::transform(text.begin(), text.end(), text.begin(), lower);
  if (text.size() == 2) text[1] = upper(text[1]);
  if (text.size() == 2 || text.size() == 4) text[0] = upper(text[0]);
  return text;
}

std::string_view takeUntil(std::string_view& rest, std::string_view separators) {
  const std::size_t end = std::min(rest.find_first_of(separators), rest.size());
  const std::string_view part = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return part;
}

std::string_view wishes() {
  for (const char* variable : {kVariable, "LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(variable);
    if (value != nullptr && value[0] != '\0') return value;
  }
  return {};
}

}  // namespace

std::optional<std::string> languageTag(std::string_view localeName) {
  std::string_view rest = localeName.substr(0, localeName.find_first_of(".@"));
  if (rest.empty() || rest.back() == '-' || rest.back() == '_') return std::nullopt;
  const std::string_view language = takeUntil(rest, "-_");
  if (!isLanguage(language)) return std::nullopt;
  std::string tag(language);
  std::transform(tag.begin(), tag.end(), tag.begin(), lower);
  while (!rest.empty()) {
    const std::string_view subtag = takeUntil(rest, "-_");
    if (!isSubtag(subtag)) return std::nullopt;
    tag += "-" + inItsCase(subtag);
  }
  return tag;
}

std::string_view primaryLanguage(std::string_view tag) {
  return tag.substr(0, tag.find('-'));
}

std::vector<std::string> preferredLanguages() {
  std::vector<std::string> tags;
  std::string_view rest = wishes();
  while (!rest.empty()) {
    std::optional<std::string> tag = languageTag(takeUntil(rest, ":"));
    if (tag && std::find(tags.begin(), tags.end(), *tag) == tags.end()) tags.push_back(*std::move(tag));
  }
  return tags;
}

void preferLanguage(std::string_view tag) {
  if (!languageOfSystem().isReplaced) {
    const char* value = std::getenv(kVariable);
    languageOfSystem() = {true, value != nullptr ? std::optional<std::string>(value) : std::nullopt};
  }
  std::string name(tag);
  std::replace(name.begin(), name.end(), '-', '_');  // as other readers of the variable expect it
  setenv(kVariable, name.c_str(), 1);
}

void preferSystemLanguages() {
  const Replaced before = std::exchange(languageOfSystem(), {});
  if (!before.isReplaced) return;
  if (before.value) {
    setenv(kVariable, before.value->c_str(), 1);
  } else {
    unsetenv(kVariable);
  }
}

}  // namespace host
