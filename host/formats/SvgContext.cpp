#include "SvgContext.h"

#include "Geometry.h"
#include "SvgTransform.h"
#include "SvgViewBox.h"

namespace host {

AIRealMatrix transformOf(const SvgSource& source, NodeIndex element) {
  const auto text = source.attribute(element, "transform");
  return text ? parseTransform(*text).value_or(kIdentity) : kIdentity;
}

AIRealMatrix uprightTransformOf(const SvgSource& source, NodeIndex element) {
  const auto text = source.attribute(element, "transform");
  return text ? parseUprightTransform(*text).value_or(kIdentity) : kIdentity;
}

SvgFrame frameInside(const SvgSource& source, NodeIndex element, const SvgFrame& outer) {
  SvgFrame frame = outer;
  frame.documentFromUser = concat(uprightTransformOf(source, element), outer.documentFromUser);
  if (!source.is(element, "svg")) return frame;
  const SvgViewport viewport =
      nestedViewport(source, element, {outer.width, outer.height, SvgMeasure{}.fontSize});
  return {concat(viewport.outerFromInner, frame.documentFromUser), viewport.innerWidth, viewport.innerHeight};
}

}  // namespace host
