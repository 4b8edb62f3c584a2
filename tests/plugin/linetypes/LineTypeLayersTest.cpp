// Layers of line types and the reserved ones above them, art that is recognised, and the selection sorted.
#include "LineTypeLayers.h"

#include <gmock/gmock.h>

#include <functional>

#include "LineTypeDocument.h"
#include "LineTypeSwatch.h"
#include "ReservedLayers.h"
#include "SelectedLineTypes.h"
#include "SelectionScan.h"

namespace Vandrell::Corvane {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;
using Titles = std::vector<std::string>;

class LineTypeLayers : public LineTypeDocument {};

TEST_F(LineTypeLayers, NewOnesStandUnderTheReservedBlockInTheirOrder) {
  struct Row {
    Titles before, names, after;
  };
  const Row rows[] = {
      {{"Layer 1"}, {"B", "A"}, {"B", "A", "Layer 1"}},
      {{"Lumenfold", "Layer 1"}, {"A", "B"}, {"Lumenfold", "A", "B", "Layer 1"}},
      {{"Layer 1", "Ostrel Marks", "Art"}, {"A"}, {"Ostrel Marks", "A", "Layer 1", "Art"}},
      {{"X", "Lumenfold", "Ostrel Marks"}, {"A"}, {"Ostrel Marks", "Lumenfold", "A", "X"}},
      {{"lumenfold", "Ostrel Marks "}, {"A"}, {"A", "lumenfold", "Ostrel Marks "}},
      {{"X", "A", "Lumenfold"}, {"A"}, {"X", "A", "Lumenfold"}},
      {{"X"}, {"A", "Ä|\"", "A"}, {"A", "Ä|\"", "A", "X"}},
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
      {"dashes", [](AIPathStyle& s) { s.stroke.dash.length = 2; }, true},
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
  const host::ArtId part = add(kPathArt, compound);
  const host::ArtId unselected = add(kPathArt, root(2));
  select({inReserved, alsoInReserved, text, path, compound});
  SelectionScan scan;
  ScanSelection(scan);
  EXPECT_THAT(scan.supported, ElementsAre(handle(path), handle(compound)));
  EXPECT_THAT(scan.unsupported, UnorderedElementsAre(handle(reserved), handle(text)));
  EXPECT_TRUE(HasSelectedArt());

  for (const host::ArtId art : {path, compound, unselected}) paint(art, strokeOf(color("Cut")));
  paint(compound, strokeOf(color("Crease")));
  std::set<std::string> names{"of old"};
  SelectedLineTypes(names);
  EXPECT_THAT(names, ElementsAre("Crease", "Cut"));

  for (const char* entry : {"AI Layer Suite:CountLayers", "AI Layer Suite:LayerHasSelectedArt",
                            "AI Art Suite:GetArtType", "AI Art Suite:GetLayerOfArt"}) {
    ASSERT_EQ(host.refusal().add(entry), "");
    SelectionScan refused;
    ScanSelection(refused);
    EXPECT_TRUE(refused.supported.empty()) << entry;
    host.refusal().clear();
  }
  for (const host::ArtId art : document.selection()) document.setSelected(art, false);
  EXPECT_FALSE(HasSelectedArt());
  EXPECT_NE(part, 0U);
}

TEST_F(LineTypeLayers, AProcessSwatchOfTheNameDoesNotCountAndIsMadeOnce) {
  addLayers({"Layer 1"});
  LineType process;
  process.name = ai::UnicodeString("Cut");
  process.color.kind = kThreeColor;
  for (int i = 0; i < 2; ++i) EXPECT_NE(EnsureLineTypeSwatch(process, "Cut Line Types"), nullptr);
  EXPECT_EQ(document.state().swatches.size(), 1U);
  LineType custom = spot("Cut");
  EXPECT_NE(EnsureLineTypeSwatch(custom, "Cut Line Types"), nullptr);
  EXPECT_EQ(document.state().swatches.size(), 2U);
  EXPECT_NE(document.customColorByName("Cut"), 0U);
}

}  // namespace
}  // namespace Vandrell::Corvane
