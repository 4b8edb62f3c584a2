#include "SwatchOrder.h"

#include <unordered_map>

#include "Document.h"

namespace host {

std::vector<SwatchEntry> listedSwatches(const Document& document) {
  const DocumentState& state = document.state();
  std::unordered_map<SwatchGroupId, std::vector<SwatchId>> byGroup;
  for (const SwatchGroupId group : state.swatchGroups) byGroup[group];
  std::vector<SwatchEntry> entries;
  for (const SwatchId id : state.swatches) {
    const Swatch* const swatch = document.swatch(id);
    if (swatch == nullptr) continue;
    const auto group = byGroup.find(swatch->group);
    if (group == byGroup.end()) {
      entries.push_back({id, 0});
    } else {
      group->second.push_back(id);
    }
  }
  for (const SwatchGroupId group : state.swatchGroups) {
    entries.push_back({0, group});
    for (const SwatchId id : byGroup[group]) entries.push_back({id, group});
  }
  return entries;
}

}  // namespace host
