#include "JobMarks.h"

#include <algorithm>

#include "Bounds.h"
#include "MarksProduct.h"

namespace host {

LayerId markLayerOf(const Document& document) {
  const auto& layers = document.state().layers;
  const auto found = std::find_if(layers.begin(), layers.end(), [&](LayerId id) {
    return document.layer(id)->title == kMarksProduct.layerTitle;
  });
  return found == layers.end() ? 0 : *found;
}

std::vector<JobMark> marksOf(const Document& document) {
  std::vector<JobMark> marks;
  const LayerId layer = markLayerOf(document);
  if (layer == 0) return marks;
  // What was drawn first lies at the bottom.
  const ArtId root = document.layer(layer)->root;
  for (ArtId art = document.art(root)->lastChild; art != 0; art = document.art(art)->above) {
    if (document.art(art)->name != kMarksProduct.artName) continue;
    const AIRealRect box = artBounds(document, art, nullptr, kNoStrokeBounds);
    marks.push_back({art, {(box.left + box.right) / 2, (box.top + box.bottom) / 2}, box});
  }
  return marks;
}

}  // namespace host
