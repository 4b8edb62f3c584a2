#include "LineSamples.h"

#include <algorithm>

#include "RVADM_Frame.h"
#include "RVADM_Label.h"
#include "TextKey.h"

namespace gallery {

using namespace qRVADM;

namespace {

constexpr int kBoxHeight = 40;
constexpr int kLeastBoxWidth = 120;
constexpr int kLine = 2;

}  // namespace

LineSamples::LineSamples(RVADM_ItemParent* itemParent)
    : Section(itemParent, TextKey("Lines and Boxes")),
      line(Make<RVADM_Frame>(true)),
      upright(Make<RVADM_Frame>(true)),
      box(Make<RVADM_Frame>(true)),
      inBox(new RVADM_Label(box, TextKey("In a box"), true)),
      bare(Make<RVADM_Frame>(false)),
      inBare(new RVADM_Label(bare, TextKey("In a frame without a border"), true)) {}

void LineSamples::LayoutItems() {
  const int width = std::max({kLeastBoxWidth, inBox->GetWidth() + kBoxHeight, inBare->GetWidth()});
  box->SetSize(width, kBoxHeight);
  box->AlignItem(inBox, kCenterH | kCenterV);
  bare->SetSize(width, kBoxHeight);
  bare->AlignItem(inBare, kCenterH | kCenterV);
  box->AlignToRect(GetInnerRect(), kAlignLeft | kAlignTop);
  upright->SetSize(kLine, kBoxHeight);
  box->PlaceRightOf(upright, kAlignBase | kAlignTop, kDefaultGap);
  upright->PlaceRightOf(bare, kAlignBase | kAlignTop, kDefaultGap);
  box->PlaceBelow(line, kAlignBase | kAlignLeft, kDefaultGap);
  line->SetSize(bare->GetRight() - box->GetLeft(), kLine);
  FitGroup();
}

bool LineSamples::OnItemNotify(RVADM_Item* /*item*/) {
  return false;
}

}  // namespace gallery
