// Layers of line types and the reserved ones above them, art that is recognised, and the selection sorted.
#include "LineTypeLayers.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>

#include "HeldSuites.h"
#include "LineType.h"
#include "LineTypeOfArt.h"
#include "LineTypeSwatch.h"
#include "ReservedLayers.h"
#include "SelectedLineTypes.h"
#include "SelectionScan.h"

namespace Vandrell::Corvane {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;
using Titles = std::vector<std::string>;

class LineTypeLayers : public testing::Test {
 protected:
  LineTypeLayers() {
    document.editState().artboards = {{{0, 300, 400, 0}, "1", 0}};
    host.documents().open(shared, "drawing");
  }

  // The first on top.
  void addLayers(const std::vector<std::string>& titles) {
    for (const std::string& title : titles) {
      document.editLayer(document.insertLayer(0, kPlaceBelowAll)).title = title;
    }
  }
  std::vector<std::string> titles() const {
    std::vector<std::string> found;
    for (const host::LayerId id : document.state().layers) found.push_back(document.layer(id)->title);
    return found;
  }
  host::ArtId root(std::size_t layer) const { return document.layer(document.state().layers[layer])->root; }
  host::ArtId add(AIArtType type, host::ArtId group) {
    return document.newArt(type, kPlaceInsideOnTop, group).value();
  }
  AIArtHandle handle(host::ArtId id) const {
    return host::makeHandle<AIArtHandle>(host::HandleKind::Art, document.serial(), id);
  }
  void select(const std::vector<host::ArtId>& art) {
    for (const host::ArtId id : art) document.setSelected(id, true);
  }

  AICustomColorHandle color(const std::string& name, AICustomColorTag kind = kCustomThreeColor,
                            AICustomColorFlags flag = kCustomSpotColor) {
    host::CustomColorId id = document.customColorByName(name);
    if (id == 0) id = document.addCustomColor(name, {kind, {}, flag});
    return host::makeHandle<AICustomColorHandle>(host::HandleKind::CustomColor, document.serial(), id);
  }
  // As the line type of this colour has it.
  AIPathStyle strokeOf(AICustomColorHandle custom) const {
    AIPathStyle style{};
    AIColor paint{};
    paint.kind = kCustomColor;
    paint.c.c = {custom, 0};
    ApplyLineTypeStroke(paint, style);
    return style;
  }
  void paint(host::ArtId art, const AIPathStyle& style) {
    document.setStyle(art, std::make_shared<const AIPathStyle>(style));
  }
  static LineType spot(const std::string& name) {
    LineType type;
    type.name = ai::UnicodeString(name);
    type.isCustomDataModel = true;
    type.customColor = AICustomColor();
    type.customColor.kind = kCustomThreeColor;
    type.customColor.c.rgb = {1, 0, 0};
    type.customColor.flag = kCustomSpotColor;
    return type;
  }

  host::Host host;
  const std::shared_ptr<host::Document> shared = std::make_shared<host::Document>();
  host::Document& document = *shared;

 private:
  const HeldSuites suites{host,
                          {"AI Art Suite", "AI Custom Color Suite", "AI Document Suite", "AI Layer Suite",
                           "AI Matching Art Suite", "AI Path Style Suite", "AI Swatch List Suite",
                           "AI Swatch Group Suite", "AI Unicode String Suite"}};
};

TEST_F(LineTypeLayers, NewOnesStandUnderTheReservedBlockInTheirOrder) {
  struct Row {
    Titles before, names, after;
  };
  const Row rows[] = {
      {{"Lumenfold", "Layer 1"}, {"A", "B"}, {"Lumenfold", "A", "B", "Layer 1"}},
      {{"Layer 1", "Ostrel Marks", "Art"}, {"A"}, {"Ostrel Marks", "A", "Layer 1", "Art"}},
      {{"X", "Lumenfold", "Ostrel Marks"}, {"A"}, {"Ostrel Marks", "Lumenfold", "A", "X"}},
      {{"lumenfold", "Ostrel Marks "}, {"A"}, {"A", "lumenfold", "Ostrel Marks "}},
      {{"X", "A", "Lumenfold"}, {"A"}, {"X", "A", "Lumenfold"}},
  };
  for (const Row& row : rows) {
    const auto drawing = std::make_shared<host::Document>();
    host.documents().open(drawing, "row");
    for (const std::string& title : row.before) {
      drawing->editLayer(drawing->insertLayer(0, kPlaceBelowAll)).title = title;
    }
    EXPECT_EQ(CreateLineTypeLayers(row.names), kNoErr);
    Titles after;
    for (const host::LayerId id : drawing->state().layers) after.push_back(drawing->layer(id)->title);
    EXPECT_EQ(after, row.after);
    host.documents().close(*drawing);
  }
}

TEST_F(LineTypeLayers, AReservedLayerMovesWithAllThatItIs) {
  addLayers({"Layer 1", "Lumenfold"});
  const host::ArtId group = add(kGroupArt, root(1));
  const host::ArtId lower = add(kPathArt, group);
  const host::ArtId compound = add(kCompoundPathArt, group);
  add(kPathArt, compound);
  document.setName(lower, "lower");
  paint(compound, strokeOf(color("Cut")));
  select({lower});
  document.editLayer(document.state().layers[1]).editable = false;
  EXPECT_EQ(MoveReservedLayersToTop(), kNoErr);
  ASSERT_EQ(titles(), (Titles{"Lumenfold", "Layer 1"}));
  EXPECT_FALSE(document.layer(document.state().layers[0])->editable);
  const host::Art& moved = *document.art(document.art(root(0))->firstChild);
  const host::Art& upper = *document.art(moved.firstChild);
  EXPECT_EQ(upper.type, kCompoundPathArt);
  EXPECT_EQ(document.art(upper.firstChild)->type, kPathArt);
  EXPECT_EQ(document.art(moved.lastChild)->name, "lower");
  std::string name;
  EXPECT_TRUE(LineTypeNameOfArt(handle(moved.firstChild), name));
  EXPECT_EQ(name, "Cut");
  EXPECT_THAT(document.selection(), ElementsAre(moved.lastChild));
  EXPECT_EQ(document.art(lower), nullptr);
}

TEST_F(LineTypeLayers, ArtIsRecognisedByItsStrokeAlone) {
  addLayers({"Layer 1"});
  const host::ArtId path = add(kPathArt, root(0));
  struct Row {
    const char* what;
    std::function<void(AIPathStyle&)> change;
    bool is;
  };
  const Row rows[] = {
      {"as it is", [](AIPathStyle&) {}, true},
      {"tint", [](AIPathStyle& s) { s.stroke.color.c.c.tint = 0.5; }, true},
      {"fill", [](AIPathStyle& s) { s.fillPaint = 1; }, false},
      {"no stroke", [](AIPathStyle& s) { s.strokePaint = 0; }, false},
      {"no overprint", [](AIPathStyle& s) { s.stroke.overprint = 0; }, false},
      {"width", [](AIPathStyle& s) { s.stroke.width = 2; }, false},
      {"process paint", [](AIPathStyle& s) { s.stroke.color.kind = kThreeColor; }, false},
      {"CMYK spot", [&](AIPathStyle& s) { s.stroke.color.c.c.color = color("C", kCustomFourColor); }, false},
      {"RGB process", [&](AIPathStyle& s) { s.stroke.color.c.c.color = color("P", kCustomThreeColor, 0); },
       false},
      {"no name", [&](AIPathStyle& s) { s.stroke.color.c.c.color = color(""); }, false},
  };
  for (const double scale : {1.0, 10.0}) {
    document.setScale(scale);
    for (const Row& row : rows) {
      AIPathStyle style = strokeOf(color("Kiss Cut"));
      EXPECT_EQ(style.stroke.width, 1.0 / scale);
      row.change(style);
      paint(path, style);
      std::string name = "none";
      EXPECT_EQ(LineTypeNameOfArt(handle(path), name), row.is) << row.what;
      EXPECT_EQ(name, row.is ? "Kiss Cut" : "none") << row.what;
    }
  }
}

TEST_F(LineTypeLayers, TheSelectionIsSorted) {
  addLayers({"Lumenfold", "Layer 1", "Layer 2"});
  const host::ArtId reserved = add(kGroupArt, root(0));
  const host::ArtId inReserved = add(kPathArt, reserved);
  const host::ArtId alsoInReserved = add(kPathArt, reserved);
  const host::ArtId group = add(kGroupArt, root(1));
  const host::ArtId text = add(kTextFrameArt, group);
  const host::ArtId path = add(kPathArt, group);
  const host::ArtId compound = add(kCompoundPathArt, root(2));
  add(kPathArt, compound);
  const host::ArtId unselected = add(kPathArt, root(2));
  select({inReserved, alsoInReserved, text, path, compound});
  SelectionScan scan;
  ScanSelection(scan);
  EXPECT_THAT(scan.supported, ElementsAre(handle(path), handle(compound)));
  EXPECT_THAT(scan.unsupported, UnorderedElementsAre(handle(reserved), handle(text)));

  for (const host::ArtId art : {path, compound, unselected}) paint(art, strokeOf(color("Cut")));
  paint(compound, strokeOf(color("Crease")));
  std::set<std::string> names{"of old"};
  SelectedLineTypes(names);
  EXPECT_THAT(names, ElementsAre("Crease", "Cut"));
}

TEST_F(LineTypeLayers, ASwatchOfTheNameIsMadeOnceInItsGroupAndWinsOverDefinitions) {
  LineType type = spot("Cut");
  const AISwatchRef swatch = EnsureLineTypeSwatch(type, "Cut Line Types");
  ASSERT_NE(swatch, nullptr);
  EXPECT_FALSE(type.isCustomDataModel);
  EXPECT_EQ(type.color.kind, kCustomColor);
  EXPECT_EQ(type.color.c.c.tint, 0);
  EXPECT_EQ(document.customColor(document.customColorByName("Cut"))->definition.c.rgb.red, 1);
  LineType other;
  other.name = ai::UnicodeString("Cut");
  other.color.kind = kThreeColor;
  EXPECT_EQ(EnsureLineTypeSwatch(other, "no group is made for it"), swatch);
  EXPECT_EQ(other.color.kind, kCustomColor);
  EXPECT_EQ(other.color.c.c.color, type.color.c.c.color);
  // A process swatch of the name does not count.
  other.name = ai::UnicodeString("Process");
  other.color.kind = kThreeColor;
  EXPECT_NE(EnsureLineTypeSwatch(other, "Cut Line Types"), nullptr);
  LineType custom = spot("Process");
  EXPECT_NE(EnsureLineTypeSwatch(custom, "Cut Line Types"), nullptr);
  EXPECT_EQ(document.state().swatches.size(), 3U);
  ASSERT_EQ(document.state().swatchGroups.size(), 1U);
  EXPECT_EQ(document.swatchGroup(document.state().swatchGroups[0])->name, "Cut Line Types");
}

}  // namespace
}  // namespace Vandrell::Corvane
