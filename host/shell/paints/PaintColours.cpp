#include "PaintColours.h"

#include "ColourProfileFiles.h"
#include "PaintComponents.h"
#include "SvgFallbackColour.h"

namespace host {
namespace {

constexpr ColourSample kWhite{1, 1, 1, 0};

}  // namespace

PaintColours::PaintColours(const Document* document)
    : document_(document), conversion_(colourProfileFolders()) {}

QColor PaintColours::shown(const AIColor& paint) {
  const ColourSample rgb = in(ColourSpace::RGB, measured(paint));
  return QColor::fromRgbF(rgb[0], rgb[1], rgb[2]);
}

AIColor PaintColours::as(AIColorTag kind, const AIColor& paint) {
  if (paint.kind == kind) return paint;
  const Measured colour = measured(paint);
  if (kind == kGrayColor) return paintOf(kind, {1 - in(ColourSpace::Gray, colour)[0]});
  return paintOf(kind, in(kind == kFourColor ? ColourSpace::CMYK : ColourSpace::RGB, colour));
}

PaintColours::Measured PaintColours::measured(const AIColor& paint) {
  switch (paint.kind) {
    case kGrayColor:
      return {ColourSpace::Gray, {1 - paint.c.g.gray}};
    case kThreeColor:
      return {ColourSpace::RGB, *componentsOf(paint)};
    case kFourColor:
      return {ColourSpace::CMYK, *componentsOf(paint)};
    case kCustomColor:
      return measuredTint(paint);
    case kGradient:
    case kPattern:
      if (const PaintServer* server = document_ == nullptr ? nullptr : serverOf(paint, *document_)) {
        const AIColorTag kind = server->fallback.kind;
        if (kind != kGradient && kind != kPattern) return measured(server->fallback);
      }
      break;
    case kNoneColor:
      break;
  }
  return {ColourSpace::RGB, kWhite};
}

// Inks are thinned, light is mixed with white.
PaintColours::Measured PaintColours::measuredTint(const AIColor& paint) {
  const CustomColor* custom = document_ == nullptr ? nullptr : customColorOf(paint, *document_);
  if (custom == nullptr) return {ColourSpace::RGB, kWhite};
  const AICustomColorUnion& c = custom->definition.c;
  const AIReal tint = paint.c.c.tint;
  if (custom->definition.kind == kCustomFourColor) {
    const AIReal ink = 1 - tint;
    return {ColourSpace::CMYK, {c.f.cyan * ink, c.f.magenta * ink, c.f.yellow * ink, c.f.black * ink}};
  }
  ColourSample rgb{c.rgb.red, c.rgb.green, c.rgb.blue, 0};
  if (custom->definition.kind == kCustomLabColor) {
    rgb = in(ColourSpace::RGB, {ColourSpace::Lab, {c.lab.l, c.lab.a, c.lab.b}});
  }
  for (double& component : rgb) component += (1 - component) * tint;
  return {ColourSpace::RGB, rgb};
}

ColourSample PaintColours::in(ColourSpace space, const Measured& colour) {
  return conversion_.convert(colour.space, colour.sample, space).sample;
}

}  // namespace host
