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

}  // namespace host
