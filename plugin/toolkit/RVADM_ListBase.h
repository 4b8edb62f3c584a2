// What list boxes and drop-down lists have in common.
#pragma once

#include "RVADM_Item.h"

namespace qRVADM {

class RVADM_ListEntryBase;

// Rows are counted from 0 and owned by the list.
class RVADM_ListBase : public RVADM_Item {
 public:
  virtual int GetEntryCount() = 0;
  virtual RVADM_ListEntryBase* GetEntry(int index) = 0;          // null if there is none
  virtual RVADM_ListEntryBase* FindEntry(const char* text) = 0;  // the first by its text as shown, or null
  virtual RVADM_ListEntryBase* GetActiveEntry() = 0;             // the selected one, or null
  virtual void Clear() = 0;                                      // deletes all rows; notifies of nothing

 protected:
  using RVADM_Item::RVADM_Item;
};

}  // namespace qRVADM
