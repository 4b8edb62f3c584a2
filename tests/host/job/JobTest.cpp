// What a document is as a job: its line types' steps, and the summary of what a table has to do.
#include "JobSummary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <nlohmann/json.hpp>

#include "CurveLength.h"
#include "MarksProduct.h"
#include "ProcessingSteps.h"
#include "StepWords.h"
#include "SvgDrawing.h"

namespace host {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::Pair;

PathGeometry straight(const std::vector<AIRealPoint>& points, bool closed) {
  PathGeometry path;
  path.closed = closed;
  for (const AIRealPoint& point : points) path.segments.push_back({point, point, point, 1});
  return path;
}

PathGeometry curve(AIRealPoint p0, AIRealPoint p1, AIRealPoint p2, AIRealPoint p3) {
  PathGeometry path;
  path.segments = {{p0, p0, p1, 0}, {p3, p2, p3, 0}};
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
      {"a lone anchor", straight({{5, 5}}, false), 0, 1e-12},
      // y = x * x from 0 to 1, of degree three
      {"parabola", curve({0, 0}, {1.0 / 3, 0}, {2.0 / 3, 1.0 / 3}, {1, 1}),
       std::sqrt(5) / 2 + std::asinh(2) / 4, 1e-4},
      // (t * t, t * t * t) from -1 to 1: a semicubical parabola with its cusp in the middle
      {"cusp", curve({1, -1}, {-1.0 / 3, 1}, {-1.0 / 3, -1}, {1, 1}), 2 * (13 * std::sqrt(13) - 8) / 27,
       1e-4},
      // there and back on a line
      {"folded", curve({0, 0}, {3, 0}, {-3, 0}, {0, 0}), 4 * std::sqrt(3) / 2, 1e-4},
  };
  for (const Row& row : table) {
    EXPECT_NEAR(lengthOf(row.path), row.length, row.length * row.tolerance) << row.name;
  }
}

std::string named(const std::string& name, const std::string& more = {}) {
  return "<g inkscape:groupmode='layer' inkscape:label='" + name + "' " + more + ">";
}
std::string colour(const std::string& name, bool isSpot = true) {
  return "<h:color name='" + name + "' definition='cmyk(0 0 0 1)' spot='" + (isSpot ? "true'/>" : "false'/>");
}
// A square of so many millimetres at the lower left.
std::string square(double side, const std::string& more) {
  const std::string length = std::to_string(side);
  return "<path d='M0 2540h" + length + "v-" + length + "h-" + length + "z' " + more + "/>";
}
std::string painted(const std::string& name) {
  return "fill='none' stroke='#000000' h:stroke=\"custom('" + name + "' 0)\"";
}

// In millimetres, at a tenth of its size. Layers from the bottom.
std::shared_ptr<Document> drawn(const std::string& colours, const std::string& layers) {
  auto read = readSvg(
      "<svg xmlns='http://www.w3.org/2000/svg' xmlns:h='urn:x-corvane-host:drawing:1' h:scale='10'"
      " xmlns:inkscape='http://www.inkscape.org/namespaces/inkscape'"
      " xmlns:sodipodi='http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd'"
      " width='5080mm' height='2540mm' viewBox='0 0 5080 2540'><sodipodi:namedview>"
      "<inkscape:page x='0' y='0' width='5080' height='2540' inkscape:label='Front'/>"
      "<inkscape:page x='6000' y='0' width='254' height='254'/></sodipodi:namedview>"
      "<metadata><h:swatches>" +
          colours + "</h:swatches></metadata>" + layers + "</svg>",
      nullptr);
  return std::get<SvgDrawing>(read).document;
}

TEST(JobSummary, CountsWhatATableWillMeet) {
  const std::string cut = painted("Cut A");
  const auto document =
      drawn(colour("Cut A") + colour("Drill") + colour("Only an ink"),
            named(kMarksProduct.layerTitle) + square(25.4, "inkscape:label='brevia Regmark'") +
                square(50.8, "inkscape:label='brevia Regmark'") +
                square(9, "inkscape:label='brevia Regmark' style='display:none'") + square(9, "") + "</g>" +
                named("hidden", "style='display:none'") + square(25.4, cut) + "</g>" + named("Drill") +
                square(25.4, cut) + "</g>" + named("Cut A") + square(25.4, cut) +
                square(25.4, painted("Only an ink")) + square(25.4, cut + " style='display:none'") +
                "<g><path d='M0 0h12.7v12.7h-12.7zM0 0h6.35v6.35h-6.35z' " + cut + "/></g></g>");
  const JobSummary summary = summaryOf(*document);
  const json job = json::parse(summaryAsJson(summary, "a \"b\".svg"));
  EXPECT_EQ(job["drawing"], "a \"b\".svg");
  EXPECT_EQ(job["unit"], "mm");
  EXPECT_EQ(job["artboards"][0]["name"], "Front");
  EXPECT_NEAR(job["artboards"][0]["width"].get<double>(), 5080, 1e-9);
  EXPECT_NEAR(job["artboards"][1]["height"].get<double>(), 254, 1e-9);
  ASSERT_EQ(job["line_types"].size(), 2U);
  EXPECT_EQ(job["line_types"][0]["name"], "Cut A");
  EXPECT_EQ(job["line_types"][0]["step"], nullptr);
  EXPECT_EQ(job["line_types"][0]["paths"], 4);
  EXPECT_NEAR(job["line_types"][0]["length"].get<double>(), 4 * (25.4 + 25.4 + 12.7 + 6.35), 1e-9);
  EXPECT_EQ(job["line_types"][1]["step"], "Structural/Drilling");
  EXPECT_EQ(job["line_types"][1]["paths"], 0);
  ASSERT_EQ(job["marks"].size(), 2U);
  EXPECT_NEAR(job["marks"][1]["x"].get<double>(), 25.4, 1e-9);
  EXPECT_NEAR(job["marks"][0]["y"].get<double>(), 12.7, 1e-9);
  EXPECT_EQ(summaryAsText(summary, "sheet\n.svg"),
            "Job summary: sheet .svg\n\n"
            "Artboards\n  1. Front: 5080 x 2540 mm\n  2. 254 x 254 mm\n\n"
            "Line types\n  Cut A: 4 paths, 279.4 mm\n  Drill (Structural/Drilling): no paths\n\n"
            "Register marks\n  from the lower left corner of the first artboard, right and up:\n"
            "  1. 12.7, 12.7 mm\n  2. 25.4, 25.4 mm\n");
}

TEST(ProcessingSteps, AreTheChosenOnesOrTheUsualAndNeverTheMarks) {
  const std::string marks = kMarksProduct.layerTitle, end = "</g>";
  const auto shared =
      drawn(colour(marks) + colour("THROUGH cut") + colour("Mine") + colour("Crease", false),
            named("Crease") + end + named("Mine") + end + named("THROUGH cut") + end + named("THROUGH cut") +
                end + named(marks, "h:step='Structural/Cutting'") + end);
  Document& document = *shared;
  const auto stepOf = [&](std::size_t fromTop) {
    return document.layer(document.state().layers[fromTop])->step;
  };
  EXPECT_THAT(stepsOf(document), ElementsAre(Pair("THROUGH cut", "Structural/Cutting")));

  EXPECT_FALSE(chooseSteps(document, {{"THROUGH cut", "Structural/Cutting"}, {"Mine", ""}, {"x", "White"}}));
  EXPECT_EQ(stepOf(1), std::nullopt) << "what holds anyway needs no note";
  EXPECT_TRUE(chooseSteps(document, {{"THROUGH cut", ""}, {"Mine", "White"}, {"Regmark", "White"}}));
  EXPECT_THAT(stepsOf(document), ElementsAre(Pair("Mine", "White")));
  EXPECT_EQ(stepOf(2), std::nullopt) << "the topmost of a title speaks for it";
  EXPECT_EQ(stepOf(0), "Structural/Cutting");
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

}  // namespace
}  // namespace host
