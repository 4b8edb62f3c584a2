#include "RVADM_FillStrokeItem.h"

#include <QPointer>
#include <optional>

#include "AICustomColor.h"
#include "AIPaintStyle.h"
#include "AISwatchList.h"
#include "AppContext.h"
#include "ColorToRGBColor.h"
#include "FillStrokeClick.h"
#include "PaintSquares.h"

using namespace qRVADM;

namespace {

constexpr int kItemSize = kPaintSquareOffset + kPaintSquareSize;

std::optional<ADMPoint> sPress;  // of the drag under way: there is one mouse

AIColor RGBPaint(AIReal red, AIReal green, AIReal blue) {
  AIColor paint{};
  paint.kind = kThreeColor;
  paint.c.rgb = {red, green, blue};
  return paint;
}

bool IsGoneCustomColor(const AIColor& paint) {
  if (paint.kind != kCustomColor) return false;
  AIBoolean isValid = 0;
  return sAICustomColor->IsValid(paint.c.c.color, &isValid) != kNoErr || isValid == 0;
}

// The paint as the host's dialog can show it.
AIColor PaintForPicker(const AIColor& paint) {
  if (paint.kind == kGrayColor) {
    const AIReal light = 1.0 - paint.c.g.gray;
    return RGBPaint(light, light, light);
  }
  if (!IsGoneCustomColor(paint)) return paint;
  AIRGBColor rgb{};
  ColorToGamutRGBColor(paint, rgb);  // black, if nothing is known of the colour any more
  return RGBPaint(rgb.red / 65535.0, rgb.green / 65535.0, rgb.blue / 65535.0);
}

// The user may refuse, and so may the host.
std::optional<AIColor> PickedPaint(const AIColor& paint) {
  AIColor picked = PaintForPicker(paint);
  AISwatchRef firstSwatch = sAISwatchList->GetNthSwatch(nullptr, 0);
  AIBoolean accepted = 0;
  const AIErr error = sAIPaintStyle->ShowColorPicker(firstSwatch, &picked, &accepted);
  if (error != kNoErr || accepted == 0) return std::nullopt;
  return picked;
}

}  // namespace

RVADM_FillStrokeItem::RVADM_FillStrokeItem(RVADM_ItemParent* itemParent) : RVADM_CustomItem(itemParent) {
  fill = RGBPaint(0, 0, 0);
  stroke.kind = kNoneColor;
  SetSize(kItemSize, kItemSize);
}

void RVADM_FillStrokeItem::SetFill(const AIColor& color) {
  fill = color;
  Invalidate();
}

void RVADM_FillStrokeItem::SetStroke(const AIColor& color) {
  stroke = color;
  Invalidate();
  NotifyInContext();
}

void RVADM_FillStrokeItem::SetFillActive(bool active) {
  fillActive = active;
  Invalidate();
}

bool RVADM_FillStrokeItem::Track(ADMTracker tracker) {
  if (tracker.IsDoubleClick()) {
    PickPaint();
  } else if (tracker.IsMouseDown()) {
    sPress = tracker.GetPoint();
  } else if (tracker.IsMouseUp() && sPress) {
    Click(*sPress, tracker.GetPoint());
    sPress.reset();
  }
  return true;
}

void RVADM_FillStrokeItem::Draw(IADMDrawer& drawer) {
  ADMRect bounds;
  drawer.GetBoundsRect(&bounds);
  const ADMPoint corner{bounds.left, bounds.top};
  const ADMPoint strokeCorner{corner.x + kPaintSquareOffset, corner.y + kPaintSquareOffset};
  if (!fillActive) DrawFillSquare(drawer, corner, fill);
  DrawStrokeSquare(drawer, strokeCorner, stroke);
  if (fillActive) DrawFillSquare(drawer, corner, fill);
}

void RVADM_FillStrokeItem::NotifyInContext() {
  const AppContext context;
  Notify(kUserChanged);
}

void RVADM_FillStrokeItem::PickPaint() {
  const QPointer<QWidget> alive(this);  // the picker runs the event loop
  const bool ofFill = fillActive;
  const std::optional<AIColor> picked = PickedPaint(ofFill ? fill : stroke);
  if (!picked || !alive) return;
  if (ofFill) {
    SetFill(*picked);
  } else {
    SetStroke(*picked);
  }
}

void RVADM_FillStrokeItem::Click(ADMPoint press, ADMPoint release) {
  switch (ClickResult(press, release, fillActive)) {
    case FillStrokeClick::kNothing:
      break;
    case FillStrokeClick::kBringUp:
      fillActive = !fillActive;
      break;
    case FillStrokeClick::kCopyFillToStroke:
      stroke = fill;
      break;
    case FillStrokeClick::kCopyStrokeToFill:
      fill = stroke;
      break;
  }
  Invalidate();
}
