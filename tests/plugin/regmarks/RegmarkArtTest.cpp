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

void ExpectPolygon(const host::Art& art, const PositionList& corners) {
  ASSERT_EQ(art.type, kPathArt);
  EXPECT_TRUE(art.path->closed);
  EXPECT_EQ(art.name, "");
  ASSERT_EQ(art.path->segments.size(), corners.size());
  for (std::size_t i = 0; i < corners.size(); ++i) {
    SCOPED_TRACE(i);
    const AIPathSegment& segment = art.path->segments[i];
    ExpectPoint(segment.p, corners[i]);
    ExpectPoint(segment.in, corners[i]);
    ExpectPoint(segment.out, corners[i]);
    EXPECT_EQ(segment.corner, 1);
  }
}

void ExpectBars(const host::Art& art) {
  ExpectPolygon(art, {{90, 198.5},
                      {98.5, 198.5},
                      {98.5, 190},
                      {101.5, 190},
                      {101.5, 198.5},
                      {110, 198.5},
                      {110, 201.5},
                      {101.5, 201.5},
                      {101.5, 210},
                      {98.5, 210},
                      {98.5, 201.5},
                      {90, 201.5}});
}

TEST(RoundRegmark, IsACircleOfFourCurves) {
  Drawing drawing;
  const host::Art& mark = Draw(drawing, Style(kRoundRegmark, true, true));
  const double k = 5.52266001701355;
  const AIPathSegment circle[] = {
      {{110, 200}, {110, 200 - k}, {110, 200 + k}, 0},
      {{100, 210}, {100 + k, 210}, {100 - k, 210}, 0},
      {{90, 200}, {90, 200 + k}, {90, 200 - k}, 0},
      {{100, 190}, {100 - k, 190}, {100 + k, 190}, 0},
  };
  ASSERT_EQ(mark.type, kPathArt);
  EXPECT_EQ(mark.name, "brevia Regmark");
  EXPECT_TRUE(mark.path->closed);
  ASSERT_EQ(mark.path->segments.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) {
    SCOPED_TRACE(i);
    ExpectPoint(mark.path->segments[i].p, circle[i].p);
    ExpectPoint(mark.path->segments[i].in, circle[i].in);
    ExpectPoint(mark.path->segments[i].out, circle[i].out);
    EXPECT_EQ(mark.path->segments[i].corner, 0);
  }
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
                        {true, true, 0.0001, false},
                        {true, true, 0.00011, true},
                        {false, false, 0, false}}) {
    SCOPED_TRACE(testing::Message() << c.filled << c.stroked << " " << c.weight);
    Drawing drawing;
    const host::Art& mark = Draw(drawing, Style(kRoundRegmark, c.filled, c.stroked, c.weight));
    EXPECT_EQ(mark.style->fillPaint, c.filled);
    EXPECT_EQ(mark.style->strokePaint, c.hasStroke);
    EXPECT_EQ(mark.style->fill.overprint, c.filled);
    EXPECT_EQ(mark.style->stroke.overprint, c.hasStroke);
    EXPECT_EQ(mark.style->stroke.width, c.hasStroke ? c.weight : 0);
    if (c.filled) {
      EXPECT_EQ(mark.style->fill.color.c.f.black, 1.0);
    }
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
    EXPECT_EQ(art->style->fillPaint, 1);
    EXPECT_EQ(art->style->fill.overprint, 1);
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
  for (const RegmarkStyle& style :
       {Style(kCrossRegmark, true, false), Style(kCrossRegmark, true, true, 0.0001)}) {
    Drawing drawing;
    const host::Art& bars = TopChild(drawing, Draw(drawing, style));
    EXPECT_EQ(bars.path->segments.size(), 12U);
    EXPECT_EQ(bars.style->fillPaint, 0);
    EXPECT_EQ(bars.style->strokePaint, 0);
  }
}

TEST(AddRegmark, LeavesTheDocumentAloneForAnUnknownShape) {
  Drawing drawing;
  EXPECT_EQ(AddRegmark(Style(2, true, true), kCenter), kNoErr);
  EXPECT_EQ(drawing.layerTitles(), std::vector<std::string>{"Artwork"});
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
      {"AI Layer Suite:InsertLayer", kCrossRegmark, kCannotAddRegmarkErr, 0},
      {"AI Art Suite:GetFirstArtOfLayer", kRoundRegmark, kCannotAddRegmarkErr, 0},
      {"AI Unicode String Suite:New:1", kRoundRegmark, kCannotAddRegmarkErr, 0},
      {"AI Art Suite:NewArt", kRoundRegmark, kSPCanceledByHostError, 0},
      {"AI Path Suite:SetPathSegments:3", kRoundRegmark, kSPCanceledByHostError, 1},
      {"AI Path Suite:SetPathClosed", kRoundRegmark, kNoErr, 1},
      {"AI Path Style Suite:SetPathStyle", kRoundRegmark, kSPCanceledByHostError, 1},
      {"AI Art Suite:SetArtName", kRoundRegmark, kSPCanceledByHostError, 1},
      {"AI Unicode String Suite:New:3", kRoundRegmark, kSPCanceledByHostError, 1},
      {"AI Path Suite:SetPathSegments:1", kCrossRegmark, kSPCanceledByHostError, 1},  // of the square
      {"AI Path Suite:SetPathSegments:2", kCrossRegmark, kNoErr, 1},  // of the bars, painted all the same
      {"AI Art Suite:NewArt:3", kCrossRegmark, kBadParameterErr, 1},  // no bars to paint
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.rule);
    Drawing drawing;
    ASSERT_EQ(drawing.host.refusal().add(c.rule), "");
    EXPECT_EQ(AddRegmark(Style(c.shape, true, true), kCenter), c.result);
    EXPECT_EQ(drawing.artOf("Regmark").size(), c.left);
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
