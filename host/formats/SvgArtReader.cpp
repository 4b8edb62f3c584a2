#include "SvgArtReader.h"

#include <cmath>
#include <utility>

#include "Bounds.h"
#include "Geometry.h"
#include "SvgElements.h"
#include "SvgHostText.h"
#include "SvgQuoted.h"
#include "SvgShapes.h"

namespace host {
namespace {

bool isTrue(std::optional<std::string_view> value) {
  return value == "true" || value == "1";
}

AIArtType bodyType(const SvgSource& source, NodeIndex element, SvgElementKind kind) {
  if (kind == SvgElementKind::Text) return kTextFrameArt;
  if (kind == SvgElementKind::Use) return kSymbolArt;
  if (kind != SvgElementKind::Image) return kForeignArt;
  return source.href(element).value_or("").substr(0, 5) == "data:" ? kRasterArt : kPlacedArt;
}

bool isContainer(SvgElementKind kind) {
  return kind == SvgElementKind::Group || kind == SvgElementKind::Nested || kind == SvgElementKind::Switch;
}

// The box of all outlines in `group`, in user space, y down. What is hidden doesn't count.
AIRealRect userBoxOf(const Document& document, ArtId group, const AIRealMatrix& documentFromUser) {
  AIRealRect box = kEmptyRect;
  AIRealMatrix userFromDocument{};
  if (!invert(documentFromUser, userFromDocument)) return box;
  std::vector<ArtId> open{group};
  while (!open.empty()) {
    const Art& art = *document.art(open.back());
    open.pop_back();
    if (art.hidden) continue;
    if (art.path != nullptr) box = unite(box, pathBounds(transformed(*art.path, userFromDocument)));
    if (art.body != nullptr) box = unite(box, host::userBoxOf(art.body->parts, 0, documentFromUser));
    for (ArtId child = art.firstChild; child != 0; child = document.art(child)->below) open.push_back(child);
  }
  return box;
}

}  // namespace

SvgArtReader::SvgArtReader(SvgReading& reading)
    : reading_(reading),
      source_(reading.source),
      document_(reading.document),
      texts_(reading),
      clips_(reading, texts_),
      bodies_(reading, texts_, clips_) {}

void SvgArtReader::readLayers() {
  reading_.paints.remarkGroup(source_.root());
  for (const SvgLayerPlan& plan : planLayers(source_)) readLayer(plan);
}

void SvgArtReader::readLayer(const SvgLayerPlan& plan) {
  const LayerId id = document_.insertLayer(0, kPlaceAboveAll);
  Layer& layer = document_.editLayer(id);
  layer.title = plan.title;
  layer.source = plan.source;
  const ArtId root = layer.root;
  const SvgContext outer = reading_.rootContext();
  if (plan.source == source_.root()) {
    for (const NodeIndex element : plan.stray) readElement(element, outer, root);
    return;
  }
  const SvgContext context = contextInside(plan.source, reading_.cascade.declaredFor(plan.source), outer);
  layer.visible = !context.flattened && context.style.displayed && passesConditions(source_, plan.source);
  layer.editable = !isTrue(source_.attribute(plan.source, XmlNamespace::Sodipodi, "insensitive"));
  layer.step = stepOfLayer(plan.source);
  reading_.remarkEffects(plan.source, context.style);
  reading_.paints.remarkGroup(plan.source);
  readChildren(plan.source, context, root);
  Art art;
  art.type = kGroupArt;
  art.clip = clipOfGroup(plan.source, context, root);
  if (art.clip != nullptr) document_.initialiseArt(root, art);
}

std::optional<std::string> SvgArtReader::stepOfLayer(NodeIndex element) {
  const auto text = source_.attribute(element, XmlNamespace::Host, kHostStep);
  if (!text) return std::nullopt;
  std::optional<std::string> step = stepFrom(*text);
  if (!step) reading_.remarks.add(element, "its processing step " + quoted(*text) + " is not known");
  return step;
}

// What is flattened could not be told apart any more, and nothing be added to it.
SvgContext SvgArtReader::contextInside(NodeIndex element, const SvgDeclaredValues& declared,
                                       const SvgContext& outer) {
  SvgContext context = reading_.contextInside(element, declared, outer);
  AIRealMatrix inverse{};
  if (invert(context.documentFromUser, inverse)) return context;
  context.flattened = true;
  context.documentFromUser = concat(uprightTransformOf(source_, element), outer.documentFromUser);
  reading_.remarks.add(element, "its transform flattens it, so it is not drawn");
  return context;
}

void SvgArtReader::readChildren(NodeIndex element, const SvgContext& context, ArtId parent) {
  for (NodeIndex child = source_.node(element).firstChild; child != 0;
       child = source_.node(child).nextSibling) {
    readElement(child, context, parent);
  }
}

void SvgArtReader::readElement(NodeIndex element, const SvgContext& outer, ArtId parent, bool chosen) {
  const SvgElementKind kind = kindOf(source_, element);
  if (kind == SvgElementKind::None) return;
  if (isContainer(kind)) {
    readContainer(element, kind, outer, parent, chosen);
  } else {
    readLeaf(element, kind, outer, parent, chosen);
  }
}

void SvgArtReader::readContainer(NodeIndex element, SvgElementKind kind, const SvgContext& outer,
                                 ArtId parent, bool chosen) {
  const SvgContext context = contextInside(element, reading_.cascade.declaredFor(element), outer);
  const ArtId id = addArt(artOf(element, kGroupArt, context, chosen), parent);
  reading_.paints.remarkGroup(element);
  ClipPointer viewport;
  if (kind == SvgElementKind::Group) readChildren(element, context, id);
  if (kind == SvgElementKind::Switch) readSwitch(element, context, id);
  if (kind == SvgElementKind::Nested) viewport = readNested(element, context, id);
  const ClipPointer clip = bothClips(viewport, clipOfGroup(element, context, id));
  if (clip == nullptr) return;
  Art art = *document_.art(id);
  art.clip = clip;
  document_.initialiseArt(id, art);
}

void SvgArtReader::readSwitch(NodeIndex element, const SvgContext& context, ArtId parent) {
  const NodeIndex chosen = chosenChild(source_, element);
  for (NodeIndex child = source_.node(element).firstChild; child != 0;
       child = source_.node(child).nextSibling) {
    readElement(child, context, parent, child == chosen);
  }
}

ClipPointer SvgArtReader::readNested(NodeIndex element, const SvgContext& context, ArtId parent) {
  const SvgViewport viewport = nestedViewport(source_, element, context.measure());
  readChildren(element, SvgBodies::contextInViewport(viewport, context), parent);
  // Without room nothing is drawn, which an empty clip says.
  return viewport.draws ? SvgBodies::viewportClip(viewport, context) : std::make_shared<const Clip>();
}

void SvgArtReader::readLeaf(NodeIndex element, SvgElementKind kind, const SvgContext& outer, ArtId parent,
                            bool chosen) {
  const SvgDeclaredValues declared = reading_.cascade.declaredFor(element);
  const SvgContext context = contextInside(element, declared, outer);
  if (kind == SvgElementKind::Shape) {
    readShape(element, declared, context, artOf(element, kPathArt, context, chosen), parent);
  } else {
    const AIArtType type = bodyType(source_, element, kind);
    readBody(element, kind, declared, context, artOf(element, type, context, chosen), parent);
  }
}

void SvgArtReader::readShape(NodeIndex element, const SvgDeclaredValues& declared, const SvgContext& context,
                             Art art, ArtId parent) {
  outline_.clear();
  art.hidden = art.hidden || !context.style.visible;
  std::vector<PathGeometry> paths;
  SvgShapeReader shape(source_, reading_.remarks, element, declared, context.measure());
  if (shape.read(outline_)) paths = outline_.paths(context.documentFromUser);
  if (!isUsable(paths)) {
    reading_.remarks.add(element, "its coordinates are out of all bounds, so it is not drawn");
    paths.clear();
  }
  art.style = reading_.paints.pathStyle(element, context.style, context.documentFromUser);
  art.clip = clips_.clipOf(element, context, [this] { return outline_.box(); });
  addPaths(element, std::move(paths), std::move(art), parent);
}

// A path without a segment yet is written so.
bool SvgArtReader::isEmptyPath(NodeIndex element) const {
  return source_.is(element, "path") && source_.attribute(element, "d") == "";
}

void SvgArtReader::addPaths(NodeIndex element, std::vector<PathGeometry> paths, Art art, ArtId parent) {
  const bool compound = source_.attribute(element, XmlNamespace::Host, kHostKind) == "compound";
  if (paths.empty() && isEmptyPath(element)) {
    if (!compound) paths.emplace_back();
  } else if (paths.empty()) {
    art.type = kForeignArt;
    art.style = nullptr;
    addArt(art, parent);
    return;
  }
  if (paths.size() == 1 && !compound) {
    art.path = std::make_shared<const PathGeometry>(std::move(paths.front()));
    addArt(art, parent);
    return;
  }
  art.type = kCompoundPathArt;
  const ArtId id = addArt(art, parent);
  for (PathGeometry& path : paths) {
    Art part;
    part.type = kPathArt;
    part.path = std::make_shared<const PathGeometry>(std::move(path));
    addArt(part, id);
  }
}

void SvgArtReader::readBody(NodeIndex element, SvgElementKind kind, const SvgDeclaredValues& declared,
                            const SvgContext& context, Art art, ArtId parent) {
  auto body = std::make_shared<Body>();
  body->box = kEmptyRect;
  if (kind == SvgElementKind::Text) {
    bodies_.addText(element, context, body->parts);
  } else if (kind == SvgElementKind::Use) {
    bodies_.addUse(element, context, body->parts);
  } else {
    art.hidden = art.hidden || !context.style.visible;
    const bool hasBox = !declared[SvgProperty::Width].empty() && !declared[SvgProperty::Height].empty();
    if (kind == SvgElementKind::Image || hasBox) bodies_.addBox(element, declared, context, body->parts);
  }
  if (kind == SvgElementKind::Foreign)
    reading_.remarks.add(element, "it is kept as it is, but not looked into");
  art.clip = clips_.clipOf(element, context,
                           [&] { return host::userBoxOf(body->parts, 0, context.documentFromUser); });
  if (!body->parts.empty()) art.body = std::move(body);
  addArt(art, parent);
}

ArtId SvgArtReader::addArt(const Art& art, ArtId parent) {
  const ArtId id = document_.newArt(art.type, kPlaceInsideOnTop, parent).value_or(0);
  document_.initialiseArt(id, art);
  return id;
}

Art SvgArtReader::artOf(NodeIndex element, AIArtType type, const SvgContext& context, bool chosen) {
  Art art;
  art.type = type;
  art.source = element;
  art.name = std::string(source_.attribute(element, XmlNamespace::Inkscape, "label").value_or(""));
  art.locked = isTrue(source_.attribute(element, XmlNamespace::Sodipodi, "insensitive"));
  art.hidden =
      !chosen || context.flattened || !context.style.displayed || !passesConditions(source_, element);
  reading_.remarkEffects(element, context.style);
  return art;
}

ClipPointer SvgArtReader::clipOfGroup(NodeIndex element, const SvgContext& context, ArtId group) {
  return clips_.clipOf(element, context,
                       [&] { return userBoxOf(document_, group, context.documentFromUser); });
}

}  // namespace host
