#include "HMX_AIMenu.h"

#include <algorithm>
#include <string>

#include "HMX_AIPlugin.h"
#include "IAIUnicodeString.h"
#include "Localize.h"

HMX_AIMenu::HMX_AIMenu(HMX_AIPlugin* owner, const char* group, const char* title, std::int32_t options)
    : plugin(owner) {
  plugin->RequestSuite(kAIMenuSuite);
  if (sAIMenu == nullptr) return;
  const ai::UnicodeString text(title[0] == '-' ? title : Localize(title));
  std::string key = title;
  std::replace(key.begin(), key.end(), '/', '-');
  const AIPlatformAddMenuItemDataUS data = {group, text.handle()};
  sAIMenu->AddMenuItem(plugin->GetPluginRef(), key.c_str(), &data, options, &item);
}

HMX_AIMenu::~HMX_AIMenu() {
  plugin->RemoveMenu(this);
}

AIErr HMX_AIMenu::OnAdded() {
  return kNoErr;
}

AIErr HMX_AIMenu::Go(const AIMenuMessage& /*message*/) {
  return kNoErr;
}

AIErr HMX_AIMenu::Update(const AIMenuMessage& /*message*/) {
  return kNoErr;
}
