// Any sequence of changes must survive a save. Each seed makes one; a failure prints the file.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "SvgWriterCase.h"

namespace host {
namespace {

std::string layersAndLooseArt() {
  return "<!DOCTYPE svg [<!ENTITY e '<path id=\"e\" d=\"M3 3h4v4z\"/>'>]>\n" +
         file(
             "\n <defs><linearGradient id='lg'><stop stop-color='red'/><stop "
             "offset='1'/></linearGradient></defs>\n"
             " <g inkscape:groupmode='layer' inkscape:label='A' transform='translate(5 5)'>\n"
             "  <g id='g' transform='rotate(30) scale(1 2)' fill='red' stroke='green' stroke-width='2'>\n"
             "   <path d='M0 0h9v9zM1 1h1v1z'/><rect width='3' height='4' rx='1' style='fill:url(#lg)'/>&e;\n"
             "   <g style='fill:none;stroke-dasharray:1,2' fill-rule='evenodd'>\n    <path d='M0 0c1 2 3 4 5 "
             "6'/></g>\n"
             "  </g>\n  <text x='1' y='9'>text</text>\n </g>\n <path d='M0 0h9v9z'/>\n <image width='9' "
             "height='9'/>\n"
             " <g inkscape:groupmode='layer' inkscape:label='B' style='display:inline'>\n  <circle r='4'/>\n "
             "</g>\n"
             " <use href='#e'/>\n",
             kInk);
}

const std::string kFiles[] = {
    layersAndLooseArt(),
    file("<path d='M0 0h9v9z'/><g fill='none'><path d='M0 0h5'/><path d='M1 1h5v5z' "
         "ch:kind='compound'/></g><g/>",
         kHost),
    file("\n<style>.a path { fill: blue; stroke: red } rect { stroke: #123456; stroke-width: 3 }</style>\n"
         "<g id='One' class='a'>\n\t<path d='M0 0h9v9z'/>\n\t<rect width='5' height='5'/>\n</g>\n"
         "<g id='Two' transform='scale(2)'>\n\t<g class='a'><path d='M0 0h9v9z'/></g>\n</g>\n"),
    file("\n"),
};

class RandomEditor {
 public:
  RandomEditor(SvgDrawing& drawing, unsigned seed)
      : drawing_(drawing), document_(*drawing.document), random_(seed) {}

  void step() {
    selectAny();
    const std::vector<ArtId> selectedBefore = selected();
    const std::uint64_t before = document_.stateMark();
    document_.beginStep("step");
    change();
    selectAny();
    document_.endStep();
    const std::vector<ArtId> selectedAfter = selected();
    const std::uint64_t after = document_.stateMark();
    selectAny();
    if (below(8) == 0 && document_.undo() && document_.stateMark() == before) {
      EXPECT_EQ(selected(), selectedBefore);
    }
    const bool wasStep = after != before;
    if (below(8) == 0 && document_.redo() && wasStep && document_.stateMark() == after) {
      EXPECT_EQ(selected(), selectedAfter);
    }
  }

 private:
  unsigned below(unsigned count) { return static_cast<unsigned>(random_() % count); }
  double number() { return below(400) / 4.0 - 20; }
  LayerId anyLayer() {
    return document_.state().layers[below(static_cast<unsigned>(document_.state().layers.size()))];
  }

  // Any art, root groups among it.
  ArtId anyArt() {
    for (;;) {
      const ArtId id = 1 + below(static_cast<unsigned>(document_.artSlots()));
      if (document_.art(id)) return id;
    }
  }

  void selectAny() { document_.setSelected(anyArt(), below(3) != 0); }

  std::vector<ArtId> selected() {
    std::vector<ArtId> art = document_.selection();
    std::sort(art.begin(), art.end());
    for (const ArtId id : art) {
      const Art* object = document_.art(id);
      const bool isWhole = object != nullptr && object->type != kGroupArt &&
                           document_.art(object->parent)->type != kCompoundPathArt;
      EXPECT_TRUE(isWhole) << id;
    }
    return art;
  }

  AIPaintOrder anyOrder() {
    constexpr AIPaintOrder kOrders[] = {kPlaceAbove, kPlaceBelow, kPlaceInsideOnTop, kPlaceInsideOnBottom};
    return kOrders[below(4)];
  }

  std::shared_ptr<const PathGeometry> anyPath() {
    PathGeometry path;
    path.closed = below(2) == 0;
    for (unsigned count = 2 + below(4); count > 0; --count) {
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
    return std::make_shared<const PathGeometry>(path);
  }

  AIColor anyColour() {
    if (below(3) == 0) return rgb(below(256) / 255.0, below(5) / 4.0, 1);
    if (below(2) == 0) return cmyk(below(5) / 4.0, 0, 0.25, below(2));
    if (!document_.customColor(spot_)) addSwatch();
    return spot(document_, spot_, below(5) / 4.0);
  }

  void addSwatch() {
    AICustomColor definition{};
    definition.kind = kCustomLabColor;
    definition.c.lab = {50, -20, 60};
    definition.flag = kCustomSpotColor;
    spot_ = document_.addCustomColor("Spot", definition);
    document_.addSwatch(0, spot(document_, spot_, 0), "Spot");
  }

  std::shared_ptr<const AIPathStyle> anyStyle() {
    AIPathStyle style = *stroked(anyColour(), below(20) / 4.0, below(2) == 0);
    style.strokePaint = below(3) != 0;
    style.stroke.cap = static_cast<AILineCap>(below(3));
    if (below(3) == 0) style.stroke.dash = {2, 1, {2, 3}};
    style.fillPaint = below(2) == 0;
    style.fill.color = anyColour();
    style.evenodd = below(2) == 0;
    return std::make_shared<const AIPathStyle>(style);
  }

  void addArt() {
    constexpr AIArtType kTypes[] = {kPathArt, kGroupArt, kCompoundPathArt};
    const AIArtType type = kTypes[below(3)];
    const auto id = document_.newArt(type, anyOrder(), anyArt());
    if (!id) return;
    if (type == kPathArt) document_.setPath(*id, anyPath());
    for (unsigned count = type == kCompoundPathArt ? 1 + below(3) : 0; count > 0; --count) {
      document_.setPath(document_.newArt(kPathArt, kPlaceInsideOnTop, *id).value(), anyPath());
    }
    if (type != kGroupArt) document_.setStyle(*id, anyStyle());
  }

  void restyle(ArtId id) {
    if (document_.styleOf(id)) document_.setStyle(id, anyStyle());
  }

  void reshape(ArtId id) {
    if (document_.art(id)->path) document_.setPath(id, anyPath());
  }

  // A compound path without paths is nothing that a file could hold.
  void remove(ArtId id) {
    const Art& art = *document_.art(id);
    const Art* const parent = document_.art(art.parent);
    const bool lastPath =
        parent && parent->type == kCompoundPathArt && parent->firstChild == parent->lastChild;
    document_.deleteArt(lastPath ? art.parent : id);
  }

  void move(ArtId id) {
    const Art* const parent = document_.art(document_.art(id)->parent);
    const bool lastPath =
        parent && parent->type == kCompoundPathArt && parent->firstChild == parent->lastChild;
    if (!lastPath) document_.moveArt(id, anyOrder(), anyArt());
  }

  void rename(ArtId id) {
    if (document_.art(id)->parent != 0) document_.setName(id, "name " + std::to_string(below(9)));
  }

  void changeLayer() {
    Layer& layer = document_.editLayer(anyLayer());
    layer.visible = below(2) == 0;
    layer.editable = below(2) == 0;
    if (below(2) == 0) layer.step = below(2) == 0 ? "Legend" : "";
    layer.title = below(4) == 0 ? "" : "title " + std::to_string(below(9));
  }

  void reorderLayers() {
    auto& layers = document_.editState().layers;
    std::swap(layers[below(static_cast<unsigned>(layers.size()))], layers.front());
  }

  void change() {
    switch (below(11)) {
      case 0:
        return move(anyArt());
      case 1:
        return remove(anyArt());
      case 2:
        return rename(anyArt());
      case 3:
        return restyle(anyArt());
      case 4:
        return reshape(anyArt());
      case 5:
        addLayer(drawing_, "new", below(2) == 0 ? kPlaceAbove : kPlaceBelow, anyLayer());
        return;
      case 6:
        if (document_.state().layers.size() > 1 && below(2) == 0) document_.deleteLayer(anyLayer());
        return;
      case 7:
        return below(2) == 0 ? changeLayer() : reorderLayers();
      default:
        return addArt();
    }
  }

  SvgDrawing& drawing_;
  Document& document_;
  std::mt19937 random_;
  CustomColorId spot_ = 0;
};

TEST(SvgWriterAtRandom, KeepsWhateverWasDone) {
  for (unsigned seed = 0; seed < 400 && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    SvgDrawing drawing = readDrawing(kFiles[seed % 4]);
    ASSERT_NE(drawing.document, nullptr);
    RandomEditor editor(drawing, seed);
    for (unsigned steps = 1 + seed % 20; steps > 0; --steps) editor.step();
    saved(drawing);
    while (drawing.document->undo()) continue;
    EXPECT_EQ(writeSvg(drawing), kFiles[seed % 4]) << "undone changes leave a trace";
  }
}

}  // namespace
}  // namespace host
