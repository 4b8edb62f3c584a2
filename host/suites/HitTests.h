// Point tests for plug-ins: an index that is kept while the document does not change, and the last answer.
#pragma once

#include <optional>

#include "AIHitTest.h"
#include "HitIndex.h"

namespace host {

class HitTests {
 public:
  // `art` 0 tests all art. Cheap while neither the document nor its revision changes.
  AIHitRef test(const Document& document, ArtId art, AIRealPoint point, std::int32_t request) {
    if (serial_ != document.serial() || revision_ != document.revision()) buildIndex(document);
    art_ = art;
    point_ = point;
    request_ = request;
    hit_ = art == 0 ? index_->any(point, request) : index_->hits(art, point, request);
    if (++counter_ == 0) counter_ = 1;
    return refOfLatest();
  }

  // Is this the reference that the last test gave?
  bool isLatest(AIHitRef ref) const { return counter_ != 0 && ref == refOfLatest(); }
  std::uint32_t documentSerial() const { return serial_; }
  bool hit() const { return hit_; }
  // The topmost art hit, as the document stood at the test; 0 if none.
  ArtId topmost(const Document& document) const;

 private:
  void buildIndex(const Document& document);
  AIHitRef refOfLatest() const { return makeHandle<AIHitRef>(HandleKind::Hit, serial_, counter_); }
  ArtId topmostWithin(const Document& document, ArtId art) const;

  std::optional<HitIndex> index_;
  std::uint32_t serial_ = 0;    // of the document that the index is of; 0: none yet
  std::uint64_t revision_ = 0;  // of that document
  ObjectId counter_ = 0;        // of tests; never 0 after the first
  ArtId art_ = 0;
  AIRealPoint point_{};
  std::int32_t request_ = 0;
  bool hit_ = false;
};

}  // namespace host
