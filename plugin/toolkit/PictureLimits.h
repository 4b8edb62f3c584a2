// How large a picture may be to be worth decoding. Larger ones count as unusable before memory is taken.
#pragma once

namespace qRVADM {

constexpr double kLargestPicture = 4096.0 * 4096.0;  // pixels

// Sizes in pixels; false for NaN as well.
constexpr bool IsDecodable(double width, double height) {
  return width >= 1 && height >= 1 && width * height <= kLargestPicture;
}

}  // namespace qRVADM
