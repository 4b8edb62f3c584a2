// Lines and boxes.
#pragma once

#include "Section.h"

namespace qRVADM {
class RVADM_Frame;
class RVADM_Label;
}  // namespace qRVADM

namespace gallery {

class LineSamples : public Section {
 public:
  explicit LineSamples(qRVADM::RVADM_ItemParent* itemParent);

  void LayoutItems() override;
  bool OnItemNotify(qRVADM::RVADM_Item* item) override;

 private:
  qRVADM::RVADM_Frame* line;
  qRVADM::RVADM_Frame* upright;
  qRVADM::RVADM_Frame* box;
  qRVADM::RVADM_Label* inBox;  // children of the frames
  qRVADM::RVADM_Frame* bare;
  qRVADM::RVADM_Label* inBare;
};

}  // namespace gallery
