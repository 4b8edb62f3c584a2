#include "RVADM_RGBColorPatch.h"

#include <QPointer>
#include <optional>

#include "AIUser.h"
#include "ControlColors.h"
#include "IADMDrawer.h"
#include "IAIUnicodeString.h"

namespace qRVADM {
namespace {

// The user may refuse, and so may the host.
std::optional<AIRGBColor> PickedColor(const AIRGBColor& color) {
  const ai::UnicodeString hostsTitle;
  AIRGBColor picked = color;
  AIBoolean accepted = 0;
  const AIErr error = sAIUser->GetRGBColor(hostsTitle.handle(), &picked, &accepted);
  if (error != kNoErr || accepted == 0) return std::nullopt;
  return picked;
}

}  // namespace

RVADM_RGBColorPatch::RVADM_RGBColorPatch(RVADM_ItemParent* itemParent, AIRGBColor shownColor)
    : RVADM_CustomItem(itemParent), color(shownColor) {
  SetCursorShape(kPointingHandCursor);
}

bool RVADM_RGBColorPatch::Track(ADMTracker tracker) {
  if (!tracker.IsMouseDown()) return true;
  const QPointer<QWidget> alive(this);  // the picker runs the event loop
  const std::optional<AIRGBColor> picked = PickedColor(color);
  if (alive) {
    color = picked.value_or(color);
    Invalidate();
  }
  return picked.has_value();
}

void RVADM_RGBColorPatch::Draw(IADMDrawer& drawer) {
  ADMRect bounds;
  drawer.GetBoundsRect(&bounds);
  drawer.SetRGBColor(color);
  drawer.FillRect(bounds);
  drawer.SetColor(kTextColor);
  drawer.DrawRect(bounds);
}

}  // namespace qRVADM
