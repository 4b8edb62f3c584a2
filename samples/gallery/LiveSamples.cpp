#include "LiveSamples.h"

#include <cmath>
#include <string>

#include "RVADM_Label.h"
#include "RVADM_Radio.h"
#include "RVADM_RadioGroup.h"
#include "RVADM_Slider.h"
#include "RVADM_TextEdit.h"
#include "TextKey.h"

namespace gallery {

using namespace qRVADM;

namespace {

constexpr int kNameWidth = 160;
constexpr int kAmountTextWidth = 40;
constexpr double kMost = 100;
constexpr double kAmounts[] = {10, 50, 90};  // of the radios

}  // namespace

LiveSamples::LiveSamples(RVADM_ItemParent* itemParent)
    : Section(itemParent, TextKey("Items That Answer")),
      amount(Make<RVADM_Slider>(true, 0, kMost, 1)),
      amountText(Make<RVADM_Label>("", false)),
      name(Make<RVADM_TextEdit>("", false, false)),
      nameLabel(Make<RVADM_Label>(TextKey("Name:"), true)) {
  auto* const radios = new RVADM_RadioGroup(itemParent);
  const char* const texts[] = {TextKey("Few"), TextKey("Some"), TextKey("Many")};
  for (std::size_t i = 0; i < kChoices; ++i) choices[i] = Adopt(new RVADM_Radio(radios, texts[i]));
  choices[1]->SetChecked(true);
  amount->SetValue(kAmounts[1]);
  amountText->SetWidth(kAmountTextWidth);
  name->SetWidth(kNameWidth);
  ShowAmount();
}

void LiveSamples::ShowAmount() {
  const std::string shown = std::to_string(std::lround(amount->GetValue())) + " %";
  amountText->SetText(shown.c_str(), false, false);
}

void LiveSamples::LayoutItems() {
  choices[0]->AlignToRect(GetInnerRect(), kAlignLeft | kAlignTop);
  choices[0]->PlaceRightOf(choices[1], kAlignBase | kAlignTop, kDefaultGap);
  choices[1]->PlaceRightOf(choices[2], kAlignBase | kAlignTop, kDefaultGap);
  choices[0]->PlaceBelow(amount, kAlignBase | kAlignLeft, kDefaultGap);
  amount->PlaceRightOf(amountText, kAlignBase | kCenterV, kDefaultGap);
  amount->PlaceBelow(nameLabel, kAlignBase | kAlignLeft, kDefaultGap);
  nameLabel->PlaceRightOf(name, kAlignBase | kAlignTop, kDefaultGap);
  nameLabel->AlignWith(name, kCenterV);
  FitGroup();
}

bool LiveSamples::OnItemNotify(RVADM_Item* item) {
  for (std::size_t i = 0; i < kChoices; ++i) {
    if (item != choices[i]) continue;
    amount->SetValue(kAmounts[i]);
    ShowAmount();
    return true;
  }
  if (item == amount) ShowAmount();
  return item == amount || item == name || item == nameLabel;
}

}  // namespace gallery
