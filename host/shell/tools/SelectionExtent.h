// How far what is selected reaches.
#pragma once

#include <cstdint>

#include "Document.h"

namespace host {

// The common bounds of all selected art without strokes, kept until the document or its selection changes.
class SelectionExtent {
 public:
  const AIRealRect& of(const Document& document);  // empty (isEmpty in Geometry.h) if nothing is selected

 private:
  std::uint32_t serial_ = 0;  // 0: of no document yet
  std::uint64_t revision_ = 0;
  std::uint64_t selectionRevision_ = 0;
  AIRealRect extent_{};
};

}  // namespace host
