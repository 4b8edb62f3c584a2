#include "AIPanelFlyoutMenu.h"

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

AIErr create(Host& host, AIPanelFlyoutMenuRef* menu) {
  if (menu == nullptr) return kBadParameterErr;
  *menu = host.objects().flyoutMenus.make({});
  return *menu == nullptr ? kOutOfMemoryErr : kNoErr;
}

AIErr destroy(Host& host, AIPanelFlyoutMenuRef menu) {
  if (!host.objects().flyoutMenus.dispose(menu)) return kBadParameterErr;
  for (const auto& panel : host.panels().all()) {
    if (panel->menu != menu) continue;
    panel->menu = nullptr;
    panel->view->recordChanged();
  }
  return kNoErr;
}

AIErr appendItem(Host& host, AIPanelFlyoutMenuRef menu, std::uint32_t itemID, AIUnicodeStringHandle text) {
  FlyoutMenu* known = host.objects().flyoutMenus.find(menu);
  const HostString* string = findString(host, text);
  if (known == nullptr || string == nullptr || known->find(itemID) != nullptr) return kBadParameterErr;
  FlyoutMenu::Item& item = known->items.emplace_back();
  item.id = itemID;
  item.text = string->text();
  return kNoErr;
}

AIErr appendSeparator(Host& host, AIPanelFlyoutMenuRef menu) {
  FlyoutMenu* known = host.objects().flyoutMenus.find(menu);
  if (known == nullptr) return kBadParameterErr;
  known->items.emplace_back().isSeparator = true;
  return kNoErr;
}

AIErr set(Host& host, AIPanelFlyoutMenuRef menu, std::uint32_t itemID, bool FlyoutMenu::Item::*field,
          AIBoolean value) {
  FlyoutMenu* known = host.objects().flyoutMenus.find(menu);
  if (known == nullptr) return kBadParameterErr;
  FlyoutMenu::Item* item = known->find(itemID);
  if (item == nullptr) return kNoSuchItemErr;
  item->*field = value != 0;
  return kNoErr;
}

AIErr setItemEnabled(Host& host, AIPanelFlyoutMenuRef menu, std::uint32_t itemID, AIBoolean enabled) {
  return set(host, menu, itemID, &FlyoutMenu::Item::enabled, enabled);
}

AIErr setItemChecked(Host& host, AIPanelFlyoutMenuRef menu, std::uint32_t itemID, AIBoolean checked) {
  return set(host, menu, itemID, &FlyoutMenu::Item::checked, checked);
}

}  // namespace

SuiteOffer panelFlyoutMenuSuite() {
  SuiteEntries entries(kAIPanelFlyoutMenuSuite);
  static const AIPanelFlyoutMenuSuite table{
      entries.add<create>("Create"),
      entries.add<destroy>("Destroy"),
      entries.add<appendItem>("AppendItem"),
      entries.add<appendSeparator>("AppendSeparator"),
      entries.add<setItemEnabled>("SetItemEnabled"),
      entries.add<setItemChecked>("SetItemChecked"),
  };
  return entries.offer(kAIPanelFlyoutMenuSuiteVersion, &table);
}

}  // namespace host
