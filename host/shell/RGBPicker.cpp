#include "RGBPicker.h"

#include <cstdint>

namespace host {
namespace {

QColor eightBits(const AIRGBColor& color) {
  return {color.red >> 8, color.green >> 8, color.blue >> 8};
}

std::uint16_t sixteenBits(int now, std::uint16_t before) {
  return now == before >> 8 ? before : static_cast<std::uint16_t>(now * 257);
}

}  // namespace

RGBPicker::RGBPicker(const QString& title, const AIRGBColor& color, QWidget* parent)
    : QColorDialog(eightBits(color), parent), before_(color) {
  setOption(QColorDialog::DontUseNativeDialog);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setWindowTitle(title.isEmpty() ? "Choose a Color" : title);
}

AIRGBColor RGBPicker::color() const {
  const QColor now = currentColor();
  return {sixteenBits(now.red(), before_.red), sixteenBits(now.green(), before_.green),
          sixteenBits(now.blue(), before_.blue)};
}

}  // namespace host
