#include "AIPanel.h"

#include <cmath>

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

bool isSize(const AISize& size) {
  const auto isSide = [](AIReal side) { return side >= 0 && side <= kLargestPanelSide; };
  return isSide(size.width) && isSide(size.height);
}

bool isMenu(Host& host, AIPanelFlyoutMenuRef menu) {
  return menu == nullptr || host.objects().flyoutMenus.find(menu) != nullptr;
}

AIErr create(Host& host, SPPluginRef plugin, AIUnicodeStringHandle identifier, AIUnicodeStringHandle title,
             std::int32_t stateCount, AISize minimumSize, AIBoolean resizable, AIPanelFlyoutMenuRef menu,
             void* userData, AIPanelRef* panel) {
  const HostString* name = findString(host, identifier);
  const HostString* shown = findString(host, title);
  const bool sound = host.plugins().find(plugin) != nullptr && name != nullptr && !name->text().empty() &&
                     shown != nullptr && stateCount >= 1 && isSize(minimumSize) && isMenu(host, menu);
  if (!sound || panel == nullptr || host.panels().has(name->text())) return kBadParameterErr;
  if (host.panels().views == nullptr) return kNoPanelsErr;
  PanelRecord record;
  record.plugin = plugin;
  record.identifier = name->text();
  record.title = shown->text();
  record.stateCount = stateCount;
  record.minimum = minimumSize;
  record.isResizable = resizable != 0;
  record.menu = menu;
  record.userData = userData;
  const PanelRecord* added = host.panels().add(std::move(record));
  *panel = added == nullptr ? nullptr : added->handle;
  return added == nullptr ? kOutOfMemoryErr : kNoErr;
}

AIErr destroy(Host& host, AIPanelRef panel) {
  return host.panels().remove(panel) ? kNoErr : kBadParameterErr;
}

// Hands out what a panel has.
template <typename Value, typename Get>
AIErr get(Host& host, AIPanelRef panel, Value* value, Get got) {
  PanelRecord* record = host.panels().find(panel);
  if (record == nullptr || value == nullptr) return kBadParameterErr;
  *value = got(*record);
  return kNoErr;
}

// Changes the record of a panel.
template <typename Change>
AIErr change(Host& host, AIPanelRef panel, Change changed) {
  PanelRecord* record = host.panels().find(panel);
  if (record == nullptr) return kBadParameterErr;
  changed(*record);
  return kNoErr;
}

// The same, and has it seen.
template <typename Change>
AIErr changeShown(Host& host, AIPanelRef panel, Change changed) {
  return change(host, panel, [&](PanelRecord& record) {
    changed(record);
    record.view->recordChanged();
  });
}

AIErr getPlatformView(Host& host, AIPanelRef panel, NativeView** view) {
  return get(host, panel, view, [](PanelRecord& record) { return record.view->view(); });
}

AIErr getUserData(Host& host, AIPanelRef panel, void** userData) {
  return get(host, panel, userData, [](PanelRecord& record) { return record.userData; });
}

AIErr show(Host& host, AIPanelRef panel, AIBoolean shown) {
  return change(host, panel, [&](PanelRecord& record) { record.view->show(shown != 0); });
}

AIErr isShown(Host& host, AIPanelRef panel, AIBoolean* shown) {
  return get(host, panel, shown,
             [](PanelRecord& record) { return static_cast<AIBoolean>(record.view->isShown()); });
}

AIErr setTitle(Host& host, AIPanelRef panel, AIUnicodeStringHandle title) {
  const HostString* text = findString(host, title);
  if (text == nullptr) return kBadParameterErr;
  return changeShown(host, panel, [&](PanelRecord& record) { record.title = text->text(); });
}

AIErr getTitle(Host& host, AIPanelRef panel, AIUnicodeStringHandle title) {
  const PanelRecord* record = host.panels().find(panel);
  return record == nullptr ? kBadParameterErr : writeString(host, title, record->title);
}

AIErr setIcons(Host& host, AIPanelRef panel, const AIPanelIcons* icons) {
  const bool sound = icons != nullptr && icons->count >= 0 &&
                     (icons->count == 0 || (icons->lightIds != nullptr && icons->darkIds != nullptr));
  if (!sound) return kBadParameterErr;
  return changeShown(host, panel, [&](PanelRecord& record) {
    record.icons = {false,
                    {icons->lightIds, icons->lightIds + icons->count},
                    {icons->darkIds, icons->darkIds + icons->count}};
  });
}

AIErr setSVGIcons(Host& host, AIPanelRef panel, std::int32_t lightId, std::int32_t darkId) {
  return changeShown(host, panel, [&](PanelRecord& record) { record.icons = {true, {lightId}, {darkId}}; });
}

AIErr getSize(Host& host, AIPanelRef panel, AISize* size) {
  return get(host, panel, size, [](PanelRecord& record) { return record.view->size(); });
}

AIErr setSize(Host& host, AIPanelRef panel, AISize size) {
  if (!std::isfinite(size.width) || !std::isfinite(size.height)) return kBadParameterErr;
  return change(host, panel, [&](PanelRecord& record) { record.view->setSize(heldWithin(record, size)); });
}

AIErr getMinimumSize(Host& host, AIPanelRef panel, AISize* size) {
  return get(host, panel, size, [](PanelRecord& record) { return record.minimum; });
}

AIErr getMaximumSize(Host& host, AIPanelRef panel, AISize* size) {
  return get(host, panel, size, [](PanelRecord& record) { return record.maximum; });
}

AIErr setLimits(Host& host, AIPanelRef panel, AISize minimum, AISize maximum) {
  const bool sound = isSize(minimum) && isSize(maximum) && minimum.width <= maximum.width &&
                     minimum.height <= maximum.height;
  if (!sound) return kBadParameterErr;
  return changeShown(host, panel, [&](PanelRecord& record) {
    record.minimum = minimum;
    record.maximum = maximum;
  });
}

AIErr setMinimumSize(Host& host, AIPanelRef panel, AISize size) {
  const PanelRecord* record = host.panels().find(panel);
  return record == nullptr ? kBadParameterErr : setLimits(host, panel, size, record->maximum);
}

AIErr setMaximumSize(Host& host, AIPanelRef panel, AISize size) {
  const PanelRecord* record = host.panels().find(panel);
  return record == nullptr ? kBadParameterErr : setLimits(host, panel, record->minimum, size);
}

AIErr setVerticalStep(Host& host, AIPanelRef panel, AIReal step) {
  if (!(step >= 0 && step <= kLargestPanelSide)) return kBadParameterErr;
  return changeShown(host, panel, [&](PanelRecord& record) { record.verticalStep = step; });
}

AIErr setFlyoutMenu(Host& host, AIPanelRef panel, AIPanelFlyoutMenuRef menu) {
  if (!isMenu(host, menu)) return kBadParameterErr;
  return changeShown(host, panel, [&](PanelRecord& record) { record.menu = menu; });
}

AIErr move(Host& host, AIPanelRef panel, std::int32_t x, std::int32_t y) {
  return change(host, panel, [&](PanelRecord& record) { record.view->move(x, y); });
}

template <typename Callback, Callback PanelRecord::*field>
AIErr setCallback(Host& host, AIPanelRef panel, Callback callback) {
  return change(host, panel, [&](PanelRecord& record) { record.*field = callback; });
}

constexpr auto setFlyoutSelectionCallback =
    &setCallback<AIPanelFlyoutSelectionCallback, &PanelRecord::onFlyoutSelection>;
constexpr auto setFlyoutOpeningCallback = &setCallback<AIPanelCallback, &PanelRecord::onFlyoutOpening>;
constexpr auto setVisibilityCallback = &setCallback<AIPanelVisibilityCallback, &PanelRecord::onVisibility>;
constexpr auto setSizeCallback = &setCallback<AIPanelCallback, &PanelRecord::onSize>;
constexpr auto setStateCallback = &setCallback<AIPanelCallback, &PanelRecord::onState>;

}  // namespace

SuiteOffer panelSuite() {
  SuiteEntries entries(kAIPanelSuite);
  static const AIPanelSuite table{
      entries.add<create>("Create"),
      entries.add<destroy>("Destroy"),
      entries.add<getPlatformView>("GetPlatformView"),
      entries.add<getUserData>("GetUserData"),
      entries.add<show>("Show"),
      entries.add<isShown>("IsShown"),
      entries.add<setTitle>("SetTitle"),
      entries.add<getTitle>("GetTitle"),
      entries.add<setIcons>("SetIcons"),
      entries.add<setSVGIcons>("SetSVGIcons"),
      entries.add<getSize>("GetSize"),
      entries.add<setSize>("SetSize"),
      entries.add<getMinimumSize>("GetMinimumSize"),
      entries.add<setMinimumSize>("SetMinimumSize"),
      entries.add<getMaximumSize>("GetMaximumSize"),
      entries.add<setMaximumSize>("SetMaximumSize"),
      entries.add<setVerticalStep>("SetVerticalStep"),
      entries.add<setFlyoutMenu>("SetFlyoutMenu"),
      entries.add<move>("Move"),
      entries.add<setFlyoutSelectionCallback>("SetFlyoutSelectionCallback"),
      entries.add<setFlyoutOpeningCallback>("SetFlyoutOpeningCallback"),
      entries.add<setVisibilityCallback>("SetVisibilityCallback"),
      entries.add<setSizeCallback>("SetSizeCallback"),
      entries.add<setStateCallback>("SetStateCallback"),
  };
  return entries.offer(kAIPanelSuiteVersion, &table);
}

}  // namespace host
