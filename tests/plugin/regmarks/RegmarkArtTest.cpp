#include <gtest/gtest.h>

#include "AddRegmark.h"
#include "CutOption.h"
#include "Drawing.h"
#include "ExpectPositions.h"
#include "RegmarkColors.h"
#include "RegmarkGenerator.h"

namespace Vandrell::Corvane {
namespace {

constexpr double kSize = 20;
constexpr double kWeight = 3;
constexpr AIRealPoint kCenter{100, 200};

RegmarkStyle Style(std::uint32_t shape, bool filled, bool stroked, double weight = kWeight) {
  return {shape, kSize, weight, filled ? BlackRegmarkColor() : NoRegmarkColor(),
          stroked ? BlackRegmarkColor() : NoRegmarkColor()};
}

// Draws one mark and gives its art.
const host::Art& Draw(Drawing& drawing, const RegmarkStyle& style) {
  EXPECT_EQ(AddRegmark(style, kCenter), kNoErr);
  EXPECT_EQ(drawing.layerTitles(), (std::vector<std::string>{"Regmark", "Artwork"}));
  EXPECT_EQ(drawing.artOf("Regmark").size(), 1U);
  return *drawing.document().art(drawing.artOf("Regmark").at(0));
}

const host::Art& TopChild(Drawing& drawing, const host::Art& art) {
  return *drawing.document().art(art.firstChild);
}

void ExpectPath(const host::Art& art, const std::vector<AIPathSegment>& expected) {
  ASSERT_EQ(art.type, kPathArt);
  EXPECT_TRUE(art.path->closed);
  ASSERT_EQ(art.path->segments.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    SCOPED_TRACE(i);
    const AIPathSegment& segment = art.path->segments[i];
    ExpectPositions({segment.p, segment.in, segment.out}, {expected[i].p, expected[i].in, expected[i].out});
    EXPECT_EQ(segment.corner, expected[i].corner);
  }
}

void ExpectPolygon(const host::Art& art, const PositionList& corners) {
  std::vector<AIPathSegment> segments;
  for (const AIRealPoint& corner : corners) segments.push_back({corner, corner, corner, 1});
  ExpectPath(art, segments);
  EXPECT_EQ(art.name, "");
}

void ExpectBars(const host::Art& art) {
  const double l = 98.5, r = 101.5, b = 198.5, t = 201.5;
  ExpectPolygon(art, {{90, b},
                      {l, b},
                      {l, 190},
                      {r, 190},
                      {r, b},
                      {110, b},
                      {110, t},
                      {r, t},
                      {r, 210},
                      {l, 210},
                      {l, t},
                      {90, t}});
}

TEST(RoundRegmark, IsACircleOfFourCurves) {
  Drawing drawing;
  const host::Art& mark = Draw(drawing, Style(kRoundRegmark, true, true));
  const double k = 5.52266001701355;
  ExpectPath(mark, {{{110, 200}, {110, 200 - k}, {110, 200 + k}, 0},
                    {{100, 210}, {100 + k, 210}, {100 - k, 210}, 0},
                    {{90, 200}, {90, 200 + k}, {90, 200 - k}, 0},
                    {{100, 190}, {100 - k, 190}, {100 + k, 190}, 0}});
  EXPECT_EQ(mark.name, "brevia Regmark");
  EXPECT_TRUE(mark.style->fillPaint && mark.style->fill.overprint);
  EXPECT_TRUE(mark.style->strokePaint && mark.style->stroke.overprint);
}

TEST(CrossRegmark, StandsOnASquareIfItHasAFill) {
  for (const auto& [stroked, weight] : {std::pair{true, kWeight}, {false, kWeight}, {true, 0.0001}}) {
    SCOPED_TRACE(testing::Message() << stroked << " " << weight);
    const bool isPainted = stroked && weight == kWeight;
    Drawing drawing;
    const host::Art& mark = Draw(drawing, Style(kCrossRegmark, true, stroked, weight));
    ASSERT_EQ(mark.type, kGroupArt);
    EXPECT_EQ(mark.name, "brevia Regmark");
    const host::Art& bars = TopChild(drawing, mark);
    const host::Art& square = *drawing.document().art(bars.below);
    EXPECT_EQ(square.below, 0U);
    EXPECT_EQ(bars.path->segments.size(), 12U);
    if (isPainted) {
      ExpectBars(bars);
      ExpectPolygon(square, {{87, 187}, {113, 187}, {113, 213}, {87, 213}});
    }
    for (const host::Art* art : {&bars, &square}) {
      const bool painted = art == &square || isPainted;
      EXPECT_EQ(art->style->fillPaint, painted);
      EXPECT_EQ(art->style->fill.overprint, painted);
      EXPECT_EQ(art->style->strokePaint, 0);
    }
  }
}

TEST(CrossRegmark, IsACompoundPathWithoutAFill) {
  Drawing drawing;
  const host::Art& mark = Draw(drawing, Style(kCrossRegmark, false, true));
  ASSERT_EQ(mark.type, kCompoundPathArt);
  EXPECT_EQ(mark.name, "brevia Regmark");
  EXPECT_EQ(mark.firstChild, mark.lastChild);
  ExpectBars(TopChild(drawing, mark));
  const AIPathStyle* style = drawing.document().styleOf(mark.firstChild);
  EXPECT_EQ(style->fillPaint, 1);
  EXPECT_EQ(style->strokePaint, 0);
}

}  // namespace
}  // namespace Vandrell::Corvane
