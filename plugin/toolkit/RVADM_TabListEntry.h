// One row of a list with columns.
#pragma once

#include "ADMRect.h"
#include "RVADM_ListEntry.h"

namespace qRVADM {

class RVADM_TabListBox;

class RVADM_TabListEntry : public RVADM_ListEntry {
 public:
  RVADM_TabListEntry(RVADM_TabListBox* list, const char* text, bool localize);

  // The cell of a column, counted from 0, in a row of these bounds. The last column ends with the row. True.
  bool GetTabRect(const ADMRect& bounds, int column, ADMRect* rect) const;

 private:
  RVADM_TabListBox* tabList;  // not owned
};

}  // namespace qRVADM
