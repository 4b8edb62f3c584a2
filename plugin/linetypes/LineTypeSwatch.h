// Swatches of line types in the current document.
#pragma once

#include "AISwatchList.h"
#include "LineType.h"

namespace Vandrell::Corvane {

// The swatch of a line type, made if it is missing, and the record turned into one that refers to that
// swatch's colour (isCustomDataModel false). A custom colour swatch of the line type's name wins over the
// record's own paint; a record that is no custom colour is content with a swatch of its kind. A new swatch
// goes into the group `groupName` (in the platform's encoding), which is made if it is missing. Null if the
// host refuses. Throws ai::Error when it refuses a text.
AISwatchRef EnsureLineTypeSwatch(LineType& type, const char* groupName);

// The first swatch of this name whose paint is of this kind; null if there is none. A null list is the
// current document's.
AISwatchRef FindSwatch(AISwatchListRef list, const ai::UnicodeString& name, AIColorTag type);
AIErr GetSwatchColor(AISwatchRef swatch, AIColor* color);

}  // namespace Vandrell::Corvane
