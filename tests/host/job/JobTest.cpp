// What a document is as a job: its line types' steps, and the summary of what a table has to do.
#include "JobSummary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <nlohmann/json.hpp>

#include "CurveLength.h"
#include "MarksProduct.h"
#include "ProcessingSteps.h"
#include "StepWords.h"

namespace host {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::Pair;

constexpr double kPi = 3.14159265358979323846;

PathGeometry straight(const std::vector<AIRealPoint>& points, bool closed) {
  PathGeometry path;
  path.closed = closed;
  for (const AIRealPoint& point : points) path.segments.push_back({point, point, point, 1});
  return path;
}

PathGeometry box(double side) {
  return straight({{0, 0}, {side, 0}, {side, side}, {0, side}}, true);
}

PathGeometry curve(AIRealPoint p0, AIRealPoint p1, AIRealPoint p2, AIRealPoint p3) {
  PathGeometry path;
  path.segments = {{p0, p0, p1, 0}, {p3, p2, p3, 0}};
  return path;
}

// The usual four cubics, which are 0.02 % off a circle at most.
PathGeometry circle(double radius) {
  const double handle = radius * 0.5522847498307936;
  PathGeometry path;
  path.closed = true;
  path.segments = {{{radius, 0}, {radius, -handle}, {radius, handle}, 1},
                   {{0, radius}, {handle, radius}, {-handle, radius}, 1},
                   {{-radius, 0}, {-radius, handle}, {-radius, -handle}, 1},
                   {{0, -radius}, {-handle, -radius}, {handle, -radius}, 1}};
  return path;
}

TEST(CurveLength, OfShapesWhoseLengthIsKnown) {
  struct Row {
    const char* name;
    PathGeometry path;
    double length;
    double tolerance;  // as a part of the length
  };
  const Row table[] = {
      {"open polyline", straight({{0, 0}, {3, 4}, {3, 10}}, false), 11, 1e-12},
      {"closed to its start", box(10), 40, 1e-12},
      {"a lone anchor", straight({{5, 5}}, false), 0, 1e-12},
      {"no anchor", PathGeometry(), 0, 1e-12},
      {"circle", circle(100), 2 * kPi * 100, 2.2e-4},
      // y = x * x from 0 to 1, of degree three
      {"parabola", curve({0, 0}, {1.0 / 3, 0}, {2.0 / 3, 1.0 / 3}, {1, 1}),
       std::sqrt(5) / 2 + std::asinh(2) / 4, 1e-4},
      // (t * t, t * t * t) from -1 to 1: a semicubical parabola with its cusp in the middle
      {"cusp", curve({1, -1}, {-1.0 / 3, 1}, {-1.0 / 3, -1}, {1, 1}), 2 * (13 * std::sqrt(13) - 8) / 27,
       1e-4},
      // there and back on a line
      {"folded", curve({0, 0}, {3, 0}, {-3, 0}, {0, 0}), 4 * std::sqrt(3) / 2, 1e-4},
      {"large and far", straight({{1e8, 1e8}, {1e8 + 5e7, 1e8}}, false), 5e7, 1e-9},
  };
  for (const Row& row : table) {
    EXPECT_NEAR(lengthOf(row.path), row.length, row.length * row.tolerance) << row.name;
  }
}

class JobTest : public testing::Test {
 protected:
  JobTest() { document.editState().artboards = {{{0, 720, 1440, 0}, "Front"}, {{2000, 72, 2072, 0}, ""}}; }

  LayerId layer(const std::string& title) {
    const LayerId id = document.insertLayer(0, kPlaceBelowAll);
    document.editLayer(id).title = title;
    return id;
  }
  CustomColorId colour(const std::string& name, bool isSpot = true) {
    AICustomColor definition{};
    definition.kind = kCustomFourColor;
    definition.flag = isSpot ? kCustomSpotColor : 0;
    return document.addCustomColor(name, definition);
  }
  LayerId lineType(const std::string& name) {
    colour(name);
    return layer(name);
  }
  ArtId root(LayerId id) const { return document.layer(id)->root; }
  std::shared_ptr<const AIPathStyle> stroked(const std::string& name) const {
    AIPathStyle style{};
    style.strokePaint = 1;
    style.stroke.width = 1;
    style.stroke.color.kind = kCustomColor;
    style.stroke.color.c.c.color = makeHandle<AICustomColorHandle>(HandleKind::CustomColor, document.serial(),
                                                                   document.customColorByName(name));
    return std::make_shared<const AIPathStyle>(style);
  }
  ArtId path(ArtId parent, const PathGeometry& outline, const std::string& paint) {
    const ArtId id = *document.newArt(kPathArt, kPlaceInsideOnTop, parent);
    document.setPath(id, std::make_shared<const PathGeometry>(outline));
    if (!paint.empty()) document.setStyle(id, stroked(paint));
    return id;
  }
  void hide(ArtId id) {
    Art art = *document.art(id);
    art.hidden = true;
    document.initialiseArt(id, art);
  }
  json jsonOfSummary() const { return json::parse(summaryAsJson(summaryOf(document), "a \"b\".svg")); }

  Document document;
};

TEST_F(JobTest, TheSummaryCountsWhatATableWillMeet) {
  document.setScale(10);
  const LayerId cut = lineType("Cut \"A\"\n");
  const LayerId unused = lineType("Drill");
  colour("Only an ink");
  const LayerId hidden = layer("hidden");
  document.editLayer(hidden).visible = false;
  path(root(cut), box(7.2), "Cut \"A\"\n");
  path(root(unused), box(7.2), "Cut \"A\"\n");  // wherever it lies
  path(root(cut), box(7.2), "Only an ink");
  path(root(hidden), box(7.2), "Cut \"A\"\n");
  hide(path(root(cut), box(7.2), "Cut \"A\"\n"));
  const ArtId group = *document.newArt(kGroupArt, kPlaceInsideOnTop, root(cut));
  const ArtId compound = *document.newArt(kCompoundPathArt, kPlaceInsideOnTop, group);
  path(compound, box(3.6), "");
  path(compound, box(1.8), "");
  document.setStyle(compound, stroked("Cut \"A\"\n"));
  const LayerId marks = layer(kMarksProduct.layerTitle);
  document.setName(path(root(marks), box(7.2), ""), kMarksProduct.artName);
  document.setName(path(root(marks), box(14.4), ""), kMarksProduct.artName);
  hide(path(root(marks), box(1), ""));
  path(root(marks), box(1), "");

  const json job = jsonOfSummary();
  EXPECT_EQ(job["drawing"], "a \"b\".svg");
  EXPECT_EQ(job["unit"], "mm");
  EXPECT_EQ(job["artboards"][0]["name"], "Front");
  EXPECT_NEAR(job["artboards"][0]["width"].get<double>(), 5080, 1e-9);
  EXPECT_NEAR(job["artboards"][1]["height"].get<double>(), 254, 1e-9);
  ASSERT_EQ(job["line_types"].size(), 2U);
  EXPECT_EQ(job["line_types"][0]["name"], "Cut \"A\"\n");
  EXPECT_EQ(job["line_types"][0]["step"], nullptr);
  EXPECT_EQ(job["line_types"][0]["paths"], 4);
  EXPECT_NEAR(job["line_types"][0]["length"].get<double>(), 4 * (25.4 + 25.4 + 12.7 + 6.35), 1e-9);
  EXPECT_EQ(job["line_types"][1]["step"], "Structural/Drilling");
  EXPECT_EQ(job["line_types"][1]["paths"], 0);
  ASSERT_EQ(job["marks"].size(), 2U);
  EXPECT_NEAR(job["marks"][1]["x"].get<double>(), 25.4, 1e-9);
  EXPECT_NEAR(job["marks"][0]["y"].get<double>(), 12.7, 1e-9);
  EXPECT_EQ(summaryAsText(summaryOf(document), "sheet\n.svg"),
            "Job summary: sheet .svg\n\n"
            "Artboards\n  1. Front: 5080 x 2540 mm\n  2. 254 x 254 mm\n\n"
            "Line types\n  Cut \"A\" : 4 paths, 279.4 mm\n  Drill (Structural/Drilling): no paths\n\n"
            "Register marks\n  from the lower left corner of the first artboard, right and up:\n"
            "  1. 12.7, 12.7 mm\n  2. 25.4, 25.4 mm\n");
}

TEST_F(JobTest, StepsAreTheChosenOnesOrTheUsualAndNeverTheMarks) {
  const LayerId marks = lineType(kMarksProduct.layerTitle);
  document.editLayer(marks).step = "Structural/Cutting";
  const LayerId cut = lineType("THROUGH cut");
  const LayerId second = layer("THROUGH cut");
  lineType("Mine");
  colour("Crease", false);
  layer("Crease");
  document.startRecording();
  EXPECT_THAT(stepsOf(document), ElementsAre(Pair("THROUGH cut", "Structural/Cutting")));

  EXPECT_FALSE(chooseSteps(document, {{"THROUGH cut", "Structural/Cutting"}, {"Mine", ""}, {"x", "White"}}));
  EXPECT_EQ(document.layer(cut)->step, std::nullopt) << "what holds anyway needs no note";
  EXPECT_TRUE(chooseSteps(document, {{"THROUGH cut", ""}, {"Mine", "White"}, {"Regmark", "White"}}));
  EXPECT_THAT(stepsOf(document), ElementsAre(Pair("Mine", "White")));
  EXPECT_EQ(document.layer(second)->step, std::nullopt) << "the topmost of a title speaks for it";
  EXPECT_EQ(document.layer(marks)->step, "Structural/Cutting");
}

TEST(ProcessingSteps, AreMeantByMuch) {
  const std::vector<std::pair<const char*, std::optional<std::string>>> table{
      {"Structural/Cutting", "Structural/Cutting"},
      {"cutting", "Structural/Cutting"},
      {"POSITIONS/barcode", "Positions/Barcode"},
      {"White", "White"},
      {"None", ""},
      {"", std::nullopt},
      {"Structural", std::nullopt},
      {"Positions/Cutting", std::nullopt},
      {"Cut", std::nullopt}};
  for (const auto& [text, step] : table) EXPECT_EQ(stepMeantBy(text), step) << text;
  EXPECT_THAT(stepsLike("Foldin"), ElementsAre("Structural/Folding"));
  EXPECT_THAT(stepsLike("crees"), testing::Contains("Structural/Creasing"));
  EXPECT_EQ(stepsLike("saw").size(), processingSteps().size());
}

// A type that comes to ship has to be thought about here.
TEST(ProcessingSteps, TheUsualOnesAreDecidedForAllTypesThatShip) {
  std::ifstream file(std::string(CORVANE_SOURCE) + "/plugin/bundle/CurveLayerDefinition.json");
  const json definitions = json::parse(file);
  std::vector<std::string> without;
  for (const auto& group : definitions["Groups"].items()) {
    for (const json& type : group.value()) {
      const std::string step = usualStepOf(type["name"]);
      EXPECT_TRUE(step.empty() || isProcessingStep(step)) << step;
      if (step.empty()) without.push_back(type["name"]);
    }
  }
  EXPECT_THAT(without, testing::UnorderedElementsAre("Score", "V-Cut", "Bevel Cut", "Rout", "Engrave", "Plot",
                                                     "Tear Strip", "Weeding Line", "Peel Tab", "Banner Hem",
                                                     "Eyelet", "Pocket", "Chamfer", "Fold Groove", "Slit",
                                                     "Foam Insert", "Notch", "Drill Mark", "Grain Line",
                                                     "Seam Line", "Dart", "Quilting Line"));
}

}  // namespace
}  // namespace host
