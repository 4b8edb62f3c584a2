// What holds items: dialogs, frames, groups.
#pragma once

#include "ADMRect.h"
#include "RVADM_ItemBase.h"

namespace qRVADM {

class RVADM_Item;

// Local coordinates are those of the widget.
class RVADM_ItemParent : public virtual internal::RVADM_ItemBase {
 public:
  // What items made in this one name as their parent: itself, or for a grouping without a widget of its own
  // the container that it stands in.
  virtual RVADM_ItemParent* ParentOfItems() { return this; }

  virtual void GetLocalRect(ADMRect* rect);
  // Resizes so that the local rectangle gets this one's size; the place stays.
  virtual void SetLocalRect(const ADMRect& rect);
  virtual void ScreenToLocalPoint(ADMPoint* point);
  virtual void LocalToScreenPoint(ADMPoint* point);
  virtual void ParentToLocalPoint(ADMPoint* point);
  virtual void LocalToParentPoint(ADMPoint* point);
  // These move the rectangle as its upper left corner moves.
  virtual void ScreenToLocalRect(ADMRect* rect);
  virtual void LocalToScreenRect(ADMRect* rect);
  virtual void ParentToLocalRect(ADMRect* rect);
  virtual void LocalToParentRect(ADMRect* rect);

  void SetMargins(int margin);
  void SetMargins(int left, int top, int right, int bottom);
  // The local rectangle without the margins; inverted if they are larger than it.
  void GetContentRect(ADMRect* rect);
  void SetContentRect(const ADMRect& rect);
  void AlignItem(RVADM_Item* item, int flags);  // to the content rectangle; flags of Placement.h

 private:
  int leftMargin = 0;
  int topMargin = 0;
  int rightMargin = 0;
  int bottomMargin = 0;
};

}  // namespace qRVADM
