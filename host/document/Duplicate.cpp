#include "Duplicate.h"

#include <utility>

namespace host {
namespace {

// Fills an art that is there already with what another one is and holds. A copy of a copy counts as one of
// the first.
void copyContent(Document& document, ArtId from, ArtId to) {
  Art content = *document.art(from);
  const ArtId lowest = content.lastChild;
  const bool hasOwnStyle = document.art(to)->style != nullptr;
  if (hasOwnStyle && content.style == nullptr) content.style = document.art(content.parent)->style;
  if (content.copyOf == 0) content.copyOf = from;
  content.source = 0;
  const bool selected = document.isSelected(from);
  document.initialiseArt(to, content);
  if (selected) document.setSelected(to, true);
  for (ArtId child = lowest; child != 0; child = document.art(child)->above) {
    duplicateArt(document, child, kPlaceInsideOnTop, to);
  }
}

}  // namespace

std::optional<ArtId> duplicateArt(Document& document, ArtId id, AIPaintOrder order, ArtId reference) {
  const Art* original = document.art(id);
  const bool besideItself = reference == id && (order == kPlaceAbove || order == kPlaceBelow);
  if (original == nullptr || (document.isWithin(reference, id) && !besideItself)) return std::nullopt;
  const std::optional<ArtId> copy = document.newArt(original->type, order, reference);
  if (copy) copyContent(document, id, *copy);
  return copy;
}

LayerId duplicateLayer(Document& document, LayerId id, AIPaintOrder order, LayerId reference) {
  const LayerId copy = document.insertLayer(reference, order);
  const ArtId root = document.layer(copy)->root;
  Layer content = *document.layer(id);
  copyContent(document, std::exchange(content.root, root), root);
  if (content.copyOf == 0) content.copyOf = id;
  content.source = 0;
  document.editLayer(copy) = std::move(content);
  return copy;
}

}  // namespace host
