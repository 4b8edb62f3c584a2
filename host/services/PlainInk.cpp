#include "PlainInk.h"

#include <algorithm>

namespace host {

ColourSample rgbOfInk(const ColourSample& cmyk) {
  const double light = 1 - cmyk[3];
  return {(1 - cmyk[0]) * light, (1 - cmyk[1]) * light, (1 - cmyk[2]) * light, 0};
}

ColourSample inkOfRgb(const ColourSample& rgb) {
  const double light = std::max({rgb[0], rgb[1], rgb[2]});
  if (light == 0) return {0, 0, 0, 1};
  return {1 - rgb[0] / light, 1 - rgb[1] / light, 1 - rgb[2] / light, 1 - light};
}

}  // namespace host
