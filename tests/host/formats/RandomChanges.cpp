#include "RandomChanges.h"

#include <iterator>
#include <utility>

#include "DrawingMaker.h"
#include "Duplicate.h"
#include "TestDrawing.h"

namespace host {
namespace {

class RandomEditor {
 public:
  RandomEditor(SvgDrawing& drawing, std::mt19937_64& random)
      : drawing_(drawing), document_(*drawing.document), random_(random) {}

  void change() {
    using Change = void (RandomEditor::*)();
    constexpr Change kChanges[] = {
        &RandomEditor::addPath,     &RandomEditor::addPath,    &RandomEditor::addGroup,
        &RandomEditor::addCompound, &RandomEditor::wrap,       &RandomEditor::copy,
        &RandomEditor::restyle,     &RandomEditor::reshape,    &RandomEditor::move,
        &RandomEditor::move,        &RandomEditor::remove,     &RandomEditor::rename,
        &RandomEditor::empty,       &RandomEditor::addLayer,   &RandomEditor::copyLayer,
        &RandomEditor::changeLayer, &RandomEditor::raiseLayer, &RandomEditor::removeLayer};
    document_.beginStep("change");
    (this->*kChanges[below(std::size(kChanges))])();
    document_.endStep();
  }

  void selectAny() {
    const ArtId id = anyArt();
    if (document_.isEditable(id)) document_.setSelected(id, below(3) != 0);
  }

 private:
  std::size_t below(std::size_t count) { return random_() % count; }
  double number() { return static_cast<double>(below(400)) / 4 - 20; }

  LayerId anyLayer() { return document_.state().layers[below(document_.state().layers.size())]; }

  ArtId anyArt() {
    for (;;) {
      const auto id = static_cast<ArtId>(1 + below(document_.artSlots()));
      if (document_.art(id) != nullptr) return id;
    }
  }

  // A compound path without paths is nothing that a file could hold.
  bool isLastPart(ArtId id) const {
    const Art* const parent = document_.art(document_.art(id)->parent);
    return parent != nullptr && parent->type == kCompoundPathArt && parent->firstChild == parent->lastChild;
  }

  AIPaintOrder anyOrder() {
    constexpr AIPaintOrder kOrders[] = {kPlaceAbove, kPlaceBelow, kPlaceInsideOnTop, kPlaceInsideOnBottom};
    return kOrders[below(std::size(kOrders))];
  }

  std::shared_ptr<const PathGeometry> anyPath() {
    PathGeometry path;
    path.closed = below(2) == 0;
    for (std::size_t count = 2 + below(4); count > 0; --count) {
      AIPathSegment segment{{number(), number()}, {}, {}, 1};
      segment.in = segment.out = segment.p;
      if (below(2) == 0) segment.out.x += 3;
      if (below(2) == 0) segment.in.y -= 2;
      path.segments.push_back(segment);
    }
    if (!path.closed) {  // handles beyond the ends are of no use
      path.segments.front().in = path.segments.front().p;
      path.segments.back().out = path.segments.back().p;
    }
    return std::make_shared<const PathGeometry>(std::move(path));
  }

  AIColor anyColour() {
    const double part = static_cast<double>(below(5)) / 4;
    if (below(3) == 0) return rgb(static_cast<double>(below(256)) / 255, part, 1);
    if (below(2) == 0) return cmyk(part, 0, 0.25, static_cast<double>(below(2)));
    CustomColorId id = document_.customColorByName("Spot");
    if (id == 0) {
      AICustomColor definition{};
      definition.kind = kCustomLabColor;
      definition.c.lab = {50, -20, 60};
      definition.flag = kCustomSpotColor;
      id = document_.addCustomColor("Spot", definition);
      document_.addSwatch(0, testing::customPaint(document_, id, 0), "Spot");
    }
    return testing::customPaint(document_, id, part);
  }

  std::shared_ptr<const AIPathStyle> anyStyle() {
    AIPathStyle style = *stroked(anyColour(), static_cast<double>(below(20)) / 4, below(2) == 0);
    style.strokePaint = below(3) != 0;
    style.stroke.cap = static_cast<AILineCap>(below(3));
    if (below(3) == 0) style.stroke.dash = {2, 1, {2, 3}};
    style.fillPaint = below(2) == 0;
    style.fill.color = anyColour();
    style.evenodd = below(2) == 0;
    return std::make_shared<const AIPathStyle>(style);
  }

  void addPath() {
    const auto id = document_.newArt(kPathArt, anyOrder(), anyArt());
    if (!id) return;
    document_.setPath(*id, anyPath());
    document_.setStyle(*id, anyStyle());
  }

  void addGroup() { document_.newArt(kGroupArt, anyOrder(), anyArt()); }

  void addCompound() {
    const auto id = document_.newArt(kCompoundPathArt, anyOrder(), anyArt());
    if (!id) return;
    for (std::size_t count = 1 + below(3); count > 0; --count)
      document_.setPath(*document_.newArt(kPathArt, kPlaceInsideOnTop, *id), anyPath());
    document_.setStyle(*id, anyStyle());
  }

  void wrap() {
    const ArtId inside = anyArt();
    if (document_.art(inside)->parent == 0 || isLastPart(inside)) return;
    const auto group = document_.newArt(kGroupArt, kPlaceAbove, inside);
    if (group) document_.moveArt(inside, kPlaceInsideOnTop, *group);
  }

  void copy() {
    const ArtId id = anyArt();
    if (document_.art(id)->parent != 0) duplicateArt(document_, id, anyOrder(), anyArt());
  }

  void restyle() {
    const ArtId id = anyArt();
    if (document_.styleOf(id) != nullptr) document_.setStyle(id, anyStyle());
  }

  void reshape() {
    const ArtId id = anyArt();
    if (document_.art(id)->path != nullptr) document_.setPath(id, anyPath());
  }

  void move() {
    const ArtId id = anyArt();
    if (!isLastPart(id)) document_.moveArt(id, anyOrder(), anyArt());
  }

  void remove() {
    const ArtId id = anyArt();
    const ArtId parent = document_.art(id)->parent;
    document_.deleteArt(isLastPart(id) ? parent : id);
  }

  void rename() {
    const ArtId id = anyArt();
    const bool taken = below(4) == 0;
    if (document_.art(id)->parent != 0)
      document_.setName(id, taken ? "" : "a < \"b\" & " + std::to_string(below(9)));
  }

  // All that a layer holds goes at once.
  void empty() {
    const ArtId root = document_.layer(anyLayer())->root;
    while (document_.art(root)->firstChild != 0) document_.deleteArt(document_.art(root)->firstChild);
  }

  void addLayer() {
    host::addLayer(drawing_, below(4) == 0 ? "" : "added", below(2) == 0 ? kPlaceAbove : kPlaceBelow,
                   anyLayer());
  }

  void copyLayer() {
    const LayerId id = anyLayer();
    duplicateLayer(document_, id, below(2) == 0 ? kPlaceAbove : kPlaceBelow, anyLayer());
    if (below(2) == 0) document_.deleteLayer(id);
  }

  void changeLayer() {
    Layer& layer = document_.editLayer(anyLayer());
    layer.visible = below(2) == 0;
    layer.editable = below(2) == 0;
    if (below(2) == 0) layer.step = below(2) == 0 ? "Structural/Cutting" : "";
    if (below(2) == 0) layer.title = below(4) == 0 ? "" : "title " + std::to_string(below(9));
  }

  void raiseLayer() {
    std::vector<LayerId>& layers = document_.editState().layers;
    std::swap(layers[below(layers.size())], layers.front());
  }

  void removeLayer() {
    if (document_.state().layers.size() > 1) document_.deleteLayer(anyLayer());
  }

  SvgDrawing& drawing_;
  Document& document_;
  std::mt19937_64& random_;
};

}  // namespace

void changeAnything(SvgDrawing& drawing, std::mt19937_64& random) {
  RandomEditor(drawing, random).change();
}

void selectAnything(SvgDrawing& drawing, std::mt19937_64& random) {
  RandomEditor(drawing, random).selectAny();
}

}  // namespace host
