#include "PanelTable.h"

#include <algorithm>
#include <utility>

#include "Handles.h"

namespace host {
namespace {

// Goes on from one host to the next, so that what outlives a host names nothing in its successor.
AIPanelRef nextHandle() {
  static ObjectId last = 0;
  return last == ~ObjectId{0} ? nullptr : makeHandle<AIPanelRef>(HandleKind::Panel, 0, ++last);
}

}  // namespace

AISize heldWithin(const PanelRecord& panel, AISize size) {
  return {std::clamp(size.width, panel.minimum.width, panel.maximum.width),
          std::clamp(size.height, panel.minimum.height, panel.maximum.height)};
}

PanelRecord* PanelTable::add(PanelRecord panel) {
  if (views == nullptr || has(panel.identifier)) return nullptr;
  panel.handle = nextHandle();
  if (panel.handle == nullptr) return nullptr;
  const auto added = std::make_shared<PanelRecord>(std::move(panel));
  panels_.push_back(added);
  try {
    added->view = views->make(*added);
  } catch (...) {
    panels_.pop_back();
    throw;
  }
  return added.get();
}

bool PanelTable::remove(AIPanelRef panel) {
  const std::shared_ptr<PanelRecord> held = hold(panel);
  if (held == nullptr) return false;
  panels_.erase(std::find(panels_.begin(), panels_.end(), held));
  held->view.reset();
  return true;
}

PanelRecord* PanelTable::find(AIPanelRef panel) const {
  return hold(panel).get();
}

bool PanelTable::has(const std::string& identifier) const {
  return std::any_of(panels_.begin(), panels_.end(),
                     [&](const auto& panel) { return panel->identifier == identifier; });
}

std::shared_ptr<PanelRecord> PanelTable::hold(AIPanelRef panel) const {
  const auto found =
      std::find_if(panels_.begin(), panels_.end(), [&](const auto& known) { return known->handle == panel; });
  return found == panels_.end() ? nullptr : *found;
}

}  // namespace host
