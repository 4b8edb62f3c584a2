// The flyout menu of a palette.
#pragma once

#include "RVADM_AbstractMenu.h"

namespace qRVADM {

class RVADM_Menu : public RVADM_AbstractMenu {
 public:
  // Hands itself to the dialog's panel. `dialog` is not owned and outlives the menu.
  explicit RVADM_Menu(RVADM_NonModalDialog* dialog);
  ~RVADM_Menu() override;

  std::uint32_t& GetNextId() override { return nextId; }
  Items& GetItems() override { return items; }
  Objects& GetOwned() override { return owned; }
  RVADM_Menu* GetMenu() override { return this; }
  RVADM_NonModalDialog* GetDialog() override { return dialog; }

  void Select(std::uint32_t id);  // calls the item's handler; an unknown id does nothing

 private:
  RVADM_NonModalDialog* dialog;
  std::uint32_t nextId = 1;
  Items items;
  Objects owned;
};

}  // namespace qRVADM
