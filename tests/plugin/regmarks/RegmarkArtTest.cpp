#include <gtest/gtest.h>

#include "AddRegmark.h"
#include "CutOption.h"
#include "Drawing.h"
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

void ExpectPoint(const AIRealPoint& actual, const AIRealPoint& expected) {
  EXPECT_NEAR(actual.x, expected.x, 1e-9);
  EXPECT_NEAR(actual.y, expected.y, 1e-9);
}

void ExpectPath(const host::Art& art, const std::vector<AIPathSegment>& expected) {
  ASSERT_EQ(art.type, kPathArt);
  EXPECT_TRUE(art.path->closed);
  ASSERT_EQ(art.path->segments.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    SCOPED_TRACE(i);
    const AIPathSegment& segment = art.path->segments[i];
    ExpectPoint(segment.p, expected[i].p);
    ExpectPoint(segment.in, expected[i].in);
    ExpectPoint(segment.out, expected[i].out);
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
  ExpectPolygon(art, PositionList{{90, b},
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
}

TEST(RoundRegmark, IsPaintedAsTheStyleSays) {
  struct Case {
    bool filled, stroked;
    double weight;
    bool hasStroke;
  };
  for (const Case& c : {Case{true, true, 3, true},
                        {false, true, 3, true},
                        {true, false, 3, false},
                        {true, true, 0.0001, false}}) {
    SCOPED_TRACE(testing::Message() << c.filled << c.stroked << " " << c.weight);
    Drawing drawing;
    const host::Art& mark = Draw(drawing, Style(kRoundRegmark, c.filled, c.stroked, c.weight));
    EXPECT_EQ(mark.style->fillPaint, c.filled);
    EXPECT_EQ(mark.style->strokePaint, c.hasStroke);
    EXPECT_EQ(mark.style->fill.overprint, c.filled);
    EXPECT_EQ(mark.style->stroke.overprint, c.hasStroke);
    EXPECT_EQ(mark.style->stroke.width, c.hasStroke ? c.weight : 0);
    EXPECT_EQ(mark.style->fill.color.c.f.black, c.filled ? 1.0 : 0.0);
  }
}

TEST(CrossRegmark, StandsOnASquareIfItHasAFill) {
  Drawing drawing;
  const host::Art& mark = Draw(drawing, Style(kCrossRegmark, true, true));
  ASSERT_EQ(mark.type, kGroupArt);
  EXPECT_EQ(mark.name, "brevia Regmark");
  const host::Art& bars = TopChild(drawing, mark);
  const host::Art& square = *drawing.document().art(bars.below);
  EXPECT_EQ(square.below, 0U);
  ExpectBars(bars);
  ExpectPolygon(square, {{87, 187}, {113, 187}, {113, 213}, {87, 213}});
  for (const host::Art* art : {&bars, &square}) {
    EXPECT_TRUE(art->style->fillPaint == 1 && art->style->fill.overprint == 1);
    EXPECT_EQ(art->style->strokePaint, 0);
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

TEST(CrossRegmark, HasUnpaintedBarsWithoutAColorOrAWeight) {
  for (const auto& [stroked, weight] : {std::pair{false, kWeight}, {true, 0.0001}}) {
    Drawing drawing;
    const host::Art& mark = Draw(drawing, Style(kCrossRegmark, true, stroked, weight));
    const host::Art& bars = TopChild(drawing, mark);
    EXPECT_EQ(bars.path->segments.size(), 12U);
    EXPECT_TRUE(bars.style->fillPaint == 0 && bars.style->strokePaint == 0);
  }
}

TEST(AddRegmark, PutsTheNextMarkOnTopOfTheSameLayer) {
  Drawing drawing;
  AddRegmark(Style(kRoundRegmark, true, false), kCenter);
  drawing.addLayer("Above");
  AddRegmark(Style(kRoundRegmark, true, false), {300, 400});
  EXPECT_EQ(drawing.layerTitles(), (std::vector<std::string>{"Above", "Regmark", "Artwork"}));
  const PositionList marks = drawing.marks();
  ASSERT_EQ(marks.size(), 2U);
  ExpectPoint(marks[0], kCenter);
  ExpectPoint(marks[1], {300, 400});
}

TEST(AddRegmark, HandsOnWhatTheHostRefuses) {
  struct Case {
    const char* rule;
    std::uint32_t shape;
    AIErr result;
    std::size_t left;  // pieces of art that stay on the mark layer
  };
  const Case cases[] = {
      {"AI Layer Suite:GetLayerByTitle", kRoundRegmark, kCannotAddRegmarkErr, 0},
      {"AI Unicode String Suite:New:1", kRoundRegmark, kCannotAddRegmarkErr, 0},
      {"AI Path Suite:SetPathSegments:3", kRoundRegmark, kSPCanceledByHostError, 1},
      {"AI Path Suite:SetPathClosed", kRoundRegmark, kNoErr, 1},
      {"AI Art Suite:SetArtName", kRoundRegmark, kSPCanceledByHostError, 1},
      {"AI Path Suite:SetPathSegments:1", kCrossRegmark, kSPCanceledByHostError, 1},  // of the square
      {"AI Path Suite:SetPathSegments:2", kCrossRegmark, kNoErr, 1},  // of the bars, painted all the same
      {"AI Art Suite:NewArt:3", kCrossRegmark, kBadParameterErr, 1},  // no bars to paint
  };
  for (const Case& c : cases) {
    Drawing drawing;
    ASSERT_EQ(drawing.host.refusal().add(c.rule), "");
    EXPECT_EQ(AddRegmark(Style(c.shape, true, true), kCenter), c.result) << c.rule;
    EXPECT_EQ(drawing.artOf("Regmark").size(), c.left) << c.rule;
  }
}

TEST(AddRegmark, FailsOnALockedOrHiddenLayer) {
  for (const bool locked : {true, false}) {
    Drawing drawing;
    host::Document& document = drawing.document();
    host::Layer& layer = document.editLayer(drawing.addLayer("Regmark"));
    (locked ? layer.editable : layer.visible) = false;
    EXPECT_EQ(AddRegmark(Style(kRoundRegmark, true, false), kCenter), kLayerLockedErr);
    EXPECT_TRUE(drawing.artOf("Regmark").empty());
  }
}

}  // namespace
}  // namespace Vandrell::Corvane
