#include "HitTests.h"

namespace host {

void HitTests::buildIndex(const Document& document) {
  serial_ = 0;
  index_.emplace(document);
  serial_ = document.serial();
  revision_ = document.revision();
}

ArtId HitTests::topmost(const Document& document) const {
  if (!hit_) return 0;
  const ArtId found = art_ == 0 ? index_->topmost(point_, request_) : topmostWithin(document, art_);
  return document.art(found) != nullptr ? found : 0;
}

ArtId HitTests::topmostWithin(const Document& document, ArtId art) const {
  const Art* object = document.art(art);
  while (object != nullptr && object->type == kGroupArt) {
    ArtId child = object->firstChild;
    while (child != 0 && !index_->hits(child, point_, request_)) child = document.art(child)->below;
    if (child == 0) return 0;
    art = child;
    object = document.art(child);
  }
  return art;
}

}  // namespace host
