#include "GalleryContent.h"

#include <QPointer>
#include <QWidget>
#include <algorithm>

#include "ADMDialogMetrics.h"
#include "FaultSamples.h"
#include "LineSamples.h"
#include "ListSamples.h"
#include "LiveSamples.h"
#include "Localize.h"
#include "NumberSamples.h"
#include "RVADM_Dialog.h"
#include "RVADM_Label.h"
#include "StateTable.h"
#include "TextKey.h"
#include "TextSamples.h"

namespace gallery {

using namespace qRVADM;

namespace {

template <typename Made>
Made* Enter(std::vector<std::unique_ptr<Section>>& sections, std::unique_ptr<Made> section) {
  Made* const entered = section.get();
  sections.push_back(std::move(section));
  return entered;
}

}  // namespace

GalleryContent::GalleryContent(RVADM_Dialog* owner, std::function<void()> close)
    : dialog(owner), table(Enter(sections, std::make_unique<StateTable>(owner))) {
  Enter(sections, std::make_unique<LiveSamples>(owner));
  Enter(sections, std::make_unique<TextSamples>(owner));
  lines = Enter(sections, std::make_unique<LineSamples>(owner));
  Enter(sections, std::make_unique<ListSamples>(owner));
  Enter(sections, std::make_unique<NumberSamples>(owner));
  faults = Enter(sections, std::make_unique<FaultSamples>(owner, std::move(close)));
  notice = new RVADM_Label(owner, TextKey("What was used last is named here."), true);
}

GalleryContent::~GalleryContent() = default;

void GalleryContent::InitItems() {
  table->InitItems();
}

void GalleryContent::TakeFocus() {
  table->TakeFocus();
}

void GalleryContent::LayoutAll() {
  ADMRect content{};
  dialog->GetContentRect(&content);
  const std::vector<Section*> first = {table, lines, faults};
  Stack(content.left, content.top, first);
  std::vector<Section*> others;
  for (const std::unique_ptr<Section>& section : sections) {
    const bool isOther = std::find(first.begin(), first.end(), section.get()) == first.end();
    if (isOther) others.push_back(section.get());
  }
  Stack(table->GetGroup()->GetRight() + dialog->GetMetrics().itemGap, content.top, others);
  shown = first;
  shown.insert(shown.end(), others.begin(), others.end());
  LayoutNotice();
}

void GalleryContent::LayoutPage(bool showsTable) {
  ADMRect content{};
  dialog->GetContentRect(&content);
  shown.clear();
  for (const std::unique_ptr<Section>& section : sections) {
    const bool isShown = showsTable == (section.get() == table);
    section->SetVisible(isShown);
    if (isShown) shown.push_back(section.get());
  }
  Stack(content.left, content.top, shown);
  LayoutNotice();
}

void GalleryContent::Stack(int left, int top, const std::vector<Section*>& stacked) {
  RVADM_Item* above = nullptr;
  int right = 0;
  for (Section* const section : stacked) {
    section->GetGroup()->MoveTo(left, top, false);
    if (above != nullptr) above->PlaceBelow(section->GetGroup(), kAlignBase | kAlignLeft, kDefaultGap);
    section->LayoutItems();
    above = section->GetGroup();
    right = std::max(right, above->GetRight());
  }
  for (Section* const section : stacked) section->GetGroup()->SetRight(right);
}

void GalleryContent::LayoutNotice() {
  const auto lowest = std::max_element(shown.begin(), shown.end(), [](Section* a, Section* b) {
    return a->GetGroup()->GetBottom() < b->GetGroup()->GetBottom();
  });
  (*lowest)->GetGroup()->PlaceBelow(notice, kAlignBase, kDefaultGap);
  notice->AlignWith(shown.front()->GetGroup(), kAlignBase | kAlignLeft);
}

void GalleryContent::EndLayout() {
  faults->SpoilLayout();
}

void GalleryContent::OnItemNotify(RVADM_Item* item) {
  const QPointer<QWidget> living = dialog->GetWidget();
  for (const std::unique_ptr<Section>& section : sections) {
    if (!section->OnItemNotify(item)) continue;
    if (!living) return;
    if (section.get() == table) notice->SetText(table->GetLastNotice().c_str(), false, true);
    return;
  }
}

RVADM_Item* GalleryContent::GetLowest() const {
  return notice;
}

RVADM_Item* GalleryContent::GetWidest() const {
  return shown.back()->GetGroup();
}

}  // namespace gallery
