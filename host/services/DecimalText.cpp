#include "DecimalText.h"

#include <charconv>
#include <cmath>

namespace host {
namespace {

// The smallest double has 324 decimals and some more digits, the largest 309 digits before the point.
constexpr std::size_t kLongestNumber = 400;

std::string shortestDigits(double value) {
  char digits[kLongestNumber];
  const auto written = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed);
  std::string text(digits, written.ptr);
  if (text.find('.') == std::string::npos) text += '.';
  return text;
}

// Adds one in the last place.
void increment(std::string& digits) {
  for (std::size_t i = digits.size(); i-- > 0;) {
    if (digits[i] == '.') continue;
    if (digits[i] != '9') {
      ++digits[i];
      return;
    }
    digits[i] = '0';
  }
  digits.insert(0, 1, '1');
}

void setDecimals(std::string& digits, std::size_t decimals) {
  const std::size_t end = digits.find('.') + 1 + decimals;
  const bool roundsUp = end < digits.size() && digits[end] >= '5';
  digits.resize(end, '0');
  if (roundsUp) increment(digits);
}

void dropZerosAtEnd(std::string& digits) {
  digits.resize(digits.find_last_not_of('0') + 1);
}

}  // namespace

std::string decimalText(double value, int decimals, bool keepZeros) {
  std::string text = shortestDigits(std::abs(value));
  setDecimals(text, static_cast<std::size_t>(decimals));
  if (!keepZeros) dropZerosAtEnd(text);
  if (text.back() == '.') text.pop_back();
  const bool isZero = text.find_first_not_of("0.") == std::string::npos;
  if (value < 0 && !isZero) text.insert(0, 1, '-');
  return text;
}

}  // namespace host
