// What an item of a flyout menu does.
#pragma once

#include <cstdint>

namespace qRVADM {

class RVADM_MenuHandler {
 public:
  RVADM_MenuHandler() = default;
  RVADM_MenuHandler(const RVADM_MenuHandler&) = delete;
  RVADM_MenuHandler& operator=(const RVADM_MenuHandler&) = delete;
  virtual ~RVADM_MenuHandler() = default;

  // The user chose the item, outside any message of the host's; a context of the plug-in's own is pushed. It
  // may delete the palette, and thereby itself.
  virtual void OnSelected(std::uint32_t id) = 0;
};

}  // namespace qRVADM
