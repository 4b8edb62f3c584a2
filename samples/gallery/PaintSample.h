// A custom item that uses all there is to draw with, and shows what it saw last.
#pragma once

#include "RVADM_CustomItem.h"

namespace gallery {

class PaintSample : public qRVADM::RVADM_CustomItem {
 public:
  explicit PaintSample(qRVADM::RVADM_ItemParent* itemParent);

  bool Track(qRVADM::ADMTracker tracker) override;
  void Draw(qRVADM::IADMDrawer& drawer) override;

 private:
  qRVADM::ADMTracker last;
};

}  // namespace gallery
