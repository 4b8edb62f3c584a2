#include "EnsureSubmenu.h"

#include <string_view>

#include "IAIUnicodeString.h"
#include "Localize.h"

namespace {

// What the host cannot answer counts as not there.
bool HasMenuGroup(std::string_view wanted) {
  std::int32_t count = 0;
  if (sAIMenu->CountMenuGroups(&count) != kNoErr) return false;
  for (std::int32_t i = 0; i < count; ++i) {
    AIMenuGroup group = nullptr;
    const char* name = nullptr;
    if (sAIMenu->GetNthMenuGroup(i, &group) != kNoErr) return false;
    if (sAIMenu->GetMenuGroupName(group, &name) != kNoErr || name == nullptr) return false;
    if (name == wanted) return true;
  }
  return false;
}

}  // namespace

AIErr EnsureSubmenu(SPPluginRef plugin, const char* name, const char* nearGroup, std::int32_t options,
                    AIMenuItemHandle& item) {
  item = nullptr;
  if (HasMenuGroup(name)) return kNoErr;
  const ai::UnicodeString text(Localize(name));
  const AIPlatformAddMenuItemDataUS data = {nearGroup != nullptr ? nearGroup : "Tool Palettes",
                                            text.handle()};
  const AIErr error = sAIMenu->AddMenuItem(plugin, name, &data, kMenuItemNoOptions, &item);
  if (error != kNoErr) return error;
  AIMenuGroup group = nullptr;
  return sAIMenu->AddMenuGroupAsSubMenu(name, options, item, &group);
}
