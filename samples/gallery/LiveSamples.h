// Items that answer: what the user does to one shows in another.
#pragma once

#include <array>

#include "Section.h"

namespace qRVADM {
class RVADM_Label;
class RVADM_Radio;
class RVADM_Slider;
class RVADM_TextEdit;
}  // namespace qRVADM

namespace gallery {

class LiveSamples : public Section {
 public:
  explicit LiveSamples(qRVADM::RVADM_ItemParent* itemParent);

  void LayoutItems() override;
  bool OnItemNotify(qRVADM::RVADM_Item* item) override;

 private:
  void ShowAmount();

  static constexpr std::size_t kChoices = 3;
  std::array<qRVADM::RVADM_Radio*, kChoices> choices;
  qRVADM::RVADM_Slider* amount;
  qRVADM::RVADM_Label* amountText;
  qRVADM::RVADM_TextEdit* name;
  qRVADM::RVADM_Label* nameLabel;
};

}  // namespace gallery
