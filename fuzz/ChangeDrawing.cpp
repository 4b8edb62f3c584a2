#include "ChangeDrawing.h"

#include <iterator>
#include <random>
#include <string>

#include "TestDrawing.h"

namespace {

using namespace host;

class Editor {
 public:
  Editor(SvgDrawing& drawing, std::uint64_t seed)
      : drawing_(drawing), document_(*drawing.document), random_(seed) {}

  void Step() {
    constexpr void (Editor::*kChanges[])() = {&Editor::AddPath,    &Editor::AddPath,  &Editor::Restyle,
                                              &Editor::Reshape,    &Editor::Move,     &Editor::Delete,
                                              &Editor::Rename,     &Editor::AddLayer, &Editor::ChangeLayer,
                                              &Editor::RaiseLayer, &Editor::Group,    &Editor::DeleteLayer};
    document_.beginStep("change");
    (this->*kChanges[Below(std::size(kChanges))])();
    document_.endStep();
  }

 private:
  std::size_t Below(std::size_t count) { return random_() % count; }
  double Number() { return static_cast<double>(Below(400)) / 4 - 20; }

  LayerId AnyLayer() { return document_.state().layers[Below(document_.state().layers.size())]; }

  // Root groups among it.
  ArtId AnyArt() {
    for (;;) {
      const ArtId id = static_cast<ArtId>(1 + Below(document_.artSlots()));
      if (document_.art(id) != nullptr) return id;
    }
  }

  // A compound path without paths is nothing that a file could hold.
  bool IsLastPart(ArtId id) const {
    const Art* const parent = document_.art(document_.art(id)->parent);
    return parent != nullptr && parent->type == kCompoundPathArt && parent->firstChild == parent->lastChild;
  }

  AIPaintOrder AnyOrder() {
    constexpr AIPaintOrder kOrders[] = {kPlaceAbove, kPlaceBelow, kPlaceInsideOnTop, kPlaceInsideOnBottom};
    return kOrders[Below(std::size(kOrders))];
  }

  std::shared_ptr<const PathGeometry> AnyPath() {
    return corners({{Number(), Number()}, {Number(), Number()}, {Number(), Number()}}, Below(2) == 0);
  }

  std::shared_ptr<const AIPathStyle> AnyStyle() {
    const AIColor color = Below(2) == 0 ? cmyk(0.25, 0, 1, 0.5) : rgb(1, 0.2, 0);
    if (Below(3) == 0) return filled(color, Below(2) == 0);
    return stroked(color, static_cast<double>(Below(8)) / 4, Below(2) == 0);
  }

  void AddPath() {
    const auto id = document_.newArt(kPathArt, AnyOrder(), AnyArt());
    if (!id) return;
    document_.setPath(*id, AnyPath());
    document_.setStyle(*id, AnyStyle());
  }

  void Restyle() {
    const ArtId id = AnyArt();
    if (document_.styleOf(id) != nullptr) document_.setStyle(id, AnyStyle());
  }

  void Reshape() {
    const ArtId id = AnyArt();
    if (document_.art(id)->path != nullptr) document_.setPath(id, AnyPath());
  }

  void Move() {
    const ArtId id = AnyArt();
    if (!IsLastPart(id)) document_.moveArt(id, AnyOrder(), AnyArt());
  }

  void Delete() {
    const ArtId id = AnyArt();
    if (!IsLastPart(id)) document_.deleteArt(id);
  }

  void Rename() {
    const ArtId id = AnyArt();
    if (document_.art(id)->parent != 0) document_.setName(id, "a < \"b\" & " + std::to_string(Below(9)));
  }

  void AddLayer() { addLayer(drawing_, "added", Below(2) == 0 ? kPlaceAbove : kPlaceBelow, AnyLayer()); }

  void ChangeLayer() {
    Layer& layer = document_.editLayer(AnyLayer());
    layer.visible = Below(2) == 0;
    layer.editable = Below(2) == 0;
    if (Below(2) == 0) layer.step = Below(2) == 0 ? "Structural/Cutting" : "";
    if (Below(2) == 0) layer.title = "title " + std::to_string(Below(9));
  }

  void RaiseLayer() {
    std::vector<LayerId>& layers = document_.editState().layers;
    std::swap(layers[Below(layers.size())], layers.front());
  }

  void Group() {
    const ArtId inside = AnyArt();
    const auto group = document_.newArt(kGroupArt, AnyOrder(), AnyArt());
    if (group && !IsLastPart(inside)) document_.moveArt(inside, kPlaceInsideOnTop, *group);
  }

  void DeleteLayer() {
    if (document_.state().layers.size() > 1) document_.deleteLayer(AnyLayer());
  }

  SvgDrawing& drawing_;
  Document& document_;
  std::mt19937_64 random_;
};

}  // namespace

void ChangeDrawing(SvgDrawing& drawing, std::uint64_t seed) {
  Editor editor(drawing, seed);
  for (std::uint64_t steps = 1 + seed % 6; steps > 0; --steps) editor.Step();
}
