// The menus: titles in the menu bar, groups of items in each, and items that open submenus.
#pragma once

#include <string>
#include <vector>

#include "AIMenu.h"
#include "Registry.h"

namespace host {

// A run of items that stand together in a menu.
struct MenuGroup {
  static constexpr HandleKind kKind = HandleKind::MenuGroup;
  AIMenuGroup handle = nullptr;
  std::string name;                     // the key by which plug-ins find it; in no language
  std::string menu;                     // title of the menu it lies in; empty in a submenu
  AIMenuItemHandle opener = nullptr;    // the item whose submenu it lies in; null in a menu of the bar
  bool isOwn = false;                   // the application's
  bool separated = false;               // set off from its neighbours by separators
  std::vector<AIMenuItemHandle> items;  // from the top down
};

struct MenuItem {
  static constexpr HandleKind kKind = HandleKind::MenuItem;
  AIMenuItemHandle handle = nullptr;
  SPPluginRef plugin = nullptr;  // gets its messages
  std::string key;               // in no language
  std::string text;              // UTF-8; "-" is a separator
  AIMenuGroup group = nullptr;
  bool wantsUpdate = false;  // gets kSelectorAIUpdateMenuItem before it is shown
  bool checked = false;
  // The item is enabled while all of these bits of the application's state are set and none of those.
  std::int32_t needsState = 0;
  std::int32_t forbidsState = 0;

  bool enabledIn(std::int32_t state) const {
    return (state & needsState) == needsState && (state & forbidsState) == 0;
  }
};

class MenuTable {
 public:
  MenuTable();  // with the application's own groups

  // The first group of exactly this name; null if there is none.
  MenuGroup* groupByName(const std::string& name);
  MenuGroup& addGroup(std::string name, std::int32_t options, const MenuGroup& near);  // behind `near`
  // Behind the groups that the submenu of `opener` has already.
  MenuGroup& addSubmenu(std::string name, std::int32_t options, const MenuItem& opener);
  MenuItem& addItem(MenuItem item, MenuGroup& group);  // at its end

  // Takes out all items, and all groups but the application's own.
  void forgetPlugins();

  Registry<MenuGroup>& groups() { return groups_; }
  const Registry<MenuGroup>& groups() const { return groups_; }
  Registry<MenuItem>& items() { return items_; }
  const Registry<MenuItem>& items() const { return items_; }

  // For showing: the titles of the bar from left to right, and the groups of a menu from the top down.
  const std::vector<std::string>& titles() const { return titles_; }
  std::vector<AIMenuGroup> groupsOfMenu(const std::string& title) const;
  std::vector<AIMenuGroup> groupsOfSubmenu(AIMenuItemHandle opener) const;  // empty: a plain item

 private:
  Registry<MenuGroup> groups_;
  Registry<MenuItem> items_;
  std::vector<std::string> titles_;
  std::vector<AIMenuGroup> order_;  // groups as they are shown
};

}  // namespace host
