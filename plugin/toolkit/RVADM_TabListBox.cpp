#include "RVADM_TabListBox.h"

namespace qRVADM {
namespace {

constexpr std::int32_t kStopFlag = 0x2000;

}  // namespace

RVADM_TabListBox::RVADM_TabListBox(RVADM_ItemParent* itemParent, bool multi)
    : RVADM_ListBox(itemParent, multi) {}

// Rows of this list may ask for its columns while they go.
RVADM_TabListBox::~RVADM_TabListBox() {
  RVADM_ListBox::Clear();
}

std::optional<int> RVADM_TabListBox::ColumnStart(int column) const {
  const auto stop = static_cast<std::size_t>(column) - 1;
  if (column < 1 || static_cast<std::uint32_t>(column) >= tabCount || stop >= tabStops.size()) return {};
  return tabStops[stop] & ~kStopFlag;
}

}  // namespace qRVADM
