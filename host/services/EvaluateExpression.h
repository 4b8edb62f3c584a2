// What a user typed into a field for a number, worked out.
#pragma once

#include <optional>
#include <string_view>

#include "ExpressionUnit.h"

namespace host {

// Sums, products and quotients of numbers with and without units, signs and parentheses: "2 in + 5 mm",
// "2*(3 mm + 1pt)", "1/2 in" (half an inch), "3p6" (3 picas and 6 points), "5'6\"", "50%". Either of "," and
// "." is the decimal sign.
//
// The result is in `field`, and so are numbers without a unit where a quantity is called for. A percentage
// beside a factor or divisor scales that; elsewhere, unless the field itself is in percent, it is of `whole`,
// which is in `field`.
//
// Nullopt for a text that is empty or no such expression, for a number with two decimal signs, for quantities
// that do not go together (a length and an angle added, two lengths multiplied), for a division by 0, for
// what a double can't hold, and for parentheses more than 100 deep.
std::optional<double> evaluateExpression(std::string_view utf8, ExpressionUnit field, double whole);

}  // namespace host
