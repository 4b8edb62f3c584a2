#include "LineTypeDisplayColor.h"

#include "SampleToRGB.h"

namespace Vandrell::Corvane {
namespace {

void ShowLab(const AILabColorStyle& lab, AIColor& shown) {
  qRVADM::RGBSample rgb{};
  if (qRVADM::SampleToRGB(lab, rgb) != kNoErr) return;
  shown.kind = kThreeColor;
  shown.c.rgb = {AIReal{rgb[0]}, AIReal{rgb[1]}, AIReal{rgb[2]}};
}

}  // namespace

AIColor LineTypeDisplayColor(const LineType& lineType) {
  if (!lineType.isCustomDataModel) return lineType.color;
  AIColor shown{};
  shown.kind = kNoneColor;
  const AICustomColor& definition = lineType.customColor;
  switch (definition.kind) {
    case kCustomFourColor:
      shown.kind = kFourColor;
      shown.c.f = definition.c.f;
      break;
    case kCustomThreeColor:
      shown.kind = kThreeColor;
      shown.c.rgb = definition.c.rgb;
      break;
    case kCustomLabColor:
      ShowLab(definition.c.lab, shown);
      break;
  }
  return shown;
}

}  // namespace Vandrell::Corvane
