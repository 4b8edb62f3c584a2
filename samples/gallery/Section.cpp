#include "Section.h"

#include <algorithm>

namespace gallery {

using qRVADM::RVADM_Item;

namespace {

constexpr int kTitleGap = 3;

}  // namespace

Section::Section(qRVADM::RVADM_ItemParent* itemParent, const char* title)
    : parent(itemParent), group(new qRVADM::RVADM_Group(itemParent, title, true)) {}

void Section::SetVisible(bool visible) {
  group->SetVisible(visible);
  for (RVADM_Item* const item : items) item->SetVisible(visible);
}

void Section::Delete(RVADM_Item* item) {
  items.erase(std::remove(items.begin(), items.end(), item), items.end());
  delete item;
}

// The margin under a palette's group is less high than a title.
qRVADM::ADMRect Section::GetInnerRect() const {
  qRVADM::ADMRect inner{};
  group->GetInnerRect(&inner);
  inner.top = std::max(inner.top, group->GetTop() + group->fontMetrics().height() + kTitleGap);
  return inner;
}

void Section::Stack(const std::vector<RVADM_Item*>& stacked) {
  RVADM_Item* above = nullptr;
  for (RVADM_Item* const item : stacked) {
    if (above == nullptr) {
      item->AlignToRect(GetInnerRect(), qRVADM::kAlignLeft | qRVADM::kAlignTop);
    } else {
      above->PlaceBelow(item, qRVADM::kAlignBase | qRVADM::kAlignLeft, qRVADM::kDefaultGap);
    }
    above = item;
  }
  FitGroup();
}

void Section::FitGroup() {
  if (items.empty()) return;
  const auto isLess = [](auto get) {
    return [get](RVADM_Item* a, RVADM_Item* b) { return get(a) < get(b); };
  };
  const auto at = [&](auto get) { return *std::max_element(items.begin(), items.end(), isLess(get)); };
  group->FitToItem(at([](RVADM_Item* item) { return item->GetRight(); }), qRVADM::kStretchRight);
  group->FitToItem(at([](RVADM_Item* item) { return item->GetBottom(); }), qRVADM::kStretchBottom);
  QSize best;
  group->GetBestSize(&best);  // the title's
  group->SetWidth(std::max(group->GetWidth(), best.width()));
}

}  // namespace gallery
