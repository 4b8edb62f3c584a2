#include "ListSamples.h"

#include <algorithm>

#include "IconIds.h"
#include "PatchList.h"
#include "RVADM_DropDownList.h"
#include "RVADM_TextPushButton.h"
#include "TextKey.h"

namespace gallery {

using namespace qRVADM;

namespace {

constexpr int kVisibleRows = 4;
constexpr int kPatchesWidth = 130;
constexpr int kBoxesWidth = 110;

void FillPatches(PatchList& list) {
  const char* const names[] = {TextKey("Through Cut"), TextKey("Kiss Cut"), TextKey("Crease"),
                               TextKey("Perforation"), TextKey("Score"),    TextKey("Engraving")};
  for (const char* const name : names) list.AddRow(name);
  list.GetEntry(1)->Select(true);
  list.GetEntry(2)->Select(true);
}

void FillBoxes(RVADM_ListBox& list) {
  const char* const texts[] = {TextKey("Round"), TextKey("Cross"), TextKey("Square")};
  for (const char* const text : texts) {
    auto* const entry = new RVADM_ListEntry(&list, text, true);
    entry->SetCheckable();
    entry->SetChecked(text != texts[1]);
  }
  list.GetEntry(0)->Select(true);
}

void FillShapes(RVADM_DropDownList& list) {
  const char* const texts[] = {TextKey("Round"), TextKey("Cross"),
                               TextKey("A shape with a name that is longer than the list is wide")};
  const int pictures[] = {kStarIcon, kSelectedStarIcon, -1};
  for (std::size_t i = 0; i < std::size(texts); ++i) {
    (new RVADM_ComboEntry(&list, texts[i], true))->SetPicture(pictures[i]);
  }
  list.GetEntry(0)->Select(true);
  list.SetWidth(kPatchesWidth);
}

}  // namespace

ListSamples::ListSamples(RVADM_ItemParent* itemParent)
    : Section(itemParent, TextKey("Lists")),
      patches(Make<PatchList>()),
      boxes(Make<RVADM_ListBox>(false)),
      disabledBoxes(Make<RVADM_ListBox>(false)),
      add(Make<RVADM_TextPushButton>(TextKey("Add a Row"))),
      remove(Make<RVADM_TextPushButton>(TextKey("Delete Rows"))),
      shapes(Make<RVADM_DropDownList>()),
      disabledShapes(Make<RVADM_DropDownList>()) {
  FillPatches(*patches);
  for (RVADM_ListBox* const list : {boxes, disabledBoxes}) FillBoxes(*list);
  for (RVADM_DropDownList* const list : {shapes, disabledShapes}) FillShapes(*list);
  disabledBoxes->SetEnabled(false);
  disabledShapes->SetEnabled(false);
}

void ListSamples::LayoutItems() {
  patches->SetContentWidth(kPatchesWidth);
  patches->SetHeight(patches->GetHeightForRows(kVisibleRows));
  for (RVADM_ListBox* const list : {boxes, disabledBoxes}) {
    list->SetContentWidth(kBoxesWidth);
    list->SetHeight(patches->GetHeight());
  }
  patches->AlignToRect(GetInnerRect(), kAlignLeft | kAlignTop);
  patches->PlaceRightOf(boxes, kAlignBase | kAlignTop, kDefaultGap);
  boxes->PlaceRightOf(disabledBoxes, kAlignBase | kAlignTop, kDefaultGap);
  patches->PlaceBelow(shapes, kAlignBase | kAlignLeft, kDefaultGap);
  shapes->PlaceRightOf(disabledShapes, kAlignBase | kAlignTop, kDefaultGap);
  shapes->PlaceBelow(add, kAlignBase | kAlignLeft, kDefaultGap);
  add->PlaceRightOf(remove, kAlignBase | kAlignTop, kDefaultGap);
  FitGroup();
}

bool ListSamples::OnItemNotify(RVADM_Item* item) {
  if (item == add) patches->AddRow(TextKey("A new row"));
  if (item == remove) patches->DeleteSelectedRows();
  const std::initializer_list<RVADM_Item*> mine{add, remove, patches, boxes, shapes};
  return std::find(mine.begin(), mine.end(), item) != mine.end();
}

}  // namespace gallery
