#include "PaintSample.h"

#include <QPainter>
#include <string>

#include "AIColor.h"
#include "ControlColors.h"
#include "IADMDrawer.h"

namespace gallery {
namespace {

constexpr int kWidth = 110;
constexpr int kHeight = 31;
constexpr int kSide = 15;
constexpr AIRGBColor kOrange = {0xffff, 0x9999, 0x0000};

std::string TextOf(const qRVADM::ADMTracker& tracker) {
  return std::to_string(tracker.action) + ": " + std::to_string(tracker.x) + ", " + std::to_string(tracker.y);
}

}  // namespace

PaintSample::PaintSample(qRVADM::RVADM_ItemParent* itemParent) : RVADM_CustomItem(itemParent) {
  SetSize(kWidth, kHeight);
  SetCursorShape(qRVADM::kPointingHandCursor);
  setMouseTracking(true);
}

bool PaintSample::Track(qRVADM::ADMTracker tracker) {
  last = tracker;
  Invalidate();
  if (tracker.action == qRVADM::kLeftUpAction) Notify(qRVADM::kUserChanged);
  return true;
}

void PaintSample::Draw(qRVADM::IADMDrawer& drawer) {
  drawer.DrawDefault();
  qRVADM::ADMRect box{};
  drawer.GetBoundsRect(&box);
  drawer.SetColor(qRVADM::kLightColor);
  drawer.FillRect({box.left + 1, box.top + 1, box.right - 1, box.bottom - 1});
  drawer.SetColor(qRVADM::kTextColor);
  drawer.DrawRect(box);
  const qRVADM::ADMRect square = {box.left + 8, box.top + 8, box.left + 8 + kSide, box.top + 8 + kSide};
  drawer.SetRGBColor(kOrange);
  drawer.FillRect(square);
  drawer.SetColor(qRVADM::kTextColor);
  drawer.DrawLine({square.left, square.bottom - 1}, {square.right - 1, square.top});
  drawer.GetPainter()->drawEllipse(QRectF(square.left + 0.5, square.top + 0.5, kSide - 1, kSide - 1));
  drawer.DrawTextInBox(TextOf(last).c_str(), {square.right + 6, box.top, box.right - 4, box.bottom});
}

}  // namespace gallery
