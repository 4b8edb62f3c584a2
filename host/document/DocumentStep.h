// One step that can be undone.
#pragma once

#include <cstdint>
#include <string>

#include "DocumentState.h"
#include "ObjectTable.h"
#include "Selection.h"

namespace host {

struct DocumentStep {
  std::string name;
  std::uint64_t mark = 0;  // no two steps of a document share one
  TableChanges<Art> art;
  TableChanges<Layer> layers;
  TableChanges<Swatch> swatches;
  TableChanges<SwatchGroup> swatchGroups;
  TableChanges<CustomColor> customColors;
  TableChanges<DocumentState> state;
  Selection::Snapshot selectionBefore;
  Selection::Snapshot selectionAfter;

  // Selecting alone is no step.
  bool empty() const {
    return art.saved.empty() && layers.saved.empty() && swatches.saved.empty() &&
           swatchGroups.saved.empty() && customColors.saved.empty() && state.saved.empty();
  }
};

}  // namespace host
