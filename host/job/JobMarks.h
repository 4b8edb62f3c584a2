// The register marks of a document.
#pragma once

#include <vector>

#include "Document.h"

namespace host {

struct JobMark {
  ArtId art = 0;
  AIRealPoint centre{};  // document units
  AIRealRect box{};      // of its outline, document units
};

// In the order they were drawn in. Marks on hidden layers count.
std::vector<JobMark> marksOf(const Document& document);

// The layer that marks lie on; 0 if there is none.
LayerId markLayerOf(const Document& document);

}  // namespace host
