// Line types of a document: spot colours that a layer of the same name belongs to.
#pragma once

#include <string>
#include <vector>

#include "Document.h"

namespace host {

struct LineType {
  std::string name;
  CustomColorId color = 0;
  LayerId layer = 0;  // the topmost of that title
};

// In the order of their layers, from the top. Nothing else makes a line type: a spot colour without a layer
// is an ink like any other.
std::vector<LineType> lineTypesOf(const Document& document);

// The spot colour that the stroke of a path or compound path is painted with, else that of its fill; 0 if
// neither is one, and for other art.
CustomColorId spotOf(const Document& document, ArtId art);

}  // namespace host
