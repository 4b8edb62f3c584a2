#include "PlaceRegmarks.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "ArtBounds.h"
#include "CutOption.h"
#include "Drawing.h"
#include "ExpectPositions.h"

namespace Vandrell::Corvane {
namespace {

// Round marks without a stroke: their size is their extent.
AIErr Place(std::uint32_t action, double size, std::int32_t& failures) {
  CutOption option;
  option.action = action;
  option.size = size;
  option.strokeWeight = 0;
  return PlaceRegmarks(option, failures);
}

TEST(CornerMarks, FrameTheArtAsFarAsTheyFitOnTheArtboard) {
  const PositionList all{{373.46, 90}, {90, 510}, {410, 510}, {410, 90}, {90, 90}};
  const struct {
    const char* what;
    AIRealRect artboard;
    std::int32_t failures;
    PositionList marks;
  } cases[] = {
      {"touching the edge of the artboard", {85, 515, 415, 85}, 0, all},
      {"no room on the left", {86, 515, 415, 85}, 2, {all[0], all[2], all[3]}},
      {"only the fifth has room", {200, 792, 400, 0}, 4, {all[0]}},
      {"no room at all", {0, 50, 50, 0}, 4, {}},
  };
  for (const auto& c : cases) {
    for (const double scale : {1.0, 10.0}) {
      SCOPED_TRACE(c.what);
      const auto& [left, top, right, bottom] = c.artboard;
      Drawing drawing({left / scale, top / scale, right / scale, bottom / scale}, scale);
      drawing.addRectangle(100 / scale, 100 / scale, 400 / scale, 500 / scale);
      std::int32_t failures = 99;
      EXPECT_EQ(Place(kCornerMarks, 10, failures), kNoErr);
      EXPECT_EQ(failures, c.failures);
      PositionList marks = drawing.marks();
      for (AIRealPoint& mark : marks) mark = {mark.x * scale, mark.y * scale};
      ExpectPositions(marks, c.marks);
    }
  }
}

TEST(ArtBounds, CountEveryLayerButTheMarks) {
  const struct {
    const char* what;
    void (*prepare)(Drawing&);
    AIErr result;
    AIRealRect bounds;
  } cases[] = {
      {"nothing", [](Drawing&) {}, kNoArtBoundsErr, {}},
      {"a flat shape alone", [](Drawing& d) { d.addRectangle(1, 2, 3, 2); }, kNoArtBoundsErr, {}},
      {"a path without paint",
       [](Drawing& d) {
         d.addRectangle(1, 2, 3, 4);
         d.document().setStyle(d.addRectangle(-10, -20, 0, 0), std::make_shared<const AIPathStyle>());
       },
       kNoErr,
       {1, 4, 3, 2}},
      {"hidden and locked layers",
       [](Drawing& d) {
         d.addRectangle(1, 2, 3, 4);
         host::Layer& layer = d.document().editLayer(d.addLayer("Hidden"));
         layer.visible = layer.editable = false;
         d.addRectangle(-10, -20, 0, 0);
       },
       kNoErr,
       {-10, 4, 3, -20}},
      {"marks in any case",
       [](Drawing& d) {
         d.addRectangle(1, 2, 3, 4);
         d.addLayer("REGmark");
         d.addRectangle(-10, -20, 0, 0);
         d.addLayer("Regmark 2");
         d.addRectangle(5, 5, 6, 6);
       },
       kNoErr,
       {1, 6, 6, 2}},
      {"a refused layer title",
       [](Drawing& d) { d.host.refusal().add("AI Layer Suite:GetLayerTitle"); },
       kSPCanceledByHostError,
       {}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    Drawing drawing;
    c.prepare(drawing);
    AIRealRect bounds;
    ASSERT_EQ(GetArtBoundsWithoutRegmarks(bounds), c.result);
    if (c.result != kNoErr) continue;
    ExpectPositions({{bounds.left, bounds.top}, {bounds.right, bounds.bottom}},
                    {{c.bounds.left, c.bounds.top}, {c.bounds.right, c.bounds.bottom}});
  }
}

// Sizes that only a preference file can hold.
TEST(PlaceRegmarks, EndsForSizesThatMakeNoSense) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double size : {0.0, -5.0, 1e-9, 1e4, 1e9, 1e300, infinity, -infinity, std::nan("")}) {
    for (const std::uint32_t action : {kCornerMarks, kAutoMarks, kEdgeRing}) {
      SCOPED_TRACE(testing::Message() << "size " << size << ", action " << action);
      Drawing drawing;
      drawing.addRectangle(100, 100, 400, 500);
      std::int32_t failures = 0;
      const AIErr result = Place(action, size, failures);
      if (action == kAutoMarks && size == 1e-9) {
        EXPECT_EQ(result, kOutOfMemoryErr);
      }
      if (action == kAutoMarks && size <= 0.0 && std::isfinite(size)) {
        EXPECT_EQ(result, kNoErr);
        EXPECT_TRUE(drawing.marks().empty());
      }
    }
  }
}

}  // namespace
}  // namespace Vandrell::Corvane
