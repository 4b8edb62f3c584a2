// Numbers as decimal text, the same in every language.
#pragma once

#include <string>

namespace host {

// "." as decimal sign, no grouping, no exponent, no sign before a zero. What is rounded is the shortest
// decimal number that `value` is known by, so that 2.675 becomes "2.68" though its binary form is a little
// less; halves go away from 0. `value` must be finite and `decimals` not negative. `keepZeros`: exactly so
// many decimals, else none of the zeros at the end.
std::string decimalText(double value, int decimals, bool keepZeros);

}  // namespace host
