#include "ResourceLine.h"

#include <algorithm>
#include <charconv>

namespace qRVADM {
namespace {

constexpr std::string_view kSpaces = " \t\n\v\f\r";
constexpr std::size_t kTypeSize = 9;
constexpr std::size_t kNameSize = 127;

void SkipSpaces(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(kSpaces), text.size()));
}

bool TakeNumber(std::string_view& text, int& number) {
  SkipSpaces(text);
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return false;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return true;
}

std::string_view TakeWord(std::string_view& text, std::size_t longest) {
  SkipSpaces(text);
  const std::string_view word = text.substr(0, std::min(text.find_first_of(kSpaces), longest));
  text.remove_prefix(word.size());
  return word;
}

}  // namespace

std::optional<ResourceLine> ParseResourceLine(std::string_view text) {
  text = text.substr(0, text.find('\0'));
  ResourceLine line{};
  if (!TakeNumber(text, line.id) || text.empty() || text.front() != '.') return {};
  text.remove_prefix(1);
  line.type = TakeWord(text, kTypeSize);
  line.name = TakeWord(text, kNameSize);
  if (line.name.empty()) return {};
  return line;
}

}  // namespace qRVADM
