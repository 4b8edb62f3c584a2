#include "PatchList.h"

#include <array>
#include <string>

#include "ControlColors.h"
#include "IADMDrawer.h"
#include "Localize.h"
#include "RVADM_TabListEntry.h"

namespace gallery {

using namespace qRVADM;

namespace {

constexpr int kRowHeight = 21;
constexpr int kPatchColumn = 20;
constexpr int kPatchInset = 3;
constexpr int kPatchSide = 14;

constexpr std::array<AIRGBColor, 5> kColors{AIRGBColor{0xe0ff, 0x30ff, 0x30ff},
                                            {0x30ff, 0x90ff, 0x40ff},
                                            {0x30ff, 0x60ff, 0xd0ff},
                                            {0xe0ff, 0xa0ff, 0x20ff},
                                            {0xa0ff, 0x40ff, 0xb0ff}};

class PatchEntry : public RVADM_TabListEntry {
 public:
  PatchEntry(RVADM_TabListBox* owner, const char* rowName, const AIRGBColor& rowColor)
      : RVADM_TabListEntry(owner, nullptr, false), name(rowName), color(rowColor) {}

  void Draw(IADMDrawer& drawer) override {
    RVADM_TabListEntry::Draw(drawer);
    ADMRect row, cell;
    drawer.GetBoundsRect(&row);
    drawer.SetColor(kControlColor);
    drawer.DrawLine({row.left, row.bottom - 1}, {row.right, row.bottom - 1});
    GetTabRect(row, 0, &cell);
    DrawPatch(drawer, cell.left + kPatchInset, cell.top + kPatchInset);
    GetTabRect(row, 1, &cell);
    drawer.SetColor(isSelected() ? kHighlightedTextColor : kTextColor);
    drawer.DrawTextInBox(name.c_str(), cell);
  }

 private:
  void DrawPatch(IADMDrawer& drawer, int left, int top) const {
    const ADMRect patch{left, top, left + kPatchSide, top + kPatchSide};
    drawer.SetRGBColor(color);
    drawer.FillRect(patch);
    drawer.SetColor(kTextColor);
    drawer.DrawRect(patch);
  }

  std::string name;
  AIRGBColor color;
};

}  // namespace

PatchList::PatchList(RVADM_ItemParent* itemParent) : RVADM_TabListBox(itemParent, true) {
  tabCount = 2;
  tabStops = {kPatchColumn};
  SetRowHeight(kRowHeight);
}

void PatchList::AddRow(const char* name) {
  const AIRGBColor& color = kColors[static_cast<std::size_t>(rowsMade++) % kColors.size()];
  new PatchEntry(this, Localize(name), color);
}

void PatchList::DeleteSelectedRows() {
  while (RVADM_ListEntry* entry = GetSelectedEntry(0)) delete entry;
}

}  // namespace gallery
