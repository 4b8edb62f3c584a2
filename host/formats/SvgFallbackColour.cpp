#include "SvgFallbackColour.h"

#include <algorithm>
#include <cmath>

namespace host {
namespace {

constexpr AIThreeColorStyle kWhite{1, 1, 1};

AIThreeColorStyle rgbOf(const AIFourColorStyle& ink) {
  const double light = 1 - ink.black;
  return {(1 - ink.cyan) * light, (1 - ink.magenta) * light, (1 - ink.yellow) * light};
}

double labCurve(double t) {
  return t > 6.0 / 29 ? t * t * t : 3 * (6.0 / 29) * (6.0 / 29) * (t - 4.0 / 29);
}

double srgbCurve(double light) {
  light = std::clamp(light, 0.0, 1.0);
  return light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

// CIE 15 for Lab to XYZ; the matrix takes XYZ of D50 to linear sRGB, Bradford adaptation included
// (http://www.brucelindbloom.com/Eqn_RGB_XYZ_Matrix.html).
AIThreeColorStyle rgbOf(const AILabColorStyle& lab) {
  const double fy = (lab.l + 16) / 116;
  const double x = 0.96422 * labCurve(fy + lab.a / 500);
  const double y = labCurve(fy);
  const double z = 0.82521 * labCurve(fy - lab.b / 200);
  return {srgbCurve(3.1338561 * x - 1.6168667 * y - 0.4906146 * z),
          srgbCurve(-0.9787684 * x + 1.9161415 * y + 0.0334540 * z),
          srgbCurve(0.0719453 * x - 0.2289914 * y + 1.4052427 * z)};
}

AIThreeColorStyle rgbOf(const AICustomColor& definition) {
  switch (definition.kind) {
    case kCustomFourColor:
      return rgbOf(definition.c.f);
    case kCustomThreeColor:
      return definition.c.rgb;
    case kCustomLabColor:
      return rgbOf(definition.c.lab);
  }
  return kWhite;
}

AIThreeColorStyle rgbOf(const AIColor& color, const Document& document);

AIThreeColorStyle rgbOfTint(const AIColor& color, const Document& document) {
  const CustomColor* const custom = customColorOf(color, document);
  if (!custom) return kWhite;
  const AIThreeColorStyle full = rgbOf(custom->definition);
  const auto tinted = [tint = color.c.c.tint](double component) {
    return component + (1 - component) * tint;
  };
  return {tinted(full.red), tinted(full.green), tinted(full.blue)};
}

AIThreeColorStyle rgbOf(const AIColor& color, const Document& document) {
  switch (color.kind) {
    case kGrayColor:
      return {1 - color.c.g.gray, 1 - color.c.g.gray, 1 - color.c.g.gray};
    case kFourColor:
      return rgbOf(color.c.f);
    case kThreeColor:
      return color.c.rgb;
    case kCustomColor:
      return rgbOfTint(color, document);
    case kGradient:
    case kPattern: {
      const PaintServer* const server = serverOf(color, document);
      const bool plain = server && server->fallback.kind != kGradient && server->fallback.kind != kPattern;
      return plain ? rgbOf(server->fallback, document) : kWhite;
    }
    case kNoneColor:
      break;
  }
  return kWhite;
}

}  // namespace

const CustomColor* customColorOf(const AIColor& color, const Document& document) {
  return document.customColor(idOfHandle(color.c.c.color, HandleKind::CustomColor, document.serial()));
}

const PaintServer* serverOf(const AIColor& color, const Document& document) {
  return document.paintServer(idOfHandle(color.c.s.server, HandleKind::PaintServer, document.serial()));
}

std::uint32_t fallbackRgb(const AIColor& color, const Document& document) {
  const AIThreeColorStyle rgb = rgbOf(color, document);
  const auto byte = [](double component) {
    return static_cast<std::uint32_t>(std::lround(std::clamp(component, 0.0, 1.0) * 255));
  };
  return (byte(rgb.red) << 16) | (byte(rgb.green) << 8) | byte(rgb.blue);
}

}  // namespace host
