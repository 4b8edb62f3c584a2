#include "RVADM_Menu.h"

#include <utility>

#include "AIPanelFlyoutMenu.h"
#include "RVADM_NonModalDialog.h"

namespace qRVADM {

RVADM_Menu::RVADM_Menu(RVADM_NonModalDialog* owner) : dialog(owner) {
  if (sAIPanelFlyoutMenu == nullptr || sAIPanelFlyoutMenu->Create(&menuRef) != kNoErr) menuRef = nullptr;
  if (menuRef != nullptr) dialog->SetFlyoutMenu(menuRef);
}

RVADM_Menu::~RVADM_Menu() {
  const Items ending = std::exchange(items, {});  // a handler that asks meanwhile finds none
}

void RVADM_Menu::Select(std::uint32_t id) {
  const auto found = items.find(id);
  if (found != items.end() && found->second != nullptr) found->second->OnSelected(id);
}

}  // namespace qRVADM
