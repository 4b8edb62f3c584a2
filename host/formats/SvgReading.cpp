#include "SvgReading.h"

#include <algorithm>
#include <cmath>

#include "Geometry.h"
#include "SvgElements.h"
#include "SvgTransform.h"

namespace host {
namespace {

bool isUsable(AIRealPoint point) {
  return std::abs(point.x) <= kMaxCoordinate && std::abs(point.y) <= kMaxCoordinate;
}

}  // namespace

SvgReading::SvgReading(const SvgSource& theSource, SvgRemarks& theRemarks, Document& theDocument,
                       const SvgPage& thePage, const TextOutliner* theOutliner)
    : source(theSource),
      remarks(theRemarks),
      document(theDocument),
      page(thePage),
      outliner(theOutliner),
      cascade(theSource, theRemarks),
      paints(theSource, cascade, theRemarks, theDocument, thePage.documentFromPixels.a),
      budget(theSource) {}

SvgContext SvgReading::rootContext() {
  SvgContext context;
  context.documentFromUser = page.documentFromRoot;
  context.width = page.innerWidth;
  context.height = page.innerHeight;
  context.style =
      cascade.styleOf(source.root(), cascade.declaredFor(source.root()), SvgStyle{}, context.measure());
  return context;
}

SvgContext SvgReading::contextInside(NodeIndex element, const SvgContext& outer) {
  return contextInside(element, cascade.declaredFor(element), outer);
}

SvgContext SvgReading::contextInside(NodeIndex element, const SvgDeclaredValues& declared,
                                     const SvgContext& outer) {
  SvgContext context;
  context.documentFromUser = outer.documentFromUser;
  context.width = outer.width;
  context.height = outer.height;
  context.style = cascade.styleOf(element, declared, outer.style, outer.measure());
  const auto text = source.attribute(element, "transform");
  if (!text) return context;
  const auto transform = parseTransform(*text);
  if (transform) {
    context.documentFromUser = concat(*transform, outer.documentFromUser);
  } else {
    remarks.add(element, "its transform " + quoted(*text) + " is not understood and does not count");
  }
  return context;
}

SvgStyle SvgReading::styleInFile(NodeIndex element) {
  std::vector<NodeIndex> path;
  for (NodeIndex node = element; node != 0; node = source.node(node).parent) path.push_back(node);
  SvgStyle style;
  const SvgMeasure measure{page.innerWidth, page.innerHeight, style.fontSize};
  for (std::size_t i = path.size(); i-- > 0;) {
    style = cascade.styleOf(path[i], cascade.declaredFor(path[i]), style, measure);
  }
  return style;
}

void SvgReading::remarkEffects(NodeIndex element, const SvgStyle& style) {
  const auto remark = [&](const char* what) {
    remarks.add(element, std::string("its ") + what + " not looked at for bounds and hit tests");
  };
  if (style.masked) remark("mask is");
  if (style.filtered) remark("filter is");
  if (style.markers != 0 && kindOf(source, element) == SvgElementKind::Shape) remark("markers are");
}

bool isUsable(const std::vector<PathGeometry>& paths) {
  return std::all_of(paths.begin(), paths.end(), [](const PathGeometry& path) {
    return std::all_of(path.segments.begin(), path.segments.end(), [](const AIPathSegment& segment) {
      return isUsable(segment.p) && isUsable(segment.in) && isUsable(segment.out);
    });
  });
}

std::size_t segmentCount(const std::vector<PathGeometry>& paths) {
  std::size_t count = 0;
  for (const PathGeometry& path : paths) count += path.segments.size();
  return count;
}

}  // namespace host
