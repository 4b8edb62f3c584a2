#include "ColorToRGBColor.h"

#include "AICustomColor.h"
#include "ColorToRGB.h"

namespace qRVADM {
namespace {

std::uint16_t ScaledComponent(AISampleComponent value) {
  const double scaled = static_cast<double>(value) * 65535.0;
  if (!(scaled > 0)) return 0;
  return scaled < 65535.0 ? static_cast<std::uint16_t>(scaled) : std::uint16_t{65535};
}

AIRGBColor Scaled(const RGBSample& rgb) {
  return {ScaledComponent(rgb[0]), ScaledComponent(rgb[1]), ScaledComponent(rgb[2])};
}

bool IsDefinedInRGB(const AIColor& color) {
  if (color.kind != kCustomColor) return color.kind == kThreeColor;
  AICustomColor definition{};
  return sAICustomColor->GetCustomColor(color.c.c.color, &definition) == kNoErr &&
         definition.kind == kCustomThreeColor;
}

}  // namespace

AIErr ColorToRGBColor(const AIColor& color, AIRGBColor& rgbColor, bool ignoreTint) {
  RGBSample rgb{};
  const AIErr error = ColorToRGB(color, rgb, ignoreTint);
  if (error == kNoErr) rgbColor = Scaled(rgb);
  return error;
}

AIErr CustomColorToRGBColor(const AICustomColor& customColor, AIRGBColor& rgbColor) {
  RGBSample rgb{};
  const AIErr error = CustomColorToRGB(customColor, rgb);
  if (error == kNoErr) rgbColor = Scaled(rgb);
  return error;
}

AIErr ColorToGamutRGBColor(const AIColor& color, AIRGBColor& rgbColor) {
  RGBSample rgb{};
  AIErr error = ColorToRGB(color, rgb, false);
  if (error == kNoErr && IsDefinedInRGB(color)) error = ThroughCMYK(rgb);
  if (error == kNoErr) rgbColor = Scaled(rgb);
  return error;
}

}  // namespace qRVADM
