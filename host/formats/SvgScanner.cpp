#include "SvgScanner.h"

#include <charconv>
#include <cstdint>
#include <limits>

namespace host {
namespace {

constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                   1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr int kLargestExactPower = 22;
constexpr std::uint64_t kLargestExactInteger = std::uint64_t{1} << 53;
constexpr int kDigitsThatFit = 19;

// A number's digits as they are read: mantissa * 10^exponent.
struct Decimal {
  std::uint64_t mantissa = 0;
  int digits = 0;
  int exponent = 0;

  void append(char digit) {
    if (++digits <= kDigitsThatFit) mantissa = mantissa * 10 + static_cast<std::uint64_t>(digit - '0');
  }
  // Is one multiplication or division of two exact doubles enough?
  bool isSimple() const {
    return digits <= kDigitsThatFit && mantissa <= kLargestExactInteger && exponent <= kLargestExactPower &&
           exponent >= -kLargestExactPower;
  }
  double simpleValue() const {
    const auto value = static_cast<double>(mantissa);
    return exponent < 0 ? value / kPowersOfTen[-exponent] : value * kPowersOfTen[exponent];
  }
};

double exactValue(const char* begin, const char* end, const Decimal& decimal) {
  double value = 0;
  const auto result = std::from_chars(begin, end, value);
  if (result.ec != std::errc::result_out_of_range) return value;
  const bool large = decimal.digits + decimal.exponent > 0;
  return large ? std::numeric_limits<double>::infinity() : 0;
}

// Behind the exponent if one stands at `at`, else `at`. "1em" has none.
const char* readExponent(const char* at, const char* end, Decimal& decimal) {
  if (at == end || (*at != 'e' && *at != 'E')) return at;
  const char* digit = at + 1;
  const bool negative = digit != end && *digit == '-';
  if (digit != end && (*digit == '-' || *digit == '+')) ++digit;
  if (digit == end || !isSvgDigit(*digit)) return at;
  int exponent = 0;
  for (; digit != end && isSvgDigit(*digit); ++digit) {
    if (exponent < 100000) exponent = exponent * 10 + (*digit - '0');
  }
  decimal.exponent += negative ? -exponent : exponent;
  return digit;
}

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isIdentifierPart(char c) {
  const char small = lower(c);
  return (small >= 'a' && small <= 'z') || isSvgDigit(c) || c == '-' || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

}  // namespace

std::string_view withoutBlanksAround(std::string_view text) {
  while (!text.empty() && isSvgBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isSvgBlank(text.back())) text.remove_suffix(1);
  return text;
}

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (lower(a[i]) != lower(b[i])) return false;
  }
  return true;
}

void SvgScanner::skipCommaBlanks() {
  skipBlanks();
  if (take(',')) skipBlanks();
}

bool SvgScanner::take(char c) {
  if (at_ == end_ || *at_ != c) return false;
  ++at_;
  return true;
}

std::optional<double> SvgScanner::number() {
  const char* at = at_;
  const bool negative = at != end_ && *at == '-';
  if (at != end_ && (*at == '-' || *at == '+')) ++at;
  const char* const digits = at;
  Decimal decimal;
  while (at != end_ && *at == '0') ++at;
  bool any = at != digits;
  for (; at != end_ && isSvgDigit(*at); ++at) decimal.append(*at);
  if (at != end_ && *at == '.') {
    const char* const fraction = ++at;
    for (; at != end_ && isSvgDigit(*at); ++at) {
      if (decimal.digits > 0 || *at != '0') decimal.append(*at);
    }
    decimal.exponent = -static_cast<int>(at - fraction);
    any = any || at != fraction;
  }
  if (!any && decimal.digits == 0) return std::nullopt;
  at = readExponent(at, end_, decimal);
  at_ = at;
  const double value = decimal.isSimple() ? decimal.simpleValue() : exactValue(digits, at, decimal);
  return negative ? -value : value;
}

std::string_view SvgScanner::identifier() {
  const char* const from = at_;
  while (at_ != end_ && isIdentifierPart(*at_)) ++at_;
  return {from, static_cast<std::size_t>(at_ - from)};
}

std::string_view SvgScanner::until(std::string_view stops) {
  const char* const from = at_;
  while (at_ != end_ && stops.find(*at_) == std::string_view::npos) ++at_;
  return {from, static_cast<std::size_t>(at_ - from)};
}

}  // namespace host
