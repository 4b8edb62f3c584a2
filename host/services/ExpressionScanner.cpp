#include "ExpressionScanner.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <system_error>

namespace host {
namespace {

struct Spelling {
  std::string_view text;
  ExpressionUnit unit;
};

constexpr Spelling kWords[] = {
    {"pt", unit::kPoint},    {"mm", unit::kMillimetre}, {"in", unit::kInch},     {"cm", unit::kCentimetre},
    {"p", unit::kPica},      {"pc", unit::kPica},       {"px", unit::kPixel},    {"h", unit::kQ},
    {"q", unit::kQ},         {"ft", unit::kFoot},       {"m", unit::kMetre},     {"yd", unit::kYard},
    {"deg", unit::kDegree},  {"pts", unit::kPoint},     {"point", unit::kPoint}, {"points", unit::kPoint},
    {"inch", unit::kInch},   {"inches", unit::kInch},   {"foot", unit::kFoot},   {"feet", unit::kFoot},
    {"yard", unit::kYard},   {"yards", unit::kYard},    {"pica", unit::kPica},   {"picas", unit::kPica},
    {"pixel", unit::kPixel}, {"pixels", unit::kPixel},
};
constexpr std::size_t kLongestWord = 8;

// The longer before what it begins with. Straight, typographic and measuring marks.
constexpr Spelling kMarks[] = {
    {"\"", unit::kInch},           {"''", unit::kInch},   {"\xE2\x80\xB3", unit::kInch},
    {"\xE2\x80\x9D", unit::kInch}, {"'", unit::kFoot},    {"\xE2\x80\xB2", unit::kFoot},
    {"\xE2\x80\x99", unit::kFoot}, {"%", unit::kPercent}, {"\xC2\xB0", unit::kDegree},
};

// Next line, no-break space, the spaces of typography, zero-width ones, and the mark of byte order.
constexpr std::string_view kWideBlanks[] = {
    "\xC2\x85",     "\xC2\xA0",     "\xE1\x9A\x80", "\xE2\x80\x80", "\xE2\x80\x81", "\xE2\x80\x82",
    "\xE2\x80\x83", "\xE2\x80\x84", "\xE2\x80\x85", "\xE2\x80\x86", "\xE2\x80\x87", "\xE2\x80\x88",
    "\xE2\x80\x89", "\xE2\x80\x8A", "\xE2\x80\x8B", "\xE2\x80\xA8", "\xE2\x80\xA9", "\xE2\x80\xAF",
    "\xE2\x81\x9F", "\xE2\x81\xA0", "\xE3\x80\x80", "\xEF\xBB\xBF"};

bool startsWith(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isDecimalSign(char c) {
  return c == '.' || c == ',';
}

// The length of the blank that the text starts with, 0 for none.
std::size_t blankLength(std::string_view text) {
  if (text.empty()) return 0;
  const char c = text.front();
  if (c == ' ' || (c >= '\t' && c <= '\r')) return 1;
  if (static_cast<unsigned char>(c) < 0x80) return 0;
  for (const std::string_view blank : kWideBlanks) {
    if (startsWith(text, blank)) return blank.size();
  }
  return 0;
}

// Of digits with a "." at most. Too small for a double is 0, too large is nullopt.
std::optional<double> valueOf(std::string_view digits) {
  double value = 0;
  const auto read =
      std::from_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
  if (read.ec != std::errc::result_out_of_range) return value;
  const std::size_t firstOther = digits.find_first_not_of('0');
  if (firstOther != std::string_view::npos && digits[firstOther] == '.') return 0.0;
  return std::nullopt;
}

}  // namespace

void ExpressionScanner::skipBlanks() {
  while (const std::size_t length = blankLength(rest_)) rest_.remove_prefix(length);
}

bool ExpressionScanner::atEnd() {
  skipBlanks();
  return rest_.empty();
}

bool ExpressionScanner::takeText(std::string_view text) {
  if (!startsWith(rest_, text)) return false;
  rest_.remove_prefix(text.size());
  return true;
}

bool ExpressionScanner::take(char sign) {
  skipBlanks();
  if (takeText({&sign, 1})) return true;
  if (sign == '-') return takeText("\xE2\x88\x92");
  if (sign == '*') return takeText("\xC3\x97");
  return sign == '/' && takeText("\xC3\xB7");
}

std::optional<double> ExpressionScanner::takeNumber() {
  skipBlanks();
  const auto isPart = [](char c) { return isDigit(c) || isDecimalSign(c); };
  const auto end = std::find_if_not(rest_.begin(), rest_.end(), isPart);
  const std::string_view written = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
  const auto decimalSigns = std::count_if(written.begin(), written.end(), isDecimalSign);
  if (decimalSigns > 1 || static_cast<std::size_t>(decimalSigns) == written.size()) return std::nullopt;

  std::string digits(written);
  std::replace(digits.begin(), digits.end(), ',', '.');
  const std::optional<double> value = valueOf(digits);
  if (value) rest_.remove_prefix(written.size());
  return value;
}

std::optional<ExpressionUnit> ExpressionScanner::takeUnit() {
  skipBlanks();
  std::string word;
  for (const char c : rest_.substr(0, kLongestWord + 1)) {
    const char small = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    if (small < 'a' || small > 'z') break;
    word += small;
  }
  if (word.empty()) return takeMark();
  for (const Spelling& known : kWords) {
    if (known.text != word) continue;
    rest_.remove_prefix(word.size());
    return known.unit;
  }
  return std::nullopt;
}

std::optional<ExpressionUnit> ExpressionScanner::takeMark() {
  for (const Spelling& known : kMarks) {
    if (takeText(known.text)) return known.unit;
  }
  return std::nullopt;
}

}  // namespace host
