#include "RVADM_TabListEntry.h"

#include "RVADM_TabListBox.h"

namespace qRVADM {

RVADM_TabListEntry::RVADM_TabListEntry(RVADM_TabListBox* owner, const char* text, bool localize)
    : RVADM_ListEntry(owner, text, localize), tabList(owner) {}

bool RVADM_TabListEntry::GetTabRect(const ADMRect& bounds, int column, ADMRect* rect) const {
  *rect = bounds;
  rect->left = tabList->ColumnStart(column).value_or(bounds.left);
  rect->right = tabList->ColumnStart(column + 1).value_or(bounds.right);
  return true;
}

}  // namespace qRVADM
