#include "PrintfConversions.h"

#include <algorithm>
#include <array>

namespace texts {
namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kFlags = "-+ #0";
constexpr std::array<std::string_view, 8> kLengths = {"hh", "h", "ll", "l", "j", "z", "t", "L"};

// Which lengths go with which conversions.
struct Kind {
  std::string_view letters;
  std::string_view lengths;  // first letters; empty: none
};
constexpr Kind kKinds[] = {{"diouxX", "hljzt"}, {"fFeEgGaA", "lL"}, {"cs", "l"}, {"p", ""}};

std::size_t Skip(std::string_view text, std::size_t at, std::string_view bytes) {
  return std::min(text.find_first_not_of(bytes, at), text.size());
}

// Past digits or one star.
std::size_t SkipNumber(std::string_view text, std::size_t at) {
  return text.substr(at, 1) == "*" ? at + 1 : Skip(text, at, kDigits);
}

bool Converts(char letter, std::string_view length) {
  return std::any_of(std::begin(kKinds), std::end(kKinds), [=](const Kind& kind) {
    return kind.letters.find(letter) != std::string_view::npos &&
           (length.empty() || kind.lengths.find(length.front()) != std::string_view::npos);
  });
}

// The size of the conversion that `text` begins with, at a "%"; 0 if there is none.
std::size_t ConversionSize(std::string_view text) {
  if (text.substr(0, 2) == "%%") return 2;
  std::size_t at = SkipNumber(text, Skip(text, 1, kFlags));
  if (text.substr(at, 1) == ".") at = SkipNumber(text, at + 1);
  const auto* const length = std::find_if(kLengths.begin(), kLengths.end(), [&](std::string_view candidate) {
    return text.substr(at, candidate.size()) == candidate;
  });
  const std::string_view found = length != kLengths.end() ? *length : std::string_view();
  at += found.size();
  return at < text.size() && Converts(text[at], found) ? at + 1 : 0;
}

}  // namespace

std::optional<std::vector<std::string>> PrintfConversions(std::string_view format) {
  std::vector<std::string> conversions;
  for (std::size_t at = format.find('%'); at != std::string_view::npos; at = format.find('%', at)) {
    const std::size_t size = ConversionSize(format.substr(at));
    if (size == 0) return std::nullopt;
    conversions.emplace_back(format.substr(at, size));
    at += size;
  }
  return conversions;
}

}  // namespace texts
