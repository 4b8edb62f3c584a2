// What a document is as a job: its line types' steps, and the summary of what a table has to do.
#include "JobSummary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <nlohmann/json.hpp>
#include <tuple>

#include "CurveLength.h"
#include "DrawingMaker.h"
#include "MarksProduct.h"
#include "ProcessingSteps.h"
#include "StepWords.h"
#include "SvgWords.h"

namespace host {
namespace {

using nlohmann::json;
using testing::curved;
using ::testing::ElementsAre;
using ::testing::Pair;
using testing::straight;

TEST(CurveLength, OfShapesWhoseLengthIsKnown) {
  // The tolerance is a part of the length.
  const std::tuple<const char*, PathGeometry, double, double> table[] = {
      {"open polyline", straight({{0, 0}, {3, 4}, {3, 10}}, false), 11, 1e-12},
      {"a lone anchor", straight({{5, 5}}, false), 0, 1e-12},
      // y = x * x from 0 to 1, of degree three
      {"parabola", curved({{0, 0}, {1.0 / 3, 0}, {2.0 / 3, 1.0 / 3}, {1, 1}}, false),
       std::sqrt(5) / 2 + std::asinh(2) / 4, 1e-4},
      // (t * t, t * t * t) from -1 to 1: a semicubical parabola with its cusp in the middle
      {"cusp", curved({{1, -1}, {-1.0 / 3, 1}, {-1.0 / 3, -1}, {1, 1}}, false),
       2 * (13 * std::sqrt(13) - 8) / 27, 1e-4},
      // there and back on a line
      {"folded", curved({{0, 0}, {3, 0}, {-3, 0}, {0, 0}}, false), 4 * std::sqrt(3) / 2, 1e-4},
  };
  for (const auto& [name, path, length, tolerance] : table) {
    EXPECT_NEAR(lengthOf(path), length, length * tolerance) << name;
  }
}

// A square of so many millimetres at the lower left.
std::string square(double side, const std::string& more) {
  const std::string length = std::to_string(side);
  return "<path d='M0 2540h" + length + "v-" + length + "h-" + length + "z' " + more + "/>";
}
std::string painted(const std::string& name) {
  return "fill='none'" + inked("stroke", name, "#000000");
}

// In millimetres, at a tenth of its size. Layers from the bottom.
std::shared_ptr<Document> drawn(const std::string& swatches, const std::string& layers) {
  const std::string pages =
      "<sodipodi:namedview><inkscape:page x='0' y='0' width='5080' height='2540' inkscape:label='Front'/>"
      "<inkscape:page x='6000' y='0' width='254' height='254'/></sodipodi:namedview>";
  return documentOf(svgText("ch:scale='10' width='5080mm' height='2540mm' viewBox='0 0 5080 2540'", swatches,
                            pages + layers));
}
std::string black(const std::string& name) {
  return spot(name, "cmyk(0 0 0 1)");
}

TEST(JobSummary, CountsWhatATableWillMeet) {
  const std::string cut = painted("Cut A");
  const auto document = drawn(
      black("Cut A") + black("Drill") + black("Only an ink"),
      layer(kMarksProduct.layerTitle, square(25.4, "inkscape:label='brevia Regmark'") +
                                          square(50.8, "inkscape:label='brevia Regmark'") +
                                          square(9, "inkscape:label='brevia Regmark' style='display:none'") +
                                          square(9, "")) +
          layer("hidden", square(25.4, cut), "style='display:none'") + layer("Drill", square(25.4, cut)) +
          layer("Cut A", square(25.4, cut) + square(25.4, painted("Only an ink")) +
                             square(25.4, cut + " style='display:none'") +
                             "<g><path d='M0 0h12.7v12.7h-12.7zM0 0h6.35v6.35h-6.35z' " + cut + "/></g>"));
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
  const std::string marks = kMarksProduct.layerTitle;
  const auto shared = drawn(black(marks) + black("THROUGH cut") + black("Mine") +
                                "<ch:color name='Crease' definition='rgb(0 0 0)'/>",
                            layer("Crease", "") + layer("Mine", "") + layer("THROUGH cut", "") +
                                layer("THROUGH cut", "") + layer(marks, "", "ch:step='Structural/Cutting'"));
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
  EXPECT_THAT(stepsLike("crees"), ::testing::Contains("Structural/Creasing"));
  EXPECT_EQ(stepsLike("saw").size(), processingSteps().size());
}

}  // namespace
}  // namespace host
