#include "ColorToRGB.h"

#include "AICustomColor.h"

namespace qRVADM {
namespace {

AIErr TintToRGB(const AICustomColorStyle& paint, RGBSample& rgb, bool ignoreTint) {
  AICustomColor definition{};
  // A handle that is not valid is refused here too.
  if (sAICustomColor->GetCustomColor(paint.color, &definition) != kNoErr) return kNoSuchCustomColorErr;
  return CustomColorToRGB(definition, rgb, ignoreTint ? 1 : 1 - paint.tint);
}

}  // namespace

AIErr ColorToRGB(const AIColor& color, RGBSample& rgb, bool ignoreTint) {
  switch (color.kind) {
    case kGrayColor:
      return SampleToRGB(color.c.g, rgb);
    case kFourColor:
      return SampleToRGB(color.c.f, rgb);
    case kThreeColor:
      rgb = SampleOf(color.c.rgb);
      return kNoErr;
    case kNoneColor:
      rgb = {1, 1, 1};
      return kNoErr;
    case kCustomColor:
      return TintToRGB(color.c.c, rgb, ignoreTint);
    case kPattern:
    case kGradient:
      break;
  }
  rgb = {0, 0, 0};
  return kNoErr;
}

AIErr CustomColorToRGB(const AICustomColor& customColor, RGBSample& rgb, AIReal strength) {
  const AICustomColorUnion& c = customColor.c;
  switch (customColor.kind) {
    case kCustomFourColor:
      return SampleToRGB(AIFourColorStyle{c.f.cyan * strength, c.f.magenta * strength, c.f.yellow * strength,
                                          c.f.black * strength},
                         rgb);
    case kCustomThreeColor:
      rgb = SampleOf(c.rgb);
      return kNoErr;
    case kCustomLabColor:
      return SampleToRGB(c.lab, rgb);
  }
  return kNoSuchCustomColorErr;
}

}  // namespace qRVADM
