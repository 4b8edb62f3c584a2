// A menu of the host's with the toolkit's handlers behind its items.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "AITypes.h"
#include "RVADM_MenuHandler.h"

namespace qRVADM {

class RVADM_Menu;
class RVADM_NonModalDialog;

// Where the host refused the menu, nothing can be added to it.
class RVADM_AbstractMenu {
 public:
  using Items = std::map<std::uint32_t, std::unique_ptr<RVADM_MenuHandler>>;  // by id
  using Objects = std::vector<std::shared_ptr<void>>;

  RVADM_AbstractMenu() = default;
  RVADM_AbstractMenu(const RVADM_AbstractMenu&) = delete;
  RVADM_AbstractMenu& operator=(const RVADM_AbstractMenu&) = delete;
  virtual ~RVADM_AbstractMenu();

  virtual std::uint32_t& GetNextId() = 0;
  virtual Items& GetItems() = 0;
  virtual Objects& GetOwned() = 0;  // what handlers share; it ends with the menu, after them
  virtual RVADM_Menu* GetMenu() = 0;
  virtual RVADM_NonModalDialog* GetDialog() = 0;

  // At the end of the menu. The item's id, or 0 if the host refuses it; the handler, which may be
  // null, is gone then.
  std::uint32_t AddItem(const char* text, bool localize, std::unique_ptr<RVADM_MenuHandler> handler);
  void AddSeparator();
  // False for an id that the menu does not have.
  bool SetItemEnabled(std::uint32_t id, bool enabled);
  bool SetItemChecked(std::uint32_t id, bool checked);

 protected:
  AIPanelFlyoutMenuRef menuRef = nullptr;  // null if the host refused it
};

}  // namespace qRVADM
