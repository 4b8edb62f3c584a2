#include "SvgLayerWriter.h"

#include <algorithm>
#include <utility>

#include "SvgHostText.h"
#include "SvgMove.h"
#include "SvgXmlText.h"

namespace host {

void SvgLayerWriter::write() {
  cutLost();
  const DocumentState& state = writing_.document.state();
  const std::vector<LayerId> before = writing_.changes.originalLayers();
  // From the bottom up, as in the file.
  const std::vector<LayerId> now(state.layers.rbegin(), state.layers.rend());
  const std::vector<bool> inPlace = entriesInPlace(now, keepable({before.rbegin(), before.rend()}));
  std::vector<LayerId> run;
  LayerId below = 0;
  for (std::size_t i = 0; i < now.size(); ++i) {
    if (!inPlace[i]) {
      run.push_back(now[i]);
      continue;
    }
    const bool isGone =
        isLoose(now[i]) && !writing_.document.art(writing_.document.layer(now[i])->root)->firstChild;
    if (isGone) continue;
    insertRun(run, below, now[i]);
    run.clear();
    below = now[i];
    editKept(now[i]);
  }
  insertRun(run, below, 0);
}

bool SvgLayerWriter::isLoose(LayerId id) const {
  const Layer* const layer = writing_.changes.originalLayer(id);
  return layer && layer->source == writing_.source.root();
}

bool SvgLayerWriter::hasNewState(LayerId id) const {
  const Layer& before = *writing_.changes.originalLayer(id);
  const Layer& now = *writing_.document.layer(id);
  return now.title != before.title || now.visible != before.visible || now.editable != before.editable ||
         now.step != before.step;
}

// Does the layer say in the file that it is one?
bool SvgLayerWriter::isDeclared(LayerId id) const {
  const Layer* const before = writing_.changes.originalLayer(id);
  if (!before || before->source == 0 || isLoose(id)) return false;
  const SvgSource& source = writing_.source;
  return source.attribute(before->source, XmlNamespace::Inkscape, "groupmode") == "layer" &&
         !source.attribute(before->source, XmlNamespace::Host, kHostAdded);
}

bool SvgLayerWriter::isTakenForLayer(ArtId id) const {
  const Art& art = *writing_.document.art(id);
  if (art.type != kGroupArt) return false;
  const NodeIndex element = writing_.changes.elementOf(id);
  if (element == 0) return !art.name.empty() || art.firstChild == 0;  // an empty group counts for nothing
  const SvgSource& source = writing_.source;
  const bool named = !art.name.empty() || !source.attribute(element, "id").value_or("").empty() ||
                     !source.attribute(element, "data-name").value_or("").empty();
  return source.is(element, "g") && named;
}

// Groups with names, and nothing beside them, are layers themselves to a reader.
bool SvgLayerWriter::isTakenForLayers(LayerId loose) const {
  const auto& layers = writing_.document.state().layers;
  if (std::any_of(layers.begin(), layers.end(), [this](LayerId id) { return isDeclared(id); })) return false;
  const std::vector<ArtId> children = writing_.changes.children(writing_.document.layer(loose)->root);
  return !children.empty() && std::all_of(children.begin(), children.end(),
                                          [this](ArtId child) { return isTakenForLayer(child); });
}

// To a reader the layer lies where the first of its content stands. Is there none left, or only behind
// layers that it lies below?
bool SvgLayerWriter::isHomeless(LayerId loose) const {
  const ArtId root = writing_.document.layer(loose)->root;
  const std::vector<LayerId> layers = writing_.changes.originalLayers();
  const std::vector<ArtId> before = writing_.changes.originalChildren(root);
  if (layers.size() == 1 || before.empty()) return false;
  const NodeIndex first = arts_.lowestInPlace(root);
  if (first == 0) return writing_.document.art(root)->firstChild != 0;
  const NodeIndex formerFirst = writing_.changes.originalElementOf(before.front());
  return std::any_of(layers.begin(), layers.end(), [&](LayerId id) {
    const NodeIndex element = writing_.changes.originalLayer(id)->source;
    return formerFirst < element && element < first;
  });
}

// Those of the file that can stay without an element being made for them.
std::vector<LayerId> SvgLayerWriter::keepable(std::vector<LayerId> layers) const {
  const auto isToBeMade = [this](LayerId id) {
    if (!writing_.document.layer(id) || writing_.changes.originalLayer(id)->source == 0) return true;
    return isLoose(id) && (hasNewState(id) || isTakenForLayers(id) || isHomeless(id));
  };
  layers.erase(std::remove_if(layers.begin(), layers.end(), isToBeMade), layers.end());
  return layers;
}

void SvgLayerWriter::cutLost() {
  for (const LayerId id : writing_.changes.originalLayers()) {
    const NodeIndex element = writing_.changes.originalLayer(id)->source;
    const bool lost = !writing_.document.layer(id) && element != 0 && !isLoose(id);
    if (lost && writing_.canEdit(element)) writing_.plan.cut(element);
  }
}

void SvgLayerWriter::insertRun(const std::vector<LayerId>& run, LayerId below, LayerId above) {
  if (run.empty()) return;
  const SvgSpot spot = spotBetween(below, above);
  if (!writing_.canEdit(spot.anchor)) return;
  const SvgPlace place = placeAt(writing_, spot);
  for (const LayerId id : run) writing_.inserter.insert(spot, content(id, place));
}

// The element beside which to insert on one side of a layer that stays; 0 if it has none.
NodeIndex SvgLayerWriter::anchorOf(LayerId id, NodeIndex (SvgArtWriter::*looseEnd)(ArtId) const) const {
  if (id == 0) return 0;
  return isLoose(id) ? (arts_.*looseEnd)(writing_.document.layer(id)->root)
                     : writing_.changes.originalLayer(id)->source;
}

SvgSpot SvgLayerWriter::spotBetween(LayerId below, LayerId above) const {
  const NodeIndex root = writing_.source.root();
  const NodeIndex lower = anchorOf(below, &SvgArtWriter::topmostInPlace);
  const NodeIndex upper = anchorOf(above, &SvgArtWriter::lowestInPlace);
  const bool besideLower = lower != 0 && (!isLoose(below) || upper == 0);
  if (above == 0) {
    const bool outside = besideLower && writing_.source.node(lower).parent != root;
    return outside ? writing_.inserter.behind(lower) : writing_.inserter.inside(root);
  }
  if (besideLower) return writing_.inserter.behind(lower);
  return upper != 0 ? writing_.inserter.before(upper) : writing_.inserter.inside(root);
}

SvgNewContent SvgLayerWriter::content(LayerId id, const SvgPlace& place) {
  const Layer* const before = writing_.changes.originalLayer(id);
  const bool hasElement = before && before->source != 0 && !isLoose(id);
  return hasElement ? moved(id, place) : newLayer(id, place);
}

SvgNewContent SvgLayerWriter::moved(LayerId id, const SvgPlace& place) {
  const NodeIndex element = writing_.changes.originalLayer(id)->source;
  SvgNewContent result;
  if (!writing_.canEdit(element)) return result;
  SvgTagEdit tag(writing_.source, writing_.declared, element);
  adaptToPlace(writing_, element, place, tag);
  editState(id, tag);
  tag.write(writing_.plan, writing_.prefixes);
  arts_.writeChildren(writing_.document.layer(id)->root, element);
  writing_.plan.cut(element);
  result.addMoved(element);
  return result;
}

SvgNewContent SvgLayerWriter::newLayer(LayerId id, SvgPlace place) {
  const Layer& layer = *writing_.document.layer(id);
  place.scope = writing_.prefixes.newScope();
  const auto add = [&](std::string& tag, XmlNamespace nameSpace, std::string_view name,
                       std::string_view value) {
    appendAttribute(tag, writing_.prefixes.name(place.parent, nameSpace, name, place.scope), value);
  };
  const std::string name = writing_.prefixes.elementName(place.parent, "g");
  std::string attributes;
  add(attributes, XmlNamespace::Inkscape, "groupmode", "layer");
  if (!layer.title.empty()) add(attributes, XmlNamespace::Inkscape, "label", layer.title);
  if (!isLoose(id)) add(attributes, XmlNamespace::Host, kHostAdded, "layer");
  if (layer.step) add(attributes, XmlNamespace::Host, kHostStep, stepText(*layer.step));
  if (!layer.visible) appendAttribute(attributes, "style", "display:none");
  if (!layer.editable) add(attributes, XmlNamespace::Sodipodi, "insensitive", "1");
  SvgNewContent result;
  result.add("<" + name);
  result.addDeclarations(place.scope);
  const std::vector<ArtId> children = writing_.changes.children(layer.root);
  result.add(attributes + (children.empty() ? "/>" : ">"));
  if (children.empty()) return result;
  SvgPlace inner = place;
  if (!inner.lineBreak.empty()) inner.lineBreak += inner.indent;
  result.add(arts_.newChildren(layer.root, inner));
  result.add(place.lineBreak + "</" + name + ">");
  return result;
}

void SvgLayerWriter::editKept(LayerId id) {
  const NodeIndex element = writing_.changes.originalLayer(id)->source;
  if (!isLoose(id) && hasNewState(id) && writing_.canEdit(element)) {
    SvgTagEdit tag(writing_.source, writing_.declared, element);
    editState(id, tag);
    tag.write(writing_.plan, writing_.prefixes);
  }
  arts_.writeChildren(writing_.document.layer(id)->root, element);
}

void SvgLayerWriter::editState(LayerId id, SvgTagEdit& tag) const {
  const Layer& before = *writing_.changes.originalLayer(id);
  const Layer& now = *writing_.document.layer(id);
  if (now.title != before.title) {
    tag.set(XmlNamespace::Inkscape, "label", now.title);
    // Without a title a layer would be called by its id, or be none.
    if (now.title.empty()) tag.set(XmlNamespace::Host, kHostAdded, "layer");
  }
  if (now.visible != before.visible) {
    tag.removeProperty("display");
    if (!now.visible) tag.setInStyle("display", "none");
    if (now.visible && writing_.declared.sheetSets("display")) tag.setInStyle("display", "inline");
  }
  if (now.step != before.step) {
    if (now.step) tag.set(XmlNamespace::Host, kHostStep, stepText(*now.step));
    if (!now.step) tag.remove(XmlNamespace::Host, kHostStep);
  }
  if (now.editable == before.editable) return;
  if (now.editable) {
    tag.remove(XmlNamespace::Sodipodi, "insensitive");
  } else {
    tag.set(XmlNamespace::Sodipodi, "insensitive", "1");
  }
}

}  // namespace host
