// Labels of all sorts.
#pragma once

#include "Section.h"

namespace qRVADM {
class RVADM_Label;
}

namespace gallery {

class TextSamples : public Section {
 public:
  explicit TextSamples(qRVADM::RVADM_ItemParent* itemParent);

  void LayoutItems() override;
  bool OnItemNotify(qRVADM::RVADM_Item* item) override;

 private:
  qRVADM::RVADM_Label* shortText;
  qRVADM::RVADM_Label* longText;
  qRVADM::RVADM_Label* wrappedText;
  qRVADM::RVADM_Label* heading;
  qRVADM::RVADM_Label* fixedWidth;
};

}  // namespace gallery
