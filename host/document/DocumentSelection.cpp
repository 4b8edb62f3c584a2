// What of the document is selected.
#include "Document.h"

namespace host {

void Document::setSelected(ArtId id, bool selected) {
  const Art* object = art(id);
  if (object == nullptr) return;
  const Art* parent = art(object->parent);
  const bool isPart = parent != nullptr && parent->type == kCompoundPathArt;
  setLeavesSelected(isPart ? object->parent : id, selected);
}

void Document::setLeavesSelected(ArtId top, bool selected) {
  std::vector<ArtId> open{top};
  while (!open.empty()) {
    const ArtId id = open.back();
    open.pop_back();
    const Art& object = art_[id];
    if (object.type == kGroupArt) {
      for (ArtId child = object.firstChild; child != 0; child = art_[child].below) open.push_back(child);
    } else if (selected) {
      selection_.add(id);
    } else {
      selection_.remove(id);
    }
  }
}

bool Document::holdsSelected(ArtId id) const {
  const Art* object = art(id);
  if (object == nullptr) return false;
  return isSelected(id) || isSelected(object->parent) || selectionHolders()[id];
}

const std::vector<bool>& Document::selectionHolders() const {
  if (holders_.revision == revision_ && holders_.selectionRevision == selectionRevision()) {
    return holders_.holds;
  }
  holders_.revision = revision_;
  holders_.selectionRevision = selectionRevision();
  holders_.holds.assign(art_.size() + 1, false);
  for (const ArtId leaf : selection_.members()) {
    for (ArtId id = art_[leaf].parent; id != 0 && !holders_.holds[id]; id = art_[id].parent) {
      holders_.holds[id] = true;
    }
  }
  return holders_.holds;
}

}  // namespace host
