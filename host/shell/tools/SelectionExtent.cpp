#include "SelectionExtent.h"

#include "Bounds.h"

namespace host {

const AIRealRect& SelectionExtent::of(const Document& document) {
  const bool isKnown = serial_ == document.serial() && revision_ == document.revision() &&
                       selectionRevision_ == document.selectionRevision();
  if (isKnown) return extent_;
  serial_ = document.serial();
  revision_ = document.revision();
  selectionRevision_ = document.selectionRevision();
  extent_ = commonBounds(document, document.selection(), kNoStrokeBounds);
  return extent_;
}

}  // namespace host
