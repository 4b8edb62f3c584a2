// Lists and drop-down lists.
#pragma once

#include "Section.h"

namespace qRVADM {
class RVADM_DropDownList;
class RVADM_ListBox;
class RVADM_TextPushButton;
}  // namespace qRVADM

namespace gallery {

class PatchList;

class ListSamples : public Section {
 public:
  explicit ListSamples(qRVADM::RVADM_ItemParent* itemParent);

  void LayoutItems() override;
  bool OnItemNotify(qRVADM::RVADM_Item* item) override;

 private:
  PatchList* patches;  // several rows can be selected
  qRVADM::RVADM_ListBox* boxes;
  qRVADM::RVADM_ListBox* disabledBoxes;
  qRVADM::RVADM_TextPushButton* add;
  qRVADM::RVADM_TextPushButton* remove;
  qRVADM::RVADM_DropDownList* shapes;
  qRVADM::RVADM_DropDownList* disabledShapes;
};

}  // namespace gallery
