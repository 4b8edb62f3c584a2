#include "RVADM_AbstractMenu.h"

#include <utility>

#include "AIError.h"
#include "AIPanelFlyoutMenu.h"
#include "IAIUnicodeString.h"
#include "Localize.h"

namespace qRVADM {
namespace {

AIErr Append(AIPanelFlyoutMenuRef menu, std::uint32_t id, const char* text) {
  try {
    return sAIPanelFlyoutMenu->AppendItem(menu, id, ai::UnicodeString(text).handle());
  } catch (const ai::Error& error) {
    return error.code;
  }
}

}  // namespace

RVADM_AbstractMenu::~RVADM_AbstractMenu() {
  if (menuRef != nullptr && sAIPanelFlyoutMenu != nullptr) sAIPanelFlyoutMenu->Destroy(menuRef);
}

std::uint32_t RVADM_AbstractMenu::AddItem(const char* text, bool localize,
                                          std::unique_ptr<RVADM_MenuHandler> handler) {
  const std::uint32_t id = GetNextId();
  if (menuRef == nullptr || Append(menuRef, id, localize ? Localize(text) : text) != kNoErr) return 0;
  ++GetNextId();
  GetItems()[id] = std::move(handler);
  return id;
}

void RVADM_AbstractMenu::AddSeparator() {
  if (menuRef != nullptr) sAIPanelFlyoutMenu->AppendSeparator(menuRef);
}

bool RVADM_AbstractMenu::SetItemEnabled(std::uint32_t id, bool enabled) {
  return menuRef != nullptr && sAIPanelFlyoutMenu->SetItemEnabled(menuRef, id, enabled ? 1 : 0) == kNoErr;
}

bool RVADM_AbstractMenu::SetItemChecked(std::uint32_t id, bool checked) {
  return menuRef != nullptr && sAIPanelFlyoutMenu->SetItemChecked(menuRef, id, checked ? 1 : 0) == kNoErr;
}

}  // namespace qRVADM
