#include "PanelCalls.h"

#include "Counted.h"
#include "Host.h"
#include "HostObjects.h"
#include "UndoStep.h"

namespace host {
namespace {

template <typename Callback, typename... Args>
void call(Host& host, AIPanelRef panel, Callback PanelRecord::*callback, Args... args) {
  const std::shared_ptr<PanelRecord> record = host.panels().hold(panel);
  if (record == nullptr || record.get()->*callback == nullptr) return;
  const Counted underWay(record->callsUnderWay);
  const std::size_t depth = host.contexts().depth();
  try {
    (record.get()->*callback)(panel, args...);
  } catch (...) {
    host.pluginFailed();
  }
  host.contexts().popTo(depth);
}

std::string textOf(Host& host, AIPanelRef panel, std::uint32_t itemId) {
  const PanelRecord* record = host.panels().find(panel);
  FlyoutMenu* menu = record == nullptr ? nullptr : host.objects().flyoutMenus.find(record->menu);
  const FlyoutMenu::Item* item = menu == nullptr ? nullptr : menu->find(itemId);
  return item == nullptr ? std::string() : item->text;
}

}  // namespace

void tellOfSize(Host& host, AIPanelRef panel) {
  call(host, panel, &PanelRecord::onSize);
}

void tellOfVisibility(Host& host, AIPanelRef panel, bool isVisible) {
  call(host, panel, &PanelRecord::onVisibility, static_cast<AIBoolean>(isVisible));
}

void tellOfState(Host& host, AIPanelRef panel) {
  call(host, panel, &PanelRecord::onState);
}

void tellOfFlyoutOpening(Host& host, AIPanelRef panel) {
  call(host, panel, &PanelRecord::onFlyoutOpening);
}

void tellOfFlyoutSelection(Host& host, AIPanelRef panel, std::uint32_t itemId) {
  const UndoStep step(host.documents(), textOf(host, panel, itemId));
  call(host, panel, &PanelRecord::onFlyoutSelection, itemId);
}

}  // namespace host
