// Clips put together.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "Art.h"

namespace host {

using ClipPointer = std::shared_ptr<const Clip>;

ClipPointer rectangleClip(AIRealPoint corner, AIRealPoint size, const AIRealMatrix& documentFromUser);
// What both leave; null is no clip.
ClipPointer bothClips(const ClipPointer& inner, const ClipPointer& outer);

// Clips some parts by one more clip, which those with equal clips of their own go on sharing.
void clipParts(std::vector<Body::Part>& parts, std::size_t first, const ClipPointer& clip);

}  // namespace host
