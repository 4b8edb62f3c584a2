#include "AIMenu.h"

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

AIErr addMenuItem(Host& host, SPPluginRef plugin, const char* key, const AIPlatformAddMenuItemDataUS* data,
                  std::int32_t options, AIMenuItemHandle* item) {
  if (host.plugins().find(plugin) == nullptr || key == nullptr || data == nullptr || item == nullptr ||
      data->groupName == nullptr) {
    return kBadParameterErr;
  }
  const HostString* text = findString(host, data->itemText);
  if (text == nullptr) return kBadParameterErr;
  MenuGroup* group = host.menus().groupByName(data->groupName);
  if (group == nullptr) return kNoSuchItemErr;
  MenuItem record;
  record.plugin = plugin;
  record.key = key;
  record.text = text->text();
  record.wantsUpdate = (options & kMenuItemWantsUpdateOption) != 0;
  *item = host.menus().addItem(std::move(record), *group).handle;
  return kNoErr;
}

AIErr addMenuGroup(Host& host, const char* name, std::int32_t options, const char* nearGroup,
                   AIMenuGroup* group) {
  if (name == nullptr || nearGroup == nullptr || group == nullptr) return kBadParameterErr;
  const MenuGroup* near = host.menus().groupByName(nearGroup);
  if (near == nullptr) return kNoSuchItemErr;
  *group = host.menus().addGroup(name, options, *near).handle;
  return kNoErr;
}

AIErr addMenuGroupAsSubMenu(Host& host, const char* name, std::int32_t options, AIMenuItemHandle item,
                            AIMenuGroup* group) {
  const MenuItem* opener = host.menus().items().find(item);
  if (name == nullptr || opener == nullptr || group == nullptr) return kBadParameterErr;
  *group = host.menus().addSubmenu(name, options, *opener).handle;
  return kNoErr;
}

AIErr countMenuGroups(Host& host, std::int32_t* count) {
  if (count == nullptr) return kBadParameterErr;
  *count = static_cast<std::int32_t>(host.menus().groups().size());
  return kNoErr;
}

AIErr getNthMenuGroup(Host& host, std::int32_t index, AIMenuGroup* group) {
  if (group == nullptr) return kBadParameterErr;
  const auto& groups = host.menus().groups();
  if (index < 0 || static_cast<std::size_t>(index) >= groups.size()) return kNoSuchItemErr;
  *group = groups[static_cast<std::size_t>(index)].handle;
  return kNoErr;
}

AIErr getMenuGroupName(Host& host, AIMenuGroup group, const char** name) {
  const MenuGroup* record = host.menus().groups().find(group);
  if (record == nullptr || name == nullptr) return kBadParameterErr;
  *name = record->name.c_str();
  return kNoErr;
}

bool isKnownState(std::int32_t state) {
  return (state & ~kIfOpenDocument) == 0;
}

AIErr updateMenuItemAutomatically(Host& host, AIMenuItemHandle item, std::int32_t action,
                                  std::int32_t positiveArt, std::int32_t negativeArt,
                                  std::int32_t positiveLayer, std::int32_t negativeLayer,
                                  std::int32_t positiveState, std::int32_t negativeState) {
  MenuItem* record = host.menus().items().find(item);
  const bool anyArt = positiveArt == -1 && negativeArt == 0;
  const bool anyLayer = positiveLayer == -1 && negativeLayer == 0;
  if (record == nullptr || action != kAutoEnableMenuItemAction || !anyArt || !anyLayer ||
      !isKnownState(positiveState) || !isKnownState(negativeState)) {
    return kBadParameterErr;
  }
  record->needsState = positiveState;
  record->forbidsState = negativeState;
  return kNoErr;
}

AIErr checkItem(Host& host, AIMenuItemHandle item, AIBoolean checked) {
  MenuItem* record = host.menus().items().find(item);
  if (record == nullptr) return kBadParameterErr;
  record->checked = checked != 0;
  return kNoErr;
}

}  // namespace

SuiteOffer menuSuite() {
  SuiteEntries entries(kAIMenuSuite);
  static const AIMenuSuite table{
      entries.add<addMenuItem>("AddMenuItem"),
      entries.add<addMenuGroup>("AddMenuGroup"),
      entries.add<addMenuGroupAsSubMenu>("AddMenuGroupAsSubMenu"),
      entries.add<countMenuGroups>("CountMenuGroups"),
      entries.add<getNthMenuGroup>("GetNthMenuGroup"),
      entries.add<getMenuGroupName>("GetMenuGroupName"),
      entries.add<updateMenuItemAutomatically>("UpdateMenuItemAutomatically"),
      entries.add<checkItem>("CheckItem"),
  };
  return entries.offer(kAIMenuSuiteVersion, &table);
}

}  // namespace host
