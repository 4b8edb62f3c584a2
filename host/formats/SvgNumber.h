// Numbers as SVG files write them, independent of any locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host {

// The shortest text that reads back as the same value. `value` must be finite; -0 is written as 0.
void appendNumber(std::string& text, double value);
std::string numberText(double value);

// Takes a number such as "-.5", "+1." or "1e-3" from the start of `text` and moves `text` behind it.
// Nullopt, with `text` left alone, if it starts with none; infinities, hexadecimals and values beyond
// what a double holds are none. A value too small for a double is 0.
std::optional<double> takeNumber(std::string_view& text);

// The number that `text` consists of, blanks around it allowed.
std::optional<double> numberFrom(std::string_view text);

}  // namespace host
