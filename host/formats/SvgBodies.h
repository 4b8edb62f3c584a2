// Content that is kept as a whole: what <use> shows, images, text.
#pragma once

#include <string_view>
#include <vector>

#include "SvgClips.h"
#include "SvgElements.h"
#include "SvgOutline.h"
#include "SvgReading.h"
#include "SvgTexts.h"
#include "SvgViewBox.h"

namespace host {

class SvgBodies {
 public:
  using Parts = std::vector<Body::Part>;

  SvgBodies(SvgReading& reading, SvgTexts& texts, SvgClips& clips)
      : reading_(reading), texts_(texts), clips_(clips) {}

  // Each adds the parts of one element, from the bottom up; its own `clip-path` is left to the caller.
  // `context` is that inside the element.
  void addText(NodeIndex element, const SvgContext& context, Parts& parts);
  void addUse(NodeIndex element, const SvgContext& context, Parts& parts);
  // The box of an image or of foreign content.
  void addBox(NodeIndex element, const SvgDeclaredValues& declared, const SvgContext& context, Parts& parts);

  // The context in a nested <svg> whose own context is `context`.
  static SvgContext contextInViewport(const SvgViewport& viewport, const SvgContext& context);
  // Null if what lies beyond the viewport is shown.
  static ClipPointer viewportClip(const SvgViewport& viewport, const SvgContext& context);

 private:
  void addElement(NodeIndex element, const SvgContext& outer, Parts& parts);
  void addContent(NodeIndex element, SvgElementKind kind, const SvgContext& context, Parts& parts);
  void addChildren(NodeIndex element, const SvgContext& context, Parts& parts);
  void addShape(NodeIndex element, const SvgContext& context, Parts& parts);
  void addViewport(NodeIndex element, const SvgViewport& viewport, const SvgContext& context, Parts& parts);
  NodeIndex targetOf(NodeIndex use);
  void addTarget(NodeIndex target, NodeIndex use, const SvgContext& context, Parts& parts);
  SvgViewport viewportOfUsed(NodeIndex target, NodeIndex use, const SvgContext& context) const;
  bool isRoundItself(NodeIndex use, NodeIndex target) const;

  SvgReading& reading_;
  SvgTexts& texts_;
  SvgClips& clips_;
  SvgOutline outline_;
  std::vector<NodeIndex> active_;  // targets that are being shown
  NodeIndex outermostUse_ = 0;
  std::size_t depth_ = 0;
};

// The box of the outlines from `first` on, in user space, y down.
AIRealRect userBoxOf(const std::vector<Body::Part>& parts, std::size_t first,
                     const AIRealMatrix& documentFromUser);

}  // namespace host
