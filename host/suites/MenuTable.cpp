#include "MenuTable.h"

#include <algorithm>
#include <utility>

namespace host {
namespace {

struct OwnGroup {
  const char* menu;
  const char* name;
};

constexpr OwnGroup kOwnGroups[] = {
    {"File", "File Open"},   {"File", "File Save"},       {"File", "File Quit"}, {"Edit", "Edit Undo"},
    {"Edit", "Edit Select"}, {"Edit", "Preferences"},     {"View", "View Zoom"}, {"View", "View Rulers"},
    {"View", "View Theme"},  {"Window", "Tool Palettes"}, {"Window", "Panels"},  {"Window", "Documents"},
    {"Help", "Help Menu"},
};

}  // namespace

MenuTable::MenuTable() {
  for (const OwnGroup& own : kOwnGroups) {
    if (titles_.empty() || titles_.back() != own.menu) titles_.emplace_back(own.menu);
    MenuGroup group;
    group.name = own.name;
    group.menu = own.menu;
    group.isOwn = group.separated = true;
    order_.push_back(groups_.add(std::move(group)).handle);
  }
}

MenuGroup* MenuTable::groupByName(const std::string& name) {
  const auto found = std::find_if(groups_.begin(), groups_.end(),
                                  [&](const MenuGroup& group) { return group.name == name; });
  return found == groups_.end() ? nullptr : &*found;
}

MenuGroup& MenuTable::addGroup(std::string name, std::int32_t options, const MenuGroup& near) {
  MenuGroup group;
  group.name = std::move(name);
  group.menu = near.menu;
  group.opener = near.opener;
  group.separated = (options & kMenuGroupSeparatedOption) != 0;
  MenuGroup& added = groups_.add(std::move(group));
  order_.insert(std::find(order_.begin(), order_.end(), near.handle) + 1, added.handle);
  return added;
}

MenuGroup& MenuTable::addSubmenu(std::string name, std::int32_t options, const MenuItem& opener) {
  MenuGroup group;
  group.name = std::move(name);
  group.opener = opener.handle;
  group.separated = (options & kMenuGroupSeparatedOption) != 0;
  MenuGroup& added = groups_.add(std::move(group));
  order_.push_back(added.handle);
  return added;
}

MenuItem& MenuTable::addItem(MenuItem item, MenuGroup& group) {
  item.group = group.handle;
  MenuItem& added = items_.add(std::move(item));
  group.items.push_back(added.handle);
  return added;
}

void MenuTable::forgetPlugins() {
  items_.removeIf([](const MenuItem&) { return true; });
  groups_.removeIf([](const MenuGroup& group) { return !group.isOwn; });
  for (MenuGroup& group : groups_) group.items.clear();
  const auto isGone = [this](AIMenuGroup group) { return groups_.find(group) == nullptr; };
  order_.erase(std::remove_if(order_.begin(), order_.end(), isGone), order_.end());
}

std::vector<AIMenuGroup> MenuTable::groupsOfMenu(const std::string& title) const {
  std::vector<AIMenuGroup> members;
  for (const AIMenuGroup handle : order_) {
    const MenuGroup& group = *groups_.find(handle);
    if (group.opener == nullptr && group.menu == title) members.push_back(handle);
  }
  return members;
}

std::vector<AIMenuGroup> MenuTable::groupsOfSubmenu(AIMenuItemHandle opener) const {
  std::vector<AIMenuGroup> members;
  if (opener == nullptr) return members;
  for (const AIMenuGroup handle : order_) {
    if (groups_.find(handle)->opener == opener) members.push_back(handle);
  }
  return members;
}

}  // namespace host
