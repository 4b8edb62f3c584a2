#include "SvgEffects.h"

#include "SvgCascade.h"
#include "SvgElements.h"

namespace host {
namespace {

SvgEffect effectOf(const SvgStyle& style, bool isShape) {
  return {style.opacity, style.fillOpacity, style.strokeOpacity,
          style.masked,  style.filtered,    isShape && style.markers != 0};
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
  };
  std::vector<Level> round;
  for (NodeIndex element = source.root(); element <= source.nodeCount(); ++element) {
    while (!round.empty() && round.back().element != source.node(element).parent) round.pop_back();
    const SvgStyle outer = round.empty() ? SvgStyle{} : round.back().style;
    const SvgStyle style = cascade.styleOf(element, cascade.declaredFor(element), outer, {});
    effects_[element] = effectOf(style, kindOf(source, element) == SvgElementKind::Shape);
    if (source.node(element).firstChild != 0) round.push_back({element, style});
  }
}

}  // namespace host
