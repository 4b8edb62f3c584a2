#include "SvgBodies.h"

#include <algorithm>
#include <string>

#include "Bounds.h"
#include "Geometry.h"
#include "SvgElements.h"
#include "SvgScanner.h"
#include "SvgShapes.h"

namespace host {
namespace {

// Elements that references may nest, one inside the other, beside what the file itself nests.
constexpr std::size_t kMaxDepth = 512;

constexpr char kTooMuch[] = "it refers to more than can be shown, and is left out in part";

class DepthGuard {
 public:
  explicit DepthGuard(std::size_t& depth) : depth_(depth) { ++depth_; }
  ~DepthGuard() { --depth_; }
  DepthGuard(const DepthGuard&) = delete;
  DepthGuard& operator=(const DepthGuard&) = delete;

 private:
  std::size_t& depth_;
};

// What stands for an image: gray.
AIPathStyle boxStyle() {
  AIPathStyle style{};
  style.fillPaint = 1;
  style.fill.color.kind = kGrayColor;
  style.fill.color.c.g.gray = 0.5;
  style.stroke.color.kind = kNoneColor;
  style.stroke.miterLimit = 4;
  return style;
}

}  // namespace

void SvgBodies::addText(NodeIndex element, const SvgContext& context, Parts& parts) {
  texts_.read(element, context, parts);
}

void SvgBodies::addBox(NodeIndex element, const SvgDeclaredValues& declared, const SvgContext& context,
                       Parts& parts) {
  const SvgBox box =
      SvgShapeReader(reading_.source, reading_.remarks, element, declared, context.measure()).box();
  if (!(box.size.x > 0) || !(box.size.y > 0)) {
    return reading_.remarks.add(element, "it has no width or no height, so its size is not known");
  }
  SvgOutline outline;
  outline.addRect(box.corner, box.size, {0, 0});
  Body::Part part;
  part.paths = outline.paths(context.documentFromUser);
  part.style = boxStyle();
  if (isUsable(part.paths)) parts.push_back(std::move(part));
}

void SvgBodies::addUse(NodeIndex element, const SvgContext& context, Parts& parts) {
  const NodeIndex target = targetOf(element);
  if (target == 0) return;
  SvgContext inside = context;
  const SvgMeasure measure = context.measure();
  const AIRealMatrix shift{1,
                           0,
                           0,
                           1,
                           lengthOr(reading_.source, element, "x", SvgAxis::X, measure, 0),
                           lengthOr(reading_.source, element, "y", SvgAxis::Y, measure, 0)};
  inside.documentFromUser = concat(shift, inside.documentFromUser);
  SvgStyle& style = inside.style;
  const SvgPaintValue outerFill = style.contextFill;
  const SvgPaintValue outerStroke = style.contextStroke;
  const auto resolved = [&](const SvgPaintValue& paint) {
    if (paint.kind == SvgPaintValue::Kind::ContextFill) return outerFill;
    return paint.kind == SvgPaintValue::Kind::ContextStroke ? outerStroke : paint;
  };
  style.contextFill = resolved(style.fill);
  style.contextStroke = resolved(style.stroke);
  if (active_.empty()) outermostUse_ = element;
  active_.push_back(target);
  addTarget(target, element, inside, parts);
  active_.pop_back();
}

NodeIndex SvgBodies::targetOf(NodeIndex use) {
  const std::string_view href = withoutBlanksAround(reading_.source.href(use).value_or(""));
  if (href.empty()) {
    reading_.remarks.add(use, "it refers to nothing");
    return 0;
  }
  const NodeIndex target = href[0] == '#' ? reading_.source.byId(href.substr(1)) : 0;
  if (target == 0) {
    reading_.remarks.add(use, "it refers to " + quoted(href) + ", which is not in this file");
    return 0;
  }
  if (!isRoundItself(use, target)) return target;
  reading_.remarks.add(use, "it refers to itself, or to something it lies in");
  return 0;
}

bool SvgBodies::isRoundItself(NodeIndex use, NodeIndex target) const {
  for (NodeIndex node = use; node != 0; node = reading_.source.node(node).parent) {
    if (node == target) return true;
  }
  return std::find(active_.begin(), active_.end(), target) != active_.end();
}

void SvgBodies::addTarget(NodeIndex target, NodeIndex use, const SvgContext& context, Parts& parts) {
  const SvgSource& source = reading_.source;
  const bool isSymbol = source.is(target, "symbol");
  if (!isSymbol && !source.is(target, "svg")) return addElement(target, context, parts);
  const std::size_t first = parts.size();
  const SvgContext inside = reading_.contextInside(target, context);
  if (!inside.style.displayed || !reading_.budget.takeElement()) return;
  addViewport(target, viewportOfUsed(target, use, inside), inside, parts);
  clipParts(parts, first,
            clips_.clipOf(target, inside, [&] { return userBoxOf(parts, first, inside.documentFromUser); }));
}

// The size that the <use> gives holds before that of what it shows.
SvgViewport SvgBodies::viewportOfUsed(NodeIndex target, NodeIndex use, const SvgContext& context) const {
  const SvgSource& source = reading_.source;
  const SvgMeasure measure = context.measure();
  const auto length = [&](NodeIndex element, std::string_view name, SvgAxis axis, double fallback) {
    return lengthOr(source, element, name, axis, measure, fallback);
  };
  const double width = length(target, "width", SvgAxis::X, context.width);
  const double height = length(target, "height", SvgAxis::Y, context.height);
  const AIRealPoint corner{length(target, "x", SvgAxis::X, 0), length(target, "y", SvgAxis::Y, 0)};
  return viewportOf(source, target, corner, length(use, "width", SvgAxis::X, width),
                    length(use, "height", SvgAxis::Y, height));
}

void SvgBodies::addViewport(NodeIndex element, const SvgViewport& viewport, const SvgContext& context,
                            Parts& parts) {
  if (!viewport.draws) return;
  const std::size_t first = parts.size();
  addChildren(element, contextInViewport(viewport, context), parts);
  clipParts(parts, first, viewportClip(viewport, context));
}

SvgContext SvgBodies::contextInViewport(const SvgViewport& viewport, const SvgContext& context) {
  SvgContext inside = context;
  inside.documentFromUser = concat(viewport.outerFromInner, context.documentFromUser);
  inside.width = viewport.innerWidth;
  inside.height = viewport.innerHeight;
  return inside;
}

ClipPointer SvgBodies::viewportClip(const SvgViewport& viewport, const SvgContext& context) {
  if (context.style.overflows) return nullptr;
  return rectangleClip(viewport.corner, {viewport.width, viewport.height}, context.documentFromUser);
}

void SvgBodies::addChildren(NodeIndex element, const SvgContext& context, Parts& parts) {
  const SvgSource& source = reading_.source;
  for (NodeIndex child = source.node(element).firstChild; child != 0;
       child = source.node(child).nextSibling) {
    addElement(child, context, parts);
  }
}

void SvgBodies::addElement(NodeIndex element, const SvgContext& outer, Parts& parts) {
  const SvgElementKind kind = kindOf(reading_.source, element);
  if (kind == SvgElementKind::None || !passesConditions(reading_.source, element)) return;
  const DepthGuard guard(depth_);
  if (depth_ > kMaxDepth || !reading_.budget.takeElement()) {
    return reading_.remarks.add(outermostUse_, kTooMuch);
  }
  const SvgContext context = reading_.contextInside(element, outer);
  if (!context.style.displayed) return;
  reading_.remarkEffects(element, context.style);
  const std::size_t first = parts.size();
  addContent(element, kind, context, parts);
  clipParts(parts, first, clips_.clipOf(element, context, [&] {
    return userBoxOf(parts, first, context.documentFromUser);
  }));
}

void SvgBodies::addContent(NodeIndex element, SvgElementKind kind, const SvgContext& context, Parts& parts) {
  switch (kind) {
    case SvgElementKind::Group:
      return addChildren(element, context, parts);
    case SvgElementKind::Nested:
      return addViewport(element, nestedViewport(reading_.source, element, context.measure()), context,
                         parts);
    case SvgElementKind::Switch:
      if (const NodeIndex chosen = chosenChild(reading_.source, element)) addElement(chosen, context, parts);
      return;
    case SvgElementKind::Shape:
      if (context.style.visible) addShape(element, context, parts);
      return;
    case SvgElementKind::Text:
      return addText(element, context, parts);
    case SvgElementKind::Use:
      return addUse(element, context, parts);
    default:
      if (!context.style.visible) return;
      return addBox(element, reading_.cascade.declaredFor(element), context, parts);
  }
}

void SvgBodies::addShape(NodeIndex element, const SvgContext& context, Parts& parts) {
  outline_.clear();
  const SvgDeclaredValues declared = reading_.cascade.declaredFor(element);
  SvgShapeReader shape(reading_.source, reading_.remarks, element, declared, context.measure());
  if (!shape.read(outline_)) return;
  Body::Part part;
  part.paths = outline_.paths(context.documentFromUser);
  if (!isUsable(part.paths)) return;
  if (!reading_.budget.takeSegments(segmentCount(part.paths))) {
    return reading_.remarks.add(outermostUse_, kTooMuch);
  }
  part.style = *reading_.paints.pathStyle(element, context.style, context.documentFromUser);
  parts.push_back(std::move(part));
}

AIRealRect userBoxOf(const std::vector<Body::Part>& parts, std::size_t first,
                     const AIRealMatrix& documentFromUser) {
  AIRealRect box = kEmptyRect;
  AIRealMatrix userFromDocument{};
  if (!invert(documentFromUser, userFromDocument)) return box;
  for (std::size_t i = first; i < parts.size(); ++i) {
    for (const PathGeometry& path : parts[i].paths) {
      box = unite(box, pathBounds(transformed(path, userFromDocument)));
    }
  }
  return box;
}

}  // namespace host
