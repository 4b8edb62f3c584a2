#include "RegmarkStyle.h"

#include "CurrentDocument.h"
#include "CutOption.h"
#include "RegmarkColors.h"

namespace Vandrell::Corvane {

RegmarkStyle MakeRegmarkStyle(const CutOption& option) {
  const double scale = GetDocumentScale();
  return {option.shape, option.size / scale, option.strokeWeight / scale, option.fillColor,
          option.strokeColor};
}

double RegmarkExtent(const RegmarkStyle& style) {
  switch (style.shape) {
    case kRoundRegmark:
      return style.size + style.strokeWeight;
    case kCrossRegmark:
      // The square behind the bars reaches one bar's thickness beyond their ends.
      return IsPainted(style.fillColor) ? style.size + 2 * style.strokeWeight : style.size;
    default:
      return 0;
  }
}

}  // namespace Vandrell::Corvane
