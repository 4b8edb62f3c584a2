#include "ZoomText.h"

#include <array>
#include <charconv>
#include <cmath>

namespace host {

std::string zoomText(double zoom) {
  const double percent = zoom * 100;
  const int digits = percent >= 100 ? 0 : percent >= 1 ? 1 : 2;
  std::array<char, 64> buffer{};
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), percent, std::chars_format::fixed, digits);
  std::string text(buffer.data(), end.ptr);
  if (digits > 0) {
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
  }
  return text + " %";
}

std::optional<double> zoomIn(std::string_view text) {
  std::string number;
  for (const char c : text) {
    if (c != ' ' && c != '%') number += c == ',' ? '.' : c;
  }
  double percent = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), percent);
  const bool isWhole = error == std::errc() && end == number.data() + number.size();
  if (!isWhole || !std::isfinite(percent) || percent <= 0) return std::nullopt;
  return percent / 100;
}

}  // namespace host
