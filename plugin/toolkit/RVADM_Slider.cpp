#include "RVADM_Slider.h"

#include <QSignalBlocker>
#include <algorithm>
#include <cmath>
#include <limits>

namespace qRVADM {
namespace {

// Without its fraction, and within the range of int.
int Truncated(double value) {
  if (std::isnan(value)) return 0;
  constexpr double kLowest = std::numeric_limits<int>::min();
  constexpr double kHighest = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(value, kLowest, kHighest));
}

// How much wider than the style's own a slider of so many steps is, in pixels.
int WidthForSteps(int steps) {
  constexpr int kFewestSteps = 39;  // below that the slider would be too short to grip
  constexpr int kMostSteps = 255;
  constexpr int kStepsOfDefaultWidth = 100;
  return steps < kFewestSteps || steps > kMostSteps ? 0 : steps - kStepsOfDefaultWidth;
}

}  // namespace

RVADM_Slider::RVADM_Slider(RVADM_ItemParent* itemParent, bool reportValueChanges, double minimum,
                           double maximum, double step)
    : RVADM_QMetaObjectProxy(itemParent, kSliderKind), scale(1.0 / step) {
  setOrientation(Qt::Horizontal);
  SetFontKind(0);
  setRange(Truncated(scale * minimum), Truncated(scale * maximum));
  SetWidth(GetWidth() + WidthForSteps(Truncated((maximum - minimum) / step + 0.01)));
  ConnectToDialog(SIGNAL(sliderMoved(int)), SLOT(OnSliderMoved()), false);
  if (reportValueChanges) ConnectToDialog(SIGNAL(valueChanged(int)), SLOT(OnSliderChanged()), false);
  TakeNoFocusOnPalette();
}

double RVADM_Slider::GetValue() const {
  return value() / scale;
}

void RVADM_Slider::SetValue(double newValue) {
  const QSignalBlocker silence(this);
  setValue(Truncated(newValue * scale));
}

void RVADM_Slider::Notify(int code) {
  if (!notice.Keeps(code)) RVADM_Item::Notify(code);
}

bool RVADM_Slider::event(QEvent* event) {
  return notice.After(*this, [this, event] { return QSlider::event(event); });
}

}  // namespace qRVADM
