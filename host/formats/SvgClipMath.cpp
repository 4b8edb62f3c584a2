#include "SvgClipMath.h"

#include <unordered_map>

#include "SvgOutline.h"

namespace host {

ClipPointer rectangleClip(AIRealPoint corner, AIRealPoint size, const AIRealMatrix& documentFromUser) {
  SvgOutline outline;
  outline.addRect(corner, size, {0, 0});
  auto clip = std::make_shared<Clip>();
  clip->outlines.push_back({outline.paths(documentFromUser), false});
  return clip;
}

ClipPointer bothClips(const ClipPointer& inner, const ClipPointer& outer) {
  if (inner == nullptr || outer == nullptr) return inner == nullptr ? outer : inner;
  // The chain of the inner clip is copied, since the outer one goes at its end.
  const auto result = std::make_shared<Clip>();
  Clip* last = result.get();
  for (const Clip* from = inner.get();; from = from->further.get()) {
    last->outlines = from->outlines;
    if (from->further == nullptr) break;
    auto next = std::make_shared<Clip>();
    Clip* const link = next.get();
    last->further = std::move(next);
    last = link;
  }
  last->further = outer;
  return result;
}

void clipParts(std::vector<Body::Part>& parts, std::size_t first, const ClipPointer& clip) {
  if (clip == nullptr) return;
  std::unordered_map<const Clip*, ClipPointer> combined;
  for (std::size_t i = first; i < parts.size(); ++i) {
    ClipPointer& own = parts[i].clip;
    ClipPointer& both = combined[own.get()];
    if (both == nullptr) both = bothClips(own, clip);
    own = both;
  }
}

}  // namespace host
