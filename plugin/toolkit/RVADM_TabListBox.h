// A list of rows with columns.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "RVADM_ListBox.h"

namespace qRVADM {

class RVADM_TabListBox : public RVADM_ListBox {
 public:
  RVADM_TabListBox(RVADM_ItemParent* itemParent, bool multiSelect);
  ~RVADM_TabListBox() override;

  // Pixels from the left of the row to where column `column` starts; nothing for the first column and for
  // those that there are no stops for.
  std::optional<int> ColumnStart(int column) const;

 protected:
  // For the subclass to set.
  std::uint32_t tabCount = 0;          // columns
  std::vector<std::int32_t> tabStops;  // where column i + 1 starts; bit 0x2000 is a flag and no part of it
};

}  // namespace qRVADM
