// The menu that opens from the title of a panel.
#pragma once

#include "AITypes.h"

constexpr char kAIPanelFlyoutMenuSuite[] = "AI Panel Flyout Menu Suite";
constexpr std::int32_t kAIPanelFlyoutMenuSuiteVersion = 1002;

struct AIPanelFlyoutMenuSuite {
  // Empty at first; the caller's, until it destroys it.
  AIErr (*Create)(AIPanelFlyoutMenuRef* menu);
  // A panel that has it is without a menu afterwards.
  AIErr (*Destroy)(AIPanelFlyoutMenuRef menu);
  // At the end. The id, which a menu has once, names the item to the panel's callback. The text is as people
  // see it.
  AIErr (*AppendItem)(AIPanelFlyoutMenuRef menu, std::uint32_t itemID, AIUnicodeStringHandle text);
  AIErr (*AppendSeparator)(AIPanelFlyoutMenuRef menu);
  // kNoSuchItemErr for an id that the menu does not have.
  AIErr (*SetItemEnabled)(AIPanelFlyoutMenuRef menu, std::uint32_t itemID, AIBoolean enabled);
  AIErr (*SetItemChecked)(AIPanelFlyoutMenuRef menu, std::uint32_t itemID, AIBoolean checked);
};

extern const AIPanelFlyoutMenuSuite* sAIPanelFlyoutMenu;
