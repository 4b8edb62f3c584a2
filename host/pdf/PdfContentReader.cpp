#include "PdfContentReader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace host {
namespace {

enum class Character : std::uint8_t { Regular, Blank, Delimiter };

constexpr std::array<Character, 256> characterKinds() {
  std::array<Character, 256> kinds{};
  for (const int blank : {0, 9, 10, 12, 13, 32}) kinds[static_cast<std::size_t>(blank)] = Character::Blank;
  for (const char delimiter : {'(', ')', '<', '>', '[', ']', '{', '}', '/', '%'})
    kinds[static_cast<unsigned char>(delimiter)] = Character::Delimiter;
  return kinds;
}

constexpr std::array<Character, 256> kKinds = characterKinds();

Character kindOf(char character) {
  return kKinds[static_cast<unsigned char>(character)];
}

bool beginsNumber(char character) {
  return (character >= '0' && character <= '9') || character == '-' || character == '.' || character == '+';
}

}  // namespace

bool PdfContentReader::next() {
  operands_.clear();
  depth_ = 0;
  for (skipBlanks(); !rest_.empty(); skipBlanks()) {
    const char first = rest_.front();
    if (beginsNumber(first)) {
      readNumber();
    } else if (kindOf(first) == Character::Delimiter) {
      readDelimited();
    } else {
      const std::string_view word = takeRegular(0);
      if (depth_ > 0) continue;
      op_ = word;
      if (op_ == "ID") skipInlineImage();
      return true;
    }
  }
  return false;
}

void PdfContentReader::skipBlanks() {
  std::size_t count = 0;
  while (count < rest_.size() && kindOf(rest_[count]) == Character::Blank) ++count;
  rest_.remove_prefix(count);
}

std::string_view PdfContentReader::takeRegular(std::size_t from) {
  std::size_t count = from;
  while (count < rest_.size() && kindOf(rest_[count]) == Character::Regular) ++count;
  const std::string_view taken = rest_.substr(0, count);
  rest_.remove_prefix(count);
  return taken;
}

void PdfContentReader::readNumber() {
  const char* const end = rest_.data() + rest_.size();
  Operand operand;
  const char* const digits = rest_.data() + (rest_.front() == '+' ? 1 : 0);
  const char* const after = std::from_chars(digits, end, operand.number, std::chars_format::fixed).ptr;
  rest_.remove_prefix(static_cast<std::size_t>(after - rest_.data()));
  takeRegular(0);  // of what is no number after all
  if (depth_ == 0) operands_.push_back(operand);
}

void PdfContentReader::readDelimited() {
  const char first = rest_.front();
  if (first == '(') return skipString();
  if (first == '%') return rest_.remove_prefix(std::min(rest_.find_first_of("\r\n"), rest_.size()));
  if (first == '/') {
    const std::string_view name = takeRegular(1);
    if (depth_ == 0) operands_.push_back({0, name});
    return;
  }
  const bool isDouble = rest_.size() > 1 && rest_[1] == first && (first == '<' || first == '>');
  if (first == '<' && !isDouble) {
    rest_.remove_prefix(std::min(rest_.find('>'), rest_.size() - 1));
  } else if (first == '[' || first == '<') {
    ++depth_;
  } else if (depth_ > 0 && (first == ']' || first == '>')) {
    --depth_;
  }
  rest_.remove_prefix(isDouble ? 2 : 1);
  const bool isWhole = depth_ == 0 && (first == ']' || first == '>' || (first == '<' && !isDouble));
  if (isWhole) operands_.emplace_back();
}

void PdfContentReader::skipString() {
  std::size_t at = 0;
  int open = 0;
  do {
    if (rest_[at] == '\\')
      ++at;
    else if (rest_[at] == '(')
      ++open;
    else if (rest_[at] == ')')
      --open;
    ++at;
  } while (open > 0 && at < rest_.size());
  rest_.remove_prefix(std::min(at, rest_.size()));
  if (depth_ == 0) operands_.emplace_back();
}

void PdfContentReader::skipInlineImage() {
  std::size_t end = rest_.find("EI");
  const auto standsAlone = [&] {
    return kindOf(rest_[end - 1]) == Character::Blank &&
           (end + 2 == rest_.size() || kindOf(rest_[end + 2]) == Character::Blank);
  };
  while (end != std::string_view::npos && (end == 0 || !standsAlone())) end = rest_.find("EI", end + 1);
  rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 2);
}

}  // namespace host
