#include "CutLayerEntry.h"

#include "ColorToRGBColor.h"
#include "ControlColors.h"
#include "CutLayerList.h"
#include "IADMDrawer.h"
#include "LineTypeDisplayColor.h"

namespace Vandrell::Corvane {

using qRVADM::ADMRect;
using qRVADM::IADMDrawer;

namespace {

constexpr int kPatchInset = 3;
constexpr int kPatchSide = 14;

constexpr AIRGBColor kWhite{0xffff, 0xffff, 0xffff};

AIRGBColor ScreenColor(const LineType& lineType) {
  AIRGBColor rgb = kWhite;
  const AIColor shown = LineTypeDisplayColor(lineType);
  if (shown.kind != kNoneColor) qRVADM::ColorToRGBColor(shown, rgb, false);
  return rgb;
}

}  // namespace

CutLayerEntry::CutLayerEntry(CutLayerList* owner, const LineType& shown)
    : RVADM_TabListEntry(owner, nullptr, false), lineType(shown), name(shown.name.as_UTF8()) {
  setData(Qt::AccessibleTextRole, QString::fromStdString(name));
}

void CutLayerEntry::Draw(IADMDrawer& drawer) {
  {
    IADMDrawer ground(drawer);
    RVADM_TabListEntry::Draw(ground);
  }
  ADMRect row, cell;
  drawer.GetBoundsRect(&row);
  drawer.SetColor(qRVADM::kControlColor);
  drawer.DrawLine({row.left, row.bottom - 1}, {row.right, row.bottom - 1});
  GetTabRect(row, 0, &cell);
  DrawPatch(drawer, cell);
  GetTabRect(row, 1, &cell);
  drawer.SetColor(isSelected() ? qRVADM::kHighlightedTextColor : qRVADM::kWindowTextColor);
  drawer.DrawTextInBox(name.c_str(), cell);
}

void CutLayerEntry::DrawPatch(IADMDrawer& drawer, const ADMRect& cell) const {
  const int left = cell.left + kPatchInset;
  const int top = cell.top + kPatchInset;
  const ADMRect patch{left, top, left + kPatchSide, top + kPatchSide};
  drawer.SetRGBColor(ScreenColor(lineType));
  drawer.FillRect(patch);
  drawer.SetColor(qRVADM::kTextColor);
  drawer.DrawRect(patch);
}

}  // namespace Vandrell::Corvane
