// The paints of fill and stroke as two squares that lie over each other.
#pragma once

#include "AIColor.h"
#include "RVADM_CustomItem.h"

// 31 by 31 pixels. A click on the square below brings it on top; a drag from one square to the other copies
// the paint; a double click opens the host's dialog for the paint on top. A change of the stroke through that
// dialog or SetStroke notifies the dialog, other changes do not. Needs the suites "AI Color Conversion
// Suite", "AI Custom Color Suite", "AI Paint Style Suite" and "AI Swatch List Suite".
class RVADM_FillStrokeItem : public qRVADM::RVADM_CustomItem {
 public:
  // Black fill on top, no stroke.
  explicit RVADM_FillStrokeItem(qRVADM::RVADM_ItemParent* itemParent);

  void GetFill(AIColor* color) const { *color = fill; }
  void SetFill(const AIColor& color);
  void GetStroke(AIColor* color) const { *color = stroke; }
  void SetStroke(const AIColor& color);
  bool IsFillActive() const { return fillActive; }  // does the fill lie on top?
  void SetFillActive(bool active);

  bool Track(qRVADM::ADMTracker tracker) override;
  void Draw(qRVADM::IADMDrawer& drawer) override;

 private:
  void NotifyInContext();
  void PickPaint();
  void Click(qRVADM::ADMPoint press, qRVADM::ADMPoint release);

  AIColor fill{};
  AIColor stroke{};
  bool fillActive = true;
};
