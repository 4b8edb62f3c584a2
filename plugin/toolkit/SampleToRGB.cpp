#include "SampleToRGB.h"

#include <algorithm>
#include <limits>

namespace qRVADM {
namespace {

// Numbers beyond a float would be undefined behaviour; not a number stays that.
AISampleComponent ComponentOf(AIReal value) {
  constexpr AIReal largest = std::numeric_limits<AISampleComponent>::max();
  return static_cast<AISampleComponent>(std::clamp(value, -largest, largest));
}

AIErr Convert(AIColorSpace source, const AISampleComponent* sample, AIColorSpace destination,
              AISampleComponent* result) {
  AIBoolean inGamut = 0;
  return sAIColorConversion->ConvertSample(source, sample, destination, result, kDefaultConversion, &inGamut);
}

}  // namespace

AIErr SampleToRGB(const AIGrayColorStyle& gray, RGBSample& rgb) {
  const AISampleComponent light = ComponentOf(1 - gray.gray);
  return Convert(kGraySpace, &light, kRGBSpace, rgb.data());
}

AIErr SampleToRGB(const AIFourColorStyle& cmyk, RGBSample& rgb) {
  const AISampleComponent inks[] = {ComponentOf(cmyk.cyan), ComponentOf(cmyk.magenta),
                                    ComponentOf(cmyk.yellow), ComponentOf(cmyk.black)};
  return Convert(kCMYKSpace, inks, kRGBSpace, rgb.data());
}

AIErr SampleToRGB(const AILabColorStyle& lab, RGBSample& rgb) {
  const AISampleComponent sample[] = {ComponentOf(lab.l), ComponentOf(lab.a), ComponentOf(lab.b)};
  return Convert(kLabSpace, sample, kRGBSpace, rgb.data());
}

AIErr ThroughCMYK(RGBSample& rgb) {
  AISampleComponent inks[4] = {};
  const AIErr error = Convert(kRGBSpace, rgb.data(), kCMYKSpace, inks);
  return error != kNoErr ? error : Convert(kCMYKSpace, inks, kRGBSpace, rgb.data());
}

RGBSample SampleOf(const AIThreeColorStyle& rgb) {
  return {ComponentOf(rgb.red), ComponentOf(rgb.green), ComponentOf(rgb.blue)};
}

}  // namespace qRVADM
