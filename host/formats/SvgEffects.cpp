#include "SvgEffects.h"

#include <cmath>

#include "Geometry.h"
#include "SvgCascade.h"
#include "SvgElements.h"
#include "SvgTransform.h"

namespace host {
namespace {

constexpr double kVisible = 1e-3;  // part of a stroke's width

// Is a circle no circle any more?
bool stretches(const AIRealMatrix& matrix) {
  const double x = matrix.a * matrix.a + matrix.b * matrix.b;
  const double y = matrix.c * matrix.c + matrix.d * matrix.d;
  const double slant = matrix.a * matrix.c + matrix.b * matrix.d;
  return std::abs(x - y) > 2 * kVisible * x || std::abs(slant) > kVisible * x;
}

AIRealPoint axisOf(const AIRealMatrix& documentFromUser) {
  const double length = std::hypot(documentFromUser.a, documentFromUser.b);
  if (!(length > 0)) return {1, 0};
  return {documentFromUser.a / length, documentFromUser.b / length};
}

SvgEffect effectOf(const SvgStyle& style, bool isShape, const AIRealMatrix& documentFromUser) {
  SvgEffect effect;
  effect.opacity = style.opacity;
  effect.fillOpacity = style.fillOpacity;
  effect.strokeOpacity = style.strokeOpacity;
  effect.masked = style.masked;
  effect.filtered = style.filtered;
  effect.isolated = style.isolated;
  effect.marked = isShape && style.markers != 0;
  effect.reordered = isShape && style.reordered;
  effect.stretched = isShape && !style.nonScalingStroke && stretches(documentFromUser);
  effect.dashesCut = isShape && style.dashCount > style.dashes.size();
  effect.axis = axisOf(documentFromUser);
  effect.blendMode = style.blendMode;
  return effect;
}

AIRealMatrix transformOf(const SvgSource& source, NodeIndex element) {
  const auto text = source.attribute(element, "transform");
  return (text ? parseTransform(*text) : std::nullopt).value_or(AIRealMatrix{1, 0, 0, 1, 0, 0});
}

}  // namespace

// Children come after their parents and before the next element beside them: the styles round an element are
// a stack.
SvgEffects::SvgEffects(const SvgDrawing& drawing) : effects_(drawing.source->nodeCount() + 1) {
  const SvgSource& source = *drawing.source;
  SvgRemarks remarks(source);
  const SvgCascade cascade(source, remarks);
  struct Level {
    NodeIndex element;
    SvgStyle style;
    AIRealMatrix documentFromUser;
  };
  std::vector<Level> round;
  for (NodeIndex element = source.root(); element <= source.nodeCount(); ++element) {
    while (!round.empty() && round.back().element != source.node(element).parent) round.pop_back();
    const SvgStyle outer = round.empty() ? SvgStyle{} : round.back().style;
    const SvgStyle style = cascade.styleOf(element, cascade.declaredFor(element), outer, {});
    const AIRealMatrix matrix =
        concat(transformOf(source, element),
               round.empty() ? drawing.documentFromRoot : round.back().documentFromUser);
    effects_[element] = effectOf(style, kindOf(source, element) == SvgElementKind::Shape, matrix);
    if (source.node(element).firstChild != 0) round.push_back({element, style, matrix});
  }
}

}  // namespace host
