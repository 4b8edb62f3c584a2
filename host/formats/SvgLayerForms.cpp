#include "SvgLayerForms.h"

#include <algorithm>

#include "SvgHostText.h"

namespace host {

SvgLayerForms::SvgLayerForms(const SvgWriting& writing) : writing_(writing), declared_(oneToDeclare()) {
  const std::vector<LayerId>& layers = writing.document.state().layers;
  const auto found = std::find_if(layers.begin(), layers.end(), [this](LayerId id) { return wasLoose(id); });
  if (found == layers.end() || !canStayLoose(*found)) return;
  loose_ = *found;
  looseBegin_ = beginOfLoose();
}

bool SvgLayerForms::wasLoose(LayerId id) const {
  const Layer* const layer = writing_.changes.originalLayer(id);
  return layer && layer->source == writing_.source.root();
}

bool SvgLayerForms::hasElement(LayerId id) const {
  const Layer* const layer = writing_.changes.originalLayer(id);
  return layer && layer->source != 0 && layer->source != writing_.source.root();
}

// Does its element show that the file has layers of its own?
bool SvgLayerForms::isOfTheFile(LayerId id) const {
  return hasElement(id) && writing_.source.attribute(writing_.changes.originalLayer(id)->source,
                                                     XmlNamespace::Host, kHostAdded) != "layer";
}

bool SvgLayerForms::isDeclared(LayerId id) const {
  return isOfTheFile(id) && writing_.source.attribute(writing_.changes.originalLayer(id)->source,
                                                      XmlNamespace::Inkscape, "groupmode") == "layer";
}

// New layers first, so that nothing of the file changes for it.
LayerId SvgLayerForms::oneToDeclare() const {
  LayerId chosen = 0;
  for (const LayerId id : writing_.document.state().layers) {
    if (isOfTheFile(id) || wasLoose(id)) return 0;
    const bool canBe = !hasElement(id) || chosen == 0;
    if (canBe) chosen = id;
  }
  return chosen;
}

bool SvgLayerForms::isMarkedAdded(LayerId id) const {
  return !isOfTheFile(id) && !wasLoose(id) && id != declared_;
}

bool SvgLayerForms::canStayLoose(LayerId id) const {
  if (hasNewState(writing_, id)) return false;
  const std::vector<LayerId>& layers = writing_.document.state().layers;
  const bool hasDeclared =
      std::any_of(layers.begin(), layers.end(), [this](LayerId other) { return isDeclared(other); });
  bool isNamed = false;
  bool isArt = false;
  for (const ArtId child : writing_.changes.children(writing_.document.layer(id)->root)) {
    const Taken taken = takenFor(child);
    if (taken == Taken::Layer) return false;
    isNamed = isNamed || taken == Taken::NamedGroup;
    isArt = isArt || taken == Taken::Art;
  }
  // Groups with names, and nothing beside them, are layers themselves to a reader.
  if (isNamed || isArt) return isArt || hasDeclared;
  return isImplied(id);
}

// Without content it is found only below layers that this host added, and nothing else.
bool SvgLayerForms::isImplied(LayerId id) const {
  const std::vector<LayerId>& layers = writing_.document.state().layers;
  return id == layers.back() &&
         std::none_of(layers.begin(), layers.end(), [this](LayerId other) { return isOfTheFile(other); });
}

SvgLayerForms::Taken SvgLayerForms::takenFor(ArtId child) const {
  const Art& art = *writing_.document.art(child);
  if (art.type != kGroupArt) return Taken::Art;
  const NodeIndex model = art.copyOf == 0 ? 0 : writing_.changes.originalElementOf(art.copyOf);
  const NodeIndex element = writing_.changes.elementOf(child);
  if (element != 0 || model != 0) return groupTakenFor(child, element != 0 ? element : model, element == 0);
  return art.name.empty() ? Taken::Art : Taken::NamedGroup;
}

SvgLayerForms::Taken SvgLayerForms::groupTakenFor(ArtId group, NodeIndex element, bool isCopy) const {
  const SvgSource& source = writing_.source;
  if (!source.is(element, "g") && !losesSwitch(writing_, group, element)) return Taken::Art;
  const Art& art = *writing_.document.art(group);
  const auto has = [&](XmlNamespace nameSpace, std::string_view name, std::string_view value) {
    return source.attribute(element, nameSpace, name).value_or("") == value;
  };
  if (has(XmlNamespace::Inkscape, "groupmode", "layer") || has(XmlNamespace::Host, kHostAdded, "layer")) {
    return Taken::Layer;
  }
  const bool hasId = !has(XmlNamespace::None, "id", "");
  const bool isNamed = !art.name.empty() || (hasId && !isCopy) || !has(XmlNamespace::None, "data-name", "");
  return isNamed ? Taken::NamedGroup : Taken::Art;
}

// To a reader the layer lies where the first of its content stands: in its place, or else beside what is.
NodeIndex SvgLayerForms::beginOfLoose() const {
  const ArtId root = writing_.document.layer(loose_)->root;
  const std::vector<ArtId> now = writing_.changes.children(root);
  const std::vector<bool> inPlace = entriesInPlace(now, writing_.changes.originalChildren(root));
  const auto first = std::find(inPlace.begin(), inPlace.end(), true);
  if (first == inPlace.end()) return 0;
  return writing_.changes.elementOf(now[static_cast<std::size_t>(first - inPlace.begin())]);
}

NodeIndex SvgLayerForms::beginOf(LayerId id) const {
  return isLoose(id) ? looseBegin_ : writing_.changes.originalLayer(id)->source;
}

std::vector<LayerId> SvgLayerForms::keptInFile() const {
  std::vector<LayerId> layers = writing_.changes.originalLayers();
  const auto isNotThere = [this](LayerId id) {
    return !writing_.document.layer(id) || !(hasElement(id) || (isLoose(id) && looseBegin_ != 0));
  };
  layers.erase(std::remove_if(layers.begin(), layers.end(), isNotThere), layers.end());
  std::sort(layers.begin(), layers.end(), [this](LayerId a, LayerId b) { return beginOf(a) < beginOf(b); });
  return layers;
}

bool hasNewState(const SvgWriting& writing, LayerId id) {
  const Layer& before = *writing.changes.originalLayer(id);
  const Layer& now = *writing.document.layer(id);
  return now.title != before.title || now.visible != before.visible || now.editable != before.editable ||
         now.step != before.step;
}

}  // namespace host
