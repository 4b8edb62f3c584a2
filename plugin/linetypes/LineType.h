// One kind of line of a cutting job.
#pragma once

#include "AIColor.h"
#include "IAIUnicodeString.h"

namespace Vandrell::Corvane {

// Made empty it has no name and a paint of all zero bytes. The name is the only link between a line type,
// its layer and its spot colour. Handles in the paint belong to the document.
struct LineType {
  bool isCustomDataModel = false;  // which of the two paints is held
  ai::UnicodeString name;
  union {
    AIColor color = AIColor();  // in use unless isCustomDataModel
    AICustomColor customColor;  // the definition of a custom colour that is in no document yet
  };
};

}  // namespace Vandrell::Corvane
