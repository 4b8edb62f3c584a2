#include "SvgClips.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "Geometry.h"
#include "SvgElements.h"
#include "SvgShapes.h"
#include "SvgUrl.h"
#include "SvgViewBox.h"

namespace host {
namespace {

constexpr std::size_t kMaxNesting = 64;

bool isSame(const AIRealMatrix& a, const AIRealMatrix& b) {
  return a.a == b.a && a.b == b.b && a.c == b.c && a.d == b.d && a.tx == b.tx && a.ty == b.ty;
}

}  // namespace

ClipPointer SvgClips::clipOf(NodeIndex element, const SvgContext& context, const UserBox& userBox) {
  if (context.style.clipPath.empty()) return nullptr;
  const NodeIndex clipPath = clipPathOf(element, context.style.clipPath);
  if (clipPath == 0) return nullptr;
  ClipPointer clip = reading_.budget.isSpent() ? nullptr : read(clipPath, context, userBox);
  if (!reading_.budget.isSpent()) return clip;
  reading_.remarks.add(element,
                       "its clip-path does not count, since the file refers to more than can be shown");
  return nullptr;
}

NodeIndex SvgClips::clipPathOf(NodeIndex element, std::string_view reference) {
  const auto url = parseUrl(reference);
  if (!url) {
    reading_.remarks.add(element, "its clip-path " + quoted(reference) + " does not count");
    return 0;
  }
  const NodeIndex node = url->id().empty() ? 0 : reading_.source.byId(url->id());
  if (node != 0 && reading_.source.is(node, "clipPath")) return node;
  reading_.remarks.add(element, "its clip-path refers to " + quoted(url->target) +
                                    ", which is no clip path of this file, so it is not clipped");
  return 0;
}

ClipPointer SvgClips::read(NodeIndex clipPath, const SvgContext& context, const UserBox& userBox) {
  const bool byBox = reading_.source.attribute(clipPath, "clipPathUnits") == "objectBoundingBox";
  const auto known = last_.find(clipPath);
  if (!byBox && known != last_.end() && isSame(known->second.documentFromUser, context.documentFromUser)) {
    return known->second.clip;
  }
  if (std::find(active_.begin(), active_.end(), clipPath) != active_.end() || active_.size() == kMaxNesting) {
    reading_.remarks.add(clipPath, "it clips itself, or through too many others, which does not count");
    return nullptr;
  }
  active_.push_back(clipPath);
  ClipPointer clip = readContent(clipPath, context, userBox);
  active_.pop_back();
  if (!byBox) last_[clipPath] = {context.documentFromUser, clip};
  return clip;
}

ClipPointer SvgClips::readContent(NodeIndex clipPath, const SvgContext& context, const UserBox& userBox) {
  const SvgContext inside = contextInsideClip(clipPath, context, userBox);
  Content content;
  const SvgSource& source = reading_.source;
  NodeIndex child = source.node(clipPath).firstChild;
  for (; child != 0 && !reading_.budget.isSpent(); child = source.node(child).nextSibling) {
    addChild(child, inside, content);
  }
  if (content.ownClip != nullptr && content.outlines.size() > 1) {
    reading_.remarks.add(clipPath, "the clips of its several shapes do not count");
    content.ownClip = nullptr;
  }
  const auto clip = std::make_shared<Clip>();
  clip->outlines = std::move(content.outlines);
  SvgContext outside = context;
  outside.style.clipPath = inside.style.clipPath;
  clip->further = bothClips(content.ownClip, clipOf(clipPath, outside, userBox));
  return clip;
}

SvgContext SvgClips::contextInsideClip(NodeIndex clipPath, const SvgContext& context,
                                       const UserBox& userBox) {
  SvgContext inside = context;
  if (reading_.source.attribute(clipPath, "clipPathUnits") == "objectBoundingBox") {
    const AIRealRect box = userBox();
    const AIRealMatrix userFromBox{box.right - box.left,           0,        0,
                                   std::abs(box.top - box.bottom), box.left, std::min(box.top, box.bottom)};
    inside.documentFromUser = concat(userFromBox, inside.documentFromUser);
    inside.width = inside.height = 1;
  }
  inside.documentFromUser = concat(transformOf(reading_.source, clipPath), inside.documentFromUser);
  inside.style = reading_.styleInFile(clipPath);
  return inside;
}

void SvgClips::addChild(NodeIndex child, const SvgContext& outer, Content& content) {
  const SvgElementKind kind = kindOf(reading_.source, child);
  const bool counts =
      kind == SvgElementKind::Shape || kind == SvgElementKind::Text || kind == SvgElementKind::Use;
  if (!counts || !passesConditions(reading_.source, child) || !reading_.budget.takeElement()) return;
  const SvgDeclaredValues declared = reading_.cascade.declaredFor(child);
  const SvgContext context = reading_.contextInside(child, declared, outer);
  if (!context.style.displayed) return;
  const std::size_t before = content.outlines.size();
  if (kind == SvgElementKind::Use) {
    addUsed(child, context, content);
  } else if (context.style.visible) {
    addOutline(child, context, declared, content);
  }
  if (content.outlines.size() == before || context.style.clipPath.empty()) return;
  const ClipPointer own = clipOf(child, context, [this] { return outline_.box(); });
  content.ownClip = bothClips(content.ownClip, own);
}

// A clip path may use shapes and text, but nothing that holds others.
void SvgClips::addUsed(NodeIndex use, const SvgContext& context, Content& content) {
  const SvgSource& source = reading_.source;
  const std::string_view href = source.href(use).value_or("");
  const NodeIndex target = href.size() > 1 && href[0] == '#' ? source.byId(href.substr(1)) : 0;
  const SvgElementKind kind = target == 0 ? SvgElementKind::None : kindOf(source, target);
  if (kind != SvgElementKind::Shape && kind != SvgElementKind::Text) {
    return reading_.remarks.add(use, "it refers to " + quoted(href) + ", which does not clip");
  }
  SvgContext moved = context;
  const SvgMeasure measure = context.measure();
  const AIRealMatrix shift{1,
                           0,
                           0,
                           1,
                           lengthOr(source, use, "x", SvgAxis::X, measure, 0),
                           lengthOr(source, use, "y", SvgAxis::Y, measure, 0)};
  moved.documentFromUser = concat(shift, moved.documentFromUser);
  const SvgDeclaredValues declared = reading_.cascade.declaredFor(target);
  const SvgContext inside = reading_.contextInside(target, declared, moved);
  if (inside.style.displayed && inside.style.visible) addOutline(target, inside, declared, content);
}

void SvgClips::addOutline(NodeIndex element, const SvgContext& context, const SvgDeclaredValues& declared,
                          Content& content) {
  std::vector<PathGeometry> paths;
  outline_.clear();
  if (kindOf(reading_.source, element) == SvgElementKind::Text) {
    std::vector<Body::Part> parts;
    texts_.read(element, context, parts);
    for (Body::Part& part : parts) {
      std::move(part.paths.begin(), part.paths.end(), std::back_inserter(paths));
    }
  } else if (SvgShapeReader(reading_.source, reading_.remarks, element, declared, context.measure())
                 .read(outline_)) {
    paths = outline_.paths(context.documentFromUser);
  }
  if (paths.empty() || !isUsable(paths) || !reading_.budget.takeSegments(segmentCount(paths))) return;
  content.outlines.push_back({std::move(paths), context.style.clipEvenOdd});
}

}  // namespace host
