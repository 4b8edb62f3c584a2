// The plug-in's entries in the menus of the host.
#include "CorvaneLayerMenu.h"
#include "CorvaneLegalNoticesMenu.h"
#include "CorvaneMenu.h"
#include "CorvanePreferencesMenu.h"
#include "CutPlugin.h"
#include "EnsureSubmenu.h"
#include "TextKey.h"

namespace Vandrell::Corvane {
namespace {

// Keys of groups differ in trailing blanks only where they stand in different menus under one name.
constexpr const char* kProductsGroup = TextKey("Vandrell");
constexpr const char* kPluginGroup = TextKey("corvane ");
constexpr const char* kPreferencesGroup = TextKey("Vandrell ");
constexpr const char* kHelpGroup = TextKey("Vandrell  ");
constexpr const char* kHelpItemsGroup = "VandrellHelpCustom";

}  // namespace

void CutPlugin::MakeMenus() {
  const auto submenu = [this](const char* name, const char* nearGroup, std::int32_t options) {
    AIMenuItemHandle item = nullptr;
    EnsureSubmenu(pluginRef, name, nearGroup, options, item);
    return item;
  };
  submenu(kProductsGroup, "Tool Palettes", kMenuGroupSeparatedOption);
  submenuItem = submenu(kPluginGroup, kProductsGroup, kMenuGroupNoOptions);
  submenu(kPreferencesGroup, "Preferences", kMenuGroupSeparatedOption);
  layerMenu = MakeMenu<CorvaneLayerMenu>(this, kPluginGroup);
  marksMenu = MakeMenu<CorvaneMenu>(this, kPluginGroup);
  preferencesMenu = MakeMenu<CorvanePreferencesMenu>(this, kPreferencesGroup);
  submenu(kHelpGroup, "Help Menu", kMenuGroupSeparatedOption);
  AIMenuGroup helpItems = nullptr;
  sAIMenu->AddMenuGroup(kHelpItemsGroup, kMenuGroupSeparatedOption, kHelpGroup, &helpItems);
  legalNoticesMenu = MakeMenu<CorvaneLegalNoticesMenu>(this, kHelpItemsGroup);
}

}  // namespace Vandrell::Corvane
