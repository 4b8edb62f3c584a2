// Values of the font properties.
#pragma once

#include <optional>
#include <string_view>

namespace host {

// In user units; nullopt if the text is no size.
std::optional<double> parseFontSize(std::string_view text, double parentSize);
// 1..1000; nullopt if the text is no weight.
std::optional<int> parseFontWeight(std::string_view text, int parentWeight);
std::optional<bool> parseItalic(std::string_view text);
// Where the baseline lies below the place a text is given, in em; fonts are not asked.
std::optional<double> parseDominantBaseline(std::string_view text);

// The parts of the `font` shorthand; empty ones are at their initial value. System fonts are not known.
struct SvgFontShorthand {
  std::string_view style;
  std::string_view weight;
  std::string_view size;
  std::string_view family;
};
std::optional<SvgFontShorthand> parseFontShorthand(std::string_view text);

}  // namespace host
