// Values of `transform`.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "AITypes.h"

namespace host {

// The list's product. Nullopt if the value is at fault, and then none of it counts, as in browsers.
// Numbers may carry px and angles deg, grad, rad or turn, as in CSS.
// https://www.w3.org/TR/css-transforms-1/#svg-transform
std::optional<AIRealMatrix> parseTransform(std::string_view text);
// The same without the functions that flatten the plane, so that there is an inverse.
std::optional<AIRealMatrix> parseUprightTransform(std::string_view text);
std::string transformText(const AIRealMatrix& matrix);

}  // namespace host
