#include "InfoDisplay.h"

#include <array>
#include <charconv>

namespace host {
namespace {

constexpr int kDecimals = 2;

// Numbers too long to be shown in full are none that a drawing has.
std::string fixed(double value) {
  std::array<char, 64> buffer{};
  const auto [end, error] =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, kDecimals);
  if (error != std::errc()) return "-";
  const std::string text(buffer.data(), end);
  return text == "-0.00" ? "0.00" : text;
}

}  // namespace

std::string infoText(const ToolInfo& info, double pointsPerUnit) {
  std::string text;
  for (const auto& [variable, value] : info) {
    if (!text.empty()) text += "   ";
    text += variable == kInfoDocX ? "X " : "Y ";
    text += fixed(value * pointsPerUnit) + " pt";
  }
  return text;
}

InfoDisplay::InfoDisplay() {
  setTextFormat(Qt::PlainText);
  setAccessibleName("Position of the pointer");
}

void InfoDisplay::show(const ToolInfo& info, double pointsPerUnit) {
  setText(QString::fromStdString(infoText(info, pointsPerUnit)));
}

}  // namespace host
