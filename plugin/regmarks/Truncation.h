// From floating point to whole numbers, towards zero, for values of any size.
#pragma once

#include <cstdint>

namespace Vandrell::Corvane {

// NaN gives 0; what does not fit becomes the nearest number that does.
inline std::int32_t TruncToInt32(double value) {
  if (value >= 2147483647.0) return INT32_MAX;
  if (value <= -2147483648.0) return INT32_MIN;
  return value == value ? static_cast<std::int32_t>(value) : 0;
}

// NaN gives 0. Held within 9e18 of zero, so that a small sum on top does not overflow.
inline std::int64_t TruncToInt64(double value) {
  constexpr double kLimit = 9e18;
  if (value >= kLimit) return static_cast<std::int64_t>(kLimit);
  if (value <= -kLimit) return -static_cast<std::int64_t>(kLimit);
  return value == value ? static_cast<std::int64_t>(value) : 0;
}

}  // namespace Vandrell::Corvane
