// A list whose rows draw themselves: a patch of colour, and a name.
#pragma once

#include "RVADM_TabListBox.h"

namespace gallery {

class PatchList : public qRVADM::RVADM_TabListBox {
 public:
  explicit PatchList(qRVADM::RVADM_ItemParent* itemParent);

  void AddRow(const char* name);  // English, shown in translation; in a colour of its own
  void DeleteSelectedRows();

 private:
  int rowsMade = 0;
};

}  // namespace gallery
