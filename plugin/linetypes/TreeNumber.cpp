#include "TreeNumber.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace Vandrell::Corvane {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

struct SignedDigits {
  bool negative;
  std::string_view digits;  // begins with a digit or a point, or is empty: no number
};

SignedDigits SplitSign(std::string_view text) {
  constexpr char whiteSpace[] = " \t\n\v\f\r";
  text.remove_prefix(std::min(text.find_first_not_of(whiteSpace), text.size()));
  text.remove_suffix(text.size() - (text.find_last_not_of(whiteSpace) + 1));
  const bool negative = !text.empty() && text[0] == '-';
  if (negative || (!text.empty() && text[0] == '+')) text.remove_prefix(1);
  const bool starts = !text.empty() && (IsDigit(text[0]) || text[0] == '.');
  return {negative, starts ? text : std::string_view()};
}

// Of an exponent beyond its type only the sign is told.
std::int64_t ExponentOf(std::string_view number) {
  const std::size_t mark = number.find_first_of("eE");
  if (mark == std::string_view::npos) return 0;
  number.remove_prefix(mark + 1);
  if (number.substr(0, 1) == "+") number.remove_prefix(1);
  std::int32_t exponent = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), exponent);
  if (error == std::errc()) return exponent;
  return number.substr(0, 1) == "-" ? std::numeric_limits<std::int64_t>::min() / 2
                                    : std::numeric_limits<std::int64_t>::max() / 2;
}

// Of a number that no double holds: too small for one, not too big.
bool IsTiny(std::string_view number) {
  const std::string_view digits = number.substr(0, number.find_first_of("eE"));
  const std::size_t first = std::min(digits.find_first_of("123456789"), digits.size());
  const std::size_t point = std::min(digits.find('.'), digits.size());
  const auto place = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
  return place + ExponentOf(number) < 0;
}

template <typename Integer>
std::optional<Integer> IntegerFromText(std::string_view text) {
  const auto [negative, digits] = SplitSign(text);
  std::int64_t value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  if (negative) value = -value;
  const bool fits =
      value >= std::numeric_limits<Integer>::min() && value <= std::numeric_limits<Integer>::max();
  return fits ? std::optional(static_cast<Integer>(value)) : std::nullopt;
}

}  // namespace

std::string TextOfNumber(double value) {
  char text[32];
  const auto written = std::to_chars(text, text + sizeof text, value, std::chars_format::general, 17);
  return {text, written.ptr};
}

std::string TextOfNumber(std::int32_t value) {
  char text[16];
  const auto written = std::to_chars(text, text + sizeof text, value);
  return {text, written.ptr};
}

std::optional<double> DoubleFromText(std::string_view text) {
  const auto [negative, digits] = SplitSign(text);
  double value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (end != digits.data() + digits.size()) return std::nullopt;
  if (error == std::errc::result_out_of_range && IsTiny(digits)) {
    value = 0;
  } else if (error != std::errc()) {
    return std::nullopt;
  }
  return negative ? -value : value;
}

std::optional<std::int32_t> Int32FromText(std::string_view text) {
  return IntegerFromText<std::int32_t>(text);
}

std::optional<std::int16_t> Int16FromText(std::string_view text) {
  return IntegerFromText<std::int16_t>(text);
}

}  // namespace Vandrell::Corvane
