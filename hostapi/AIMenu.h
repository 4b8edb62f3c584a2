// Menu groups, items and submenus.
#pragma once

#include "AITypes.h"

constexpr char kAIMenuSuite[] = "AI Menu Suite";
constexpr std::int32_t kAIMenuSuiteVersion = 1011;

struct AIPlatformAddMenuItemDataUS {
  const char* groupName;           // an existing group, compared exactly
  AIUnicodeStringHandle itemText;  // copied; "-" is a separator
};

// Options of AddMenuItem.
constexpr std::int32_t kMenuItemNoOptions = 0;
constexpr std::int32_t kMenuItemWantsUpdateOption = 1;  // gets kSelectorAIUpdateMenuItem before it is shown
// Options of AddMenuGroup and AddMenuGroupAsSubMenu.
constexpr std::int32_t kMenuGroupNoOptions = 0;
constexpr std::int32_t kMenuGroupSeparatedOption = 1;  // set off by separators from what stands beside it

// UpdateMenuItemAutomatically.
constexpr std::int32_t kAutoEnableMenuItemAction = 1;
constexpr std::int32_t kIfOpenDocument = 64;

struct AIMenuSuite {
  // `key` names the item for good, whatever the language of its text. kNoSuchItemErr if the group is
  // not there. Items last for the host's life.
  AIErr (*AddMenuItem)(SPPluginRef plugin, const char* key, const AIPlatformAddMenuItemDataUS* data,
                       std::int32_t options, AIMenuItemHandle* item);
  // A group in the same menu as `nearGroup`, behind it.
  AIErr (*AddMenuGroup)(const char* name, std::int32_t options, const char* nearGroup, AIMenuGroup* group);
  // A group that is the submenu of `item`.
  AIErr (*AddMenuGroupAsSubMenu)(const char* name, std::int32_t options, AIMenuItemHandle item,
                                 AIMenuGroup* group);
  AIErr (*CountMenuGroups)(std::int32_t* count);
  AIErr (*GetNthMenuGroup)(std::int32_t index, AIMenuGroup* group);
  AIErr (*GetMenuGroupName)(AIMenuGroup group, const char** name);  // valid as long as the group
  // The host carries out `action` itself when the tests hold: art of the kinds `positiveArt` (-1: any)
  // selected, none of `negativeArt` (0: no condition), likewise layers, `positiveState` bits of the
  // application true and `negativeState` bits false. The host reads the state bit kIfOpenDocument; any
  // other condition than "any" or "none" gives kBadParameterErr.
  AIErr (*UpdateMenuItemAutomatically)(AIMenuItemHandle item, std::int32_t action, std::int32_t positiveArt,
                                       std::int32_t negativeArt, std::int32_t positiveLayer,
                                       std::int32_t negativeLayer, std::int32_t positiveState,
                                       std::int32_t negativeState);
  AIErr (*CheckItem)(AIMenuItemHandle item, AIBoolean checked);
};

extern const AIMenuSuite* sAIMenu;

constexpr char kCallerAIMenu[] = "AI Menu";
constexpr char kSelectorAIGoMenuItem[] = "AI Go";
constexpr char kSelectorAIUpdateMenuItem[] = "AI Update";

struct AIMenuMessage {
  SPMessageData d;
  AIMenuItemHandle menuItem;
};
