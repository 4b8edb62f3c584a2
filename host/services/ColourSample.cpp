#include "ColourSample.h"

namespace host {
namespace {

struct Range {
  double low, high;
};

Range rangeOf(ColourSpace space, std::size_t component) {
  if (space != ColourSpace::Lab) return {0, 1};
  return component == 0 ? Range{0, 100} : Range{-128, 127};
}

double within(Range range, double value) {
  if (!(value >= range.low)) return range.low;
  return value <= range.high ? value : range.high;
}

}  // namespace

std::size_t componentCount(ColourSpace space) {
  switch (space) {
    case ColourSpace::Gray:
      return 1;
    case ColourSpace::CMYK:
      return 4;
    case ColourSpace::RGB:
    case ColourSpace::Lab:
      break;
  }
  return 3;
}

ColourSample withinRange(ColourSpace space, const ColourSample& sample) {
  ColourSample result{};
  for (std::size_t i = 0; i < componentCount(space); ++i) result[i] = within(rangeOf(space, i), sample[i]);
  return result;
}

}  // namespace host
