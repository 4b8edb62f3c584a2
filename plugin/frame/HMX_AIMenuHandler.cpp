#include "HMX_AIMenuHandler.h"

#include <algorithm>

#include "FindByHandle.h"
#include "FrameErrors.h"
#include "HostText.h"

HMX_AIMenuHandler::~HMX_AIMenuHandler() {
  while (!menus.empty()) {
    menus.back().reset();  // empty before the menu's destructor looks for it
    menus.pop_back();
  }
}

AIErr HMX_AIMenuHandler::Add(HMX_AIMenu* menu) {
  menu->OnAdded();
  if (Find(menu) == menus.end()) menus.emplace_back(menu);
  return kNoErr;
}

AIErr HMX_AIMenuHandler::Remove(HMX_AIMenu* menu) {
  const auto entry = Find(menu);
  if (entry == menus.end()) return kMenuNotFoundErr;
  (void)entry->release();
  menus.erase(entry);
  return kNoErr;
}

AIErr HMX_AIMenuHandler::HandleMessage(const char* caller, const char* selector, const void* message) {
  if (!IsEqual(caller, kCallerAIMenu)) return kNoErr;
  const auto& record = *static_cast<const AIMenuMessage*>(message);
  HMX_AIMenu* const menu = FindByHandle(menus.begin(), menus.end(), &HMX_AIMenu::item, record.menuItem);
  if (menu == nullptr) return kNoErr;
  if (IsEqual(selector, kSelectorAIGoMenuItem)) return menu->Go(record);
  if (IsEqual(selector, kSelectorAIUpdateMenuItem)) return menu->Update(record);
  return kNoErr;
}

std::vector<std::unique_ptr<HMX_AIMenu>>::iterator HMX_AIMenuHandler::Find(const HMX_AIMenu* menu) {
  return std::find_if(menus.begin(), menus.end(),
                      [menu](const std::unique_ptr<HMX_AIMenu>& entry) { return entry.get() == menu; });
}
