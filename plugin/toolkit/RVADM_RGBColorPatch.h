// A patch of a colour that opens the host's dialog for it.
#pragma once

#include "AIColor.h"
#include "RVADM_CustomItem.h"

namespace qRVADM {

// A press opens the dialog. Nothing is told to the item's dialog. Needs the suites "AI User Suite" and
// "AI Unicode String Suite".
class RVADM_RGBColorPatch : public RVADM_CustomItem {
 public:
  RVADM_RGBColorPatch(RVADM_ItemParent* itemParent, AIRGBColor shownColor);

  const AIRGBColor& GetColor() const { return color; }

  bool Track(ADMTracker tracker) override;  // false if the user kept the colour
  void Draw(IADMDrawer& drawer) override;

 private:
  AIRGBColor color;
};

}  // namespace qRVADM
