// Point tests against all art of a document that does not change meanwhile.
#pragma once

#include <cstdint>
#include <memory>

#include "Document.h"

namespace host {

// Answers as the document stood at construction. What is drawn is hit: hidden layers and hidden art never
// are, locked ones are, and what a clip cuts off is not. Open filled paths are filled as if closed. Curves
// are tested within kTolerance document units of their true course.
class HitIndex {
 public:
  static constexpr double kTolerance = 0.005;

  explicit HitIndex(const Document& document);
  ~HitIndex();
  HitIndex(HitIndex&&) noexcept;
  HitIndex& operator=(HitIndex&&) noexcept;

  // `request` is a sum of AIHitRequest.
  bool any(AIRealPoint point, std::int32_t request) const;
  ArtId topmost(AIRealPoint point,
                std::int32_t request) const;  // path inside a compound: the compound; 0 if none
  // Is `art`, or something inside it, under the point?
  bool hits(ArtId art, AIRealPoint point, std::int32_t request) const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace host
