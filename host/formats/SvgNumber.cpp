#include "SvgNumber.h"

#include <charconv>
#include <system_error>

#include "SvgScanner.h"

namespace host {
namespace {

// from_chars says "out of range" for the very small too; those have a negative exponent or no whole part.
bool isTiny(std::string_view digits) {
  const std::size_t exponent = digits.find_first_of("eE");
  if (exponent != std::string_view::npos) return digits.substr(exponent + 1, 1) == "-";
  const std::size_t whole = digits.find_first_not_of('0');
  return whole != std::string_view::npos && digits[whole] == '.';
}

}  // namespace

void appendNumber(std::string& text, double value) {
  char digits[32];
  const auto [end, error] = std::to_chars(digits, digits + sizeof digits, value == 0 ? 0.0 : value);
  if (error == std::errc()) text.append(digits, end);
}

std::string numberText(double value) {
  std::string text;
  appendNumber(text, value);
  return text;
}

std::optional<double> takeNumber(std::string_view& text) {
  const bool hasSign = !text.empty() && (text[0] == '+' || text[0] == '-');
  const std::string_view digits = text.substr(hasSign ? 1 : 0);
  const bool starts = !digits.empty() && (isSvgDigit(digits[0]) ||
                                          (digits.size() > 1 && digits[0] == '.' && isSvgDigit(digits[1])));
  if (!starts) return std::nullopt;
  double value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  const auto length = static_cast<std::size_t>(end - digits.data());
  if (error == std::errc::result_out_of_range) {
    if (!isTiny(digits.substr(0, length))) return std::nullopt;
    value = 0;
  } else if (error != std::errc()) {
    return std::nullopt;
  }
  const bool negative = hasSign && text[0] == '-';
  text.remove_prefix(length + (hasSign ? 1 : 0));
  return negative ? -value : value;
}

std::optional<double> numberFrom(std::string_view text) {
  text = withoutBlanksAround(text);
  const auto value = takeNumber(text);
  return text.empty() ? value : std::nullopt;
}

}  // namespace host
