#include "SvgArtWriter.h"

#include <algorithm>
#include <utility>

#include "SvgHostText.h"
#include "SvgMove.h"
#include "SvgPathText.h"
#include "SvgStyleEdit.h"
#include "SvgXmlText.h"

namespace host {
namespace {

constexpr double kPointsPerPixel = 0.75;

bool isPath(const Art& art) {
  return art.type == kPathArt || art.type == kCompoundPathArt;
}

// What makes other shapes than paths, and what would make a path again from other data.
constexpr std::string_view kShapeAttributes[] = {"x",  "y", "width", "height", "rx", "ry", "cx",
                                                 "cy", "r", "x1",    "y1",     "x2", "y2", "points"};
constexpr std::string_view kInkscapeAttributes[] = {"original-d", "path-effect", "connector-curvature"};
constexpr std::string_view kSodipodiAttributes[] = {"type", "nodetypes"};

}  // namespace

void SvgArtWriter::cutLost() {
  const auto count = static_cast<ArtId>(writing_.drawing.originalArt.size());
  for (ArtId read = 1; read <= count; ++read) {
    const ArtId id = writing_.changes.heirOf(read);
    const NodeIndex element = writing_.changes.originalElementOf(id);
    const bool lost = element != 0 && writing_.changes.elementOf(id) == 0;
    if (lost && writing_.canEdit(element)) writing_.plan.cut(element);
  }
}

void SvgArtWriter::writeChildren(ArtId container, NodeIndex element) {
  const std::vector<ArtId> now = writing_.changes.children(container);
  const std::vector<bool> inPlace = entriesInPlace(now, writing_.changes.originalChildren(container));
  const SvgInserter& inserter = writing_.inserter;
  std::vector<ArtId> run;
  NodeIndex below = 0;
  for (std::size_t i = 0; i < now.size(); ++i) {
    const NodeIndex child = inPlace[i] ? writing_.changes.elementOf(now[i]) : 0;
    if (child == 0) {
      run.push_back(now[i]);
      continue;
    }
    if (!run.empty() && writing_.canEdit(below != 0 ? below : child)) {
      insertRun(run, below != 0 ? inserter.behind(below) : inserter.before(child));
    }
    run.clear();
    below = child;
    editKept(now[i], child);
  }
  if (run.empty() || !writing_.canEdit(below != 0 ? below : element)) return;
  insertRun(run, below != 0 ? inserter.behind(below) : inserter.inside(element));
}

void SvgArtWriter::insertRun(const std::vector<ArtId>& run, const SvgSpot& spot) {
  const SvgPlace place = placeAt(writing_, spot);
  for (const ArtId id : run) writing_.inserter.insert(spot, content(id, place));
}

SvgNewContent SvgArtWriter::newChildren(ArtId container, const SvgPlace& place) {
  SvgNewContent result;
  for (const ArtId child : writing_.changes.children(container)) {
    result.add(place.lineBreak);
    result.add(content(child, place));
  }
  return result;
}

SvgNewContent SvgArtWriter::content(ArtId id, const SvgPlace& place) {
  const NodeIndex element = writing_.changes.elementOf(id);
  if (element != 0) return moved(id, element, place);
  const Art& art = *writing_.document.art(id);
  const NodeIndex model = art.copyOf == 0 ? 0 : writing_.changes.originalElementOf(art.copyOf);
  if (model != 0) return copied(id, model, place, SvgTagEdit(writing_.source, writing_.declared, model));
  if (art.type == kGroupArt) return newGroup(id, place);
  SvgNewContent result;
  if (isPath(art)) result.add(newPath(id, place));
  return result;
}

// What the element of the original says beside what a document holds is copied with it. Ids stay with the
// original, and so do the rules that go by them.
SvgNewContent SvgArtWriter::copied(ArtId id, NodeIndex element, const SvgPlace& place, SvgTagEdit tag) {
  if (!writing_.canEdit(element)) return {};
  const SvgSource& source = writing_.source;
  SvgEditPlan plan(source, writing_.layout);
  const bool otherRules = writing_.declared.hasSheet();
  movedUnderSheets_ += otherRules ? 1 : 0;
  adaptToPlace(writing_, element, place, tag);
  editObject(id, element, tag);
  tag.write(plan, writing_.prefixes);
  if (writing_.document.art(id)->type == kGroupArt) copyChildren(id, element, place, plan);
  movedUnderSheets_ -= otherRules ? 1 : 0;
  const std::size_t end = source.node(element).end;
  for (NodeIndex node = element; node <= source.nodeCount() && source.node(node).begin < end; ++node) {
    const auto range = source.rawAttribute(node, XmlNamespace::None, "id");
    if (range) plan.replace(range->outerBegin, range->outerEnd, "");
  }
  return plan.takeElement(element);
}

// What the copy of a group holds now. `element` is that of the original, whose copy lies at `place`.
void SvgArtWriter::copyChildren(ArtId group, NodeIndex element, const SvgPlace& place, SvgEditPlan& plan) {
  const bool isEmpty = writing_.document.art(group)->firstChild == 0;
  const SvgNode& node = writing_.source.node(element);
  const bool hasEndTag = node.closeBegin != node.end;
  if (isEmpty && !hasEndTag) return;
  SvgPlace inner = placeInside(writing_, element);
  inner.scope = place.scope;
  inner.indent = place.indent;
  inner.lineBreak = place.lineBreak.empty() ? std::string() : place.lineBreak + place.indent;
  SvgNewContent content;
  if (!hasEndTag) content.add(">");
  content.add(newChildren(group, inner));
  if (!isEmpty) content.add(place.lineBreak);
  if (hasEndTag) return plan.replace(node.tagEnd, node.closeBegin, std::move(content));
  content.add("</" + writing_.layout.endTagName(element) + ">");
  plan.replace(writing_.source.attributeInsertion(element), node.tagEnd, std::move(content));
}

SvgNewContent SvgArtWriter::moved(ArtId id, NodeIndex element, const SvgPlace& place) {
  SvgNewContent result;
  if (!writing_.canEdit(element)) return result;
  SvgTagEdit tag(writing_.source, writing_.declared, element);
  const bool otherRules = adaptToPlace(writing_, element, place, tag) && writing_.declared.hasSheet();
  movedUnderSheets_ += otherRules ? 1 : 0;
  editKept(id, element, tag);
  movedUnderSheets_ -= otherRules ? 1 : 0;
  writing_.plan.cut(element);
  result.addMoved(element);
  return result;
}

std::string SvgArtWriter::newTag(std::string_view element, ArtId id, const SvgPlace& place) {
  std::string tag = "<" + writing_.prefixes.elementName(place.parent, element);
  const std::string& name = writing_.document.art(id)->name;
  if (name.empty()) return tag;
  appendAttribute(tag, writing_.prefixes.name(place.parent, XmlNamespace::Inkscape, "label", place.scope),
                  name);
  return tag;
}

std::string SvgArtWriter::kindAttribute(std::string_view kind, const SvgPlace& place) {
  std::string text;
  appendAttribute(text, writing_.prefixes.name(place.parent, XmlNamespace::Host, kHostKind, place.scope),
                  kind);
  return text;
}

SvgNewContent SvgArtWriter::newGroup(ArtId id, const SvgPlace& place) {
  SvgNewContent result;
  result.add(newTag("g", id, place));
  if (isOverlooked(writing_, id)) result.add(kindAttribute("group", place));
  if (writing_.document.art(id)->firstChild == 0) {
    result.add("/>");
    return result;
  }
  SvgPlace inner = place;
  if (!inner.lineBreak.empty()) inner.lineBreak += inner.indent;
  result.add(">");
  result.add(newChildren(id, inner));
  result.add(place.lineBreak + "</" + writing_.prefixes.elementName(place.parent, "g") + ">");
  return result;
}

std::string SvgArtWriter::newPath(ArtId id, const SvgPlace& place) {
  const Art& art = *writing_.document.art(id);
  std::string tag = newTag("path", id, place);
  if (art.style) {
    const SvgStyleWords words = styleWords(*art.style, writing_.document, place.documentUnitsPerUser);
    tag += newStyleAttributes(words, place.parent, writing_.declared, writing_.prefixes, place.scope);
  }
  if (isShortCompound(id)) tag += kindAttribute("compound", place);
  appendAttribute(tag, "d", pathData(id, place.userFromDocument));
  return tag + "/>";
}

void SvgArtWriter::editKept(ArtId id, NodeIndex element) {
  const Art& before = *writing_.changes.original(id);
  const Art& now = *writing_.document.art(id);
  const bool changed = now.name != before.name || movedUnderSheets_ > 0 || isOverlooked(writing_, id) ||
                       losesSwitch(writing_, id, element) || isHiddenBySwitch(id, element) ||
                       (isPath(now) && (looksDifferent(id) || writing_.changes.isReshaped(id)));
  if (changed && writing_.canEdit(element)) {
    SvgTagEdit tag(writing_.source, writing_.declared, element);
    editKept(id, element, tag);
  } else if (now.type == kGroupArt) {
    writeChildren(id, element);
  }
}

void SvgArtWriter::editKept(ArtId id, NodeIndex element, SvgTagEdit& tag) {
  editObject(id, element, tag);
  tag.write(writing_.plan, writing_.prefixes);
  if (writing_.document.art(id)->type == kGroupArt) writeChildren(id, element);
}

// Name, outline and style of art that stands where the file has its element, or is a copy of such art.
void SvgArtWriter::editObject(ArtId id, NodeIndex element, SvgTagEdit& tag) {
  const Art& now = *writing_.document.art(id);
  if (now.name != writing_.changes.model(id)->name) tag.set(XmlNamespace::Inkscape, "label", now.name);
  if (losesSwitch(writing_, id, element)) tag.rename("g");
  if (isOverlooked(writing_, id)) tag.set(XmlNamespace::Host, kHostKind, "group");
  if (isHiddenBySwitch(id, element)) tag.setInStyle("display", "none");
  if (!isPath(now)) return;
  if (writing_.changes.isReshaped(id)) editOutline(id, element, tag);
  editPathStyle(id, element, tag);
}

// One that does not hide it any more?
bool SvgArtWriter::isHiddenBySwitch(ArtId id, NodeIndex element) const {
  const Art& art = *writing_.document.art(id);
  return art.hidden && losesSwitch(writing_, art.parent, writing_.source.node(element).parent);
}

void SvgArtWriter::editOutline(ArtId id, NodeIndex element, SvgTagEdit& tag) {
  const SvgSource& source = writing_.source;
  const auto drop = [&](XmlNamespace nameSpace, std::string_view name) {
    if (source.attribute(element, nameSpace, name)) tag.remove(nameSpace, name);
  };
  for (const std::string_view name : kInkscapeAttributes) drop(XmlNamespace::Inkscape, name);
  for (const std::string_view name : kSodipodiAttributes) drop(XmlNamespace::Sodipodi, name);
  if (!source.is(element, "path")) {
    tag.rename("path");
    for (const std::string_view name : kShapeAttributes) drop(XmlNamespace::None, name);
  }
  const AIRealMatrix documentFromUser = writing_.documentFromContent(element);
  tag.set("d", pathData(id, userFromDocument(writing_, documentFromUser)));
  if (isShortCompound(id)) {
    tag.set(XmlNamespace::Host, kHostKind, "compound");
  } else {
    drop(XmlNamespace::Host, kHostKind);
  }
}

bool SvgArtWriter::looksDifferent(ArtId id) const {
  const auto& now = writing_.document.art(id)->style;
  const auto& before = writing_.changes.model(id)->style;
  return now != before &&
         !(styleWords(*now, writing_.document, 1) == styleWords(*before, writing_.document, 1));
}

void SvgArtWriter::editPathStyle(ArtId id, NodeIndex element, SvgTagEdit& tag) {
  // Rules that go by the name of the element don't apply any more once it became a path.
  const bool renamed = writing_.changes.isReshaped(id) && !writing_.source.is(element, "path");
  const bool inFull = movedUnderSheets_ > 0 || (renamed && writing_.declared.hasSheet());
  if (!looksDifferent(id) && !inFull) return;
  const bool fixedStroke = writing_.declared.on(element, "vector-effect") == "non-scaling-stroke";
  const double unit = fixedStroke ? kPointsPerPixel / writing_.document.scale()
                                  : strokeScale(writing_.documentFromContent(element));
  const SvgStyleWords now = styleWords(*writing_.document.art(id)->style, writing_.document, unit);
  const SvgStyleWords before =
      inFull ? SvgStyleWords() : styleWords(*writing_.changes.model(id)->style, writing_.document, unit);
  editStyle(before, now, element, writing_.source, writing_.declared, tag);
}

// A compound path of less than two outlines looks like a plain path.
bool SvgArtWriter::isShortCompound(ArtId id) const {
  if (writing_.document.art(id)->type != kCompoundPathArt) return false;
  const std::vector<ArtId> paths = writing_.changes.children(id);
  const auto isDrawn = [this](ArtId path) { return !writing_.document.art(path)->path->segments.empty(); };
  return std::count_if(paths.begin(), paths.end(), isDrawn) < 2;
}

std::string SvgArtWriter::pathData(ArtId id, const AIRealMatrix& userFromDocument) const {
  const Art& art = *writing_.document.art(id);
  std::string data;
  if (art.type == kPathArt) {
    appendPathData(data, *art.path, userFromDocument);
  } else {
    for (const ArtId path : writing_.changes.children(id)) {
      appendPathData(data, *writing_.document.art(path)->path, userFromDocument);
    }
  }
  return data;
}

}  // namespace host
