#include "SvgLayerWriter.h"

#include <utility>

#include "Geometry.h"
#include "SvgContext.h"
#include "SvgHostText.h"
#include "SvgMove.h"
#include "SvgTransform.h"
#include "SvgXmlText.h"

namespace host {
namespace {

void unflatten(const SvgSource& source, NodeIndex element, SvgTagEdit& tag) {
  AIRealMatrix inverse{};
  if (invert(transformOf(source, element), inverse)) return;
  tag.set("transform", transformText(uprightTransformOf(source, element)));
}

}  // namespace

void SvgLayerWriter::write() {
  cutLost();
  const DocumentState& state = writing_.document.state();
  // From the bottom up, as in the file.
  const std::vector<LayerId> now(state.layers.rbegin(), state.layers.rend());
  const std::vector<bool> inPlace = entriesInPlace(now, forms_.keptInFile());
  std::vector<LayerId> run;
  LayerId below = 0;
  for (std::size_t i = 0; i < now.size(); ++i) {
    if (!inPlace[i]) {
      run.push_back(now[i]);
      continue;
    }
    insertRun(run, below, now[i]);
    run.clear();
    below = now[i];
    editKept(now[i]);
  }
  insertRun(run, below, 0);
}

void SvgLayerWriter::cutLost() {
  for (const LayerId id : writing_.changes.originalLayers()) {
    if (writing_.document.layer(id) || !forms_.hasElement(id)) continue;
    const NodeIndex element = writing_.changes.originalLayer(id)->source;
    if (writing_.canEdit(element)) writing_.plan.cut(element);
  }
}

void SvgLayerWriter::insertRun(const std::vector<LayerId>& run, LayerId below, LayerId above) {
  if (run.empty()) return;
  const SvgSpot spot = spotBetween(below, above);
  if (!writing_.canEdit(spot.anchor)) return;
  const SvgPlace place = placeAt(writing_, spot);
  for (const LayerId id : run) {
    if (forms_.isLoose(id)) {
      arts_.insertChildren(writing_.document.layer(id)->root, spot);
    } else {
      writing_.inserter.insert(spot, content(id, place));
    }
  }
}

// Both stay where they are; 0 is the end of the file.
SvgSpot SvgLayerWriter::spotBetween(LayerId below, LayerId above) const {
  if (above == 0) return writing_.inserter.inside(writing_.source.root());
  const bool isLowerWhole = below != 0 && !forms_.isLoose(below);
  return isLowerWhole ? writing_.inserter.behind(forms_.beginOf(below))
                      : writing_.inserter.before(forms_.beginOf(above));
}

SvgNewContent SvgLayerWriter::content(LayerId id, const SvgPlace& place) {
  if (forms_.hasElement(id)) return moved(id, place);
  const Layer* const model = writing_.changes.modelLayer(id);
  const bool isCopy = model && model->source != 0 && model->source != writing_.source.root();
  return isCopy ? copied(id, model->source, place) : newLayer(id, place);
}

SvgNewContent SvgLayerWriter::copied(LayerId id, NodeIndex element, const SvgPlace& place) {
  SvgTagEdit tag(writing_.source, writing_.declared, element);
  editState(id, tag);
  tag.set(XmlNamespace::Inkscape, "groupmode", "layer");
  tag.set(XmlNamespace::Inkscape, "label", writing_.document.layer(id)->title);
  if (forms_.isMarkedAdded(id)) tag.set(XmlNamespace::Host, kHostAdded, "layer");
  return arts_.copied(writing_.document.layer(id)->root, element, place, std::move(tag));
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
  if (forms_.isMarkedAdded(id)) add(attributes, XmlNamespace::Host, kHostAdded, "layer");
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
  const bool hasEdits = !forms_.isLoose(id) && (hasNewState(writing_, id) || losesMark(id));
  if (hasEdits && writing_.canEdit(element)) {
    SvgTagEdit tag(writing_.source, writing_.declared, element);
    editState(id, tag);
    tag.write(writing_.plan, writing_.prefixes);
  }
  arts_.writeChildren(writing_.document.layer(id)->root, element);
}

// Others of the file went that showed that it has layers of its own.
bool SvgLayerWriter::losesMark(LayerId id) const {
  const NodeIndex element = writing_.changes.modelLayer(id)->source;
  return writing_.source.attribute(element, XmlNamespace::Host, kHostAdded) == "layer" &&
         !forms_.isMarkedAdded(id);
}

void SvgLayerWriter::editTitle(LayerId id, SvgTagEdit& tag) const {
  const Layer& before = *writing_.changes.modelLayer(id);
  const std::string& title = writing_.document.layer(id)->title;
  if (title != before.title) tag.set(XmlNamespace::Inkscape, "label", title);
  if (title.empty()) {
    tag.set(XmlNamespace::Host, kHostTitle, "");
  } else if (writing_.source.attribute(before.source, XmlNamespace::Host, kHostTitle)) {
    tag.remove(XmlNamespace::Host, kHostTitle);
  }
}

void SvgLayerWriter::editState(LayerId id, SvgTagEdit& tag) const {
  const Layer& before = *writing_.changes.modelLayer(id);
  const Layer& now = *writing_.document.layer(id);
  if (losesMark(id)) {
    tag.remove(XmlNamespace::Host, kHostAdded);
    tag.set(XmlNamespace::Inkscape, "groupmode", "layer");
  }
  if (now.title != before.title || losesMark(id)) editTitle(id, tag);
  if (now.visible != before.visible) {
    tag.removeProperty("display");
    if (now.visible) unflatten(writing_.source, before.source, tag);
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
