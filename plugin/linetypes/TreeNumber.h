// Numbers as text in a tree, independent of any locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Vandrell::Corvane {

// Decimal text of 17 significant digits, enough to read back the same bits: 0.1 is "0.10000000000000001".
// What is not finite becomes "inf", "-inf" or "nan", which no reading takes.
std::string TextOfNumber(double value);
std::string TextOfNumber(std::int32_t value);

// The whole text is one number, white space around it aside. A sign, "+" included, may come first. Nullopt
// for infinities, "nan" and hexadecimals, and for what is too big for the type. A number too small for a
// double is 0.
std::optional<double> DoubleFromText(std::string_view text);
std::optional<std::int32_t> Int32FromText(std::string_view text);
std::optional<std::int16_t> Int16FromText(std::string_view text);

}  // namespace Vandrell::Corvane
