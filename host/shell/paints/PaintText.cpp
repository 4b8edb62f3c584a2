#include "PaintText.h"

#include <QStringList>
#include <algorithm>
#include <cmath>

#include "PaintComponents.h"
#include "SvgFallbackColour.h"

namespace host {
namespace {

QString whole(AIReal value, int scale) {
  return QString::number(std::lround(std::clamp(value, 0.0, 1.0) * scale));
}

QString numbersOf(const AIColor& paint, int scale) {
  const PaintComponents components = *componentsOf(paint);
  QStringList numbers;
  for (std::size_t i = 0; i < paintComponentCount(paint.kind); ++i) numbers << whole(components[i], scale);
  return numbers.join(", ");
}

QString tintText(const AIColor& paint, const Document* document) {
  const CustomColor* custom = document == nullptr ? nullptr : customColorOf(paint, *document);
  if (custom == nullptr) return "Unknown color";
  const QString name = QString::fromStdString(custom->name);
  return paint.c.c.tint == 0 ? name : name + ", " + whole(1 - paint.c.c.tint, 100) + "% tint";
}

QString numbersOf(const AICustomColor& custom) {
  const AICustomColorUnion& c = custom.c;
  AIColor plain{};
  switch (custom.kind) {
    case kCustomFourColor:
      plain.kind = kFourColor;
      plain.c.f = c.f;
      return paintText(plain, nullptr);
    case kCustomThreeColor:
      plain.kind = kThreeColor;
      plain.c.rgb = c.rgb;
      return paintText(plain, nullptr);
    case kCustomLabColor:
      break;
  }
  QStringList numbers;
  for (const AIReal number : {c.lab.l, c.lab.a, c.lab.b}) numbers << QString::number(std::lround(number));
  return "Lab " + numbers.join(", ");
}

}  // namespace

QString paintText(const AIColor& paint, const Document* document) {
  switch (paint.kind) {
    case kGrayColor:
      return "Gray " + numbersOf(paint, 100) + "%";
    case kThreeColor:
      return "RGB " + numbersOf(paint, 255);
    case kFourColor:
      return "CMYK " + numbersOf(paint, 100);
    case kCustomColor:
      return tintText(paint, document);
    case kGradient:
      return "Gradient";
    case kPattern:
      return "Pattern";
    case kNoneColor:
      break;
  }
  return "None";
}

QString paintDefinition(const AIColor& paint, const Document* document) {
  const CustomColor* custom =
      paint.kind == kCustomColor && document != nullptr ? customColorOf(paint, *document) : nullptr;
  if (custom == nullptr) return paintText(paint, document);
  const bool isSpot = (custom->definition.flag & kCustomSpotColor) != 0;
  QStringList lines;
  if (paint.c.c.tint != 0) lines << paintText(paint, document);
  lines << (isSpot ? "Spot color" : "Process color") << numbersOf(custom->definition);
  return lines.join('\n');
}

}  // namespace host
