#include "CutOption.h"

#include <cmath>
#include <tuple>

#include <gtest/gtest.h>

#include "AutoMarkCount.h"
#include "Drawing.h"
#include "RegmarkStyle.h"

namespace Vandrell::Corvane {
namespace {

TEST(CutOption, ScalesTheCountWithTheArt) {
  const struct {
    double artWidth, artHeight;  // 0: no art
    double documentScale;
    std::int64_t maximum, halfWay;
  } cases[] = {{20, 2000, 1, 13, 7},   {1583.9, 20, 1, 10, 6}, {1584, 20, 1, 11, 6}, {200, 100, 10, 13, 7},
               {200, 100, 0.1, 10, 6}, {0, 0, 1, 12, 7},       {3456, 20, 1, 24, 13}};
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.artWidth << " x " << c.artHeight << " at " << c.documentScale);
    Drawing drawing({0, 792, 612, 0}, c.documentScale);
    if (c.artWidth > 0) drawing.addRectangle(0, 0, c.artWidth, c.artHeight);
    const CutOption option;
    EXPECT_EQ(option.maxCount, c.maximum);
    EXPECT_EQ(option.count, c.halfWay);
    EXPECT_EQ(AutoMarkCountFromSlider(0), 2);
    EXPECT_EQ(AutoMarkCountFromSlider(1), c.maximum);
    for (std::int64_t count = 2; count <= c.maximum; ++count) {
      const double fraction = SliderFromAutoMarkCount(count);
      EXPECT_DOUBLE_EQ(fraction, static_cast<double>(count - 2) / static_cast<double>(c.maximum - 2));
      EXPECT_EQ(AutoMarkCountFromSlider(fraction), count);
    }
  }
}

TEST(CutOption, SurvivesAbsurdFractions) {
  Drawing drawing;
  for (const double fraction : {1e300, -1e300, std::nan(""), -0.2}) {
    CutOption option;
    option.count = AutoMarkCountFromSlider(fraction);
    option.SavePreferences();
    option.LoadPreferences();
  }
  EXPECT_EQ(AutoMarkCountFromSlider(-0.2), 0);  // of a scale of 10: 2 less than Few
  EXPECT_EQ(AutoMarkCountFromSlider(std::nan("")), 2);
}

TEST(CutOption, KeepsItsChoicesInThePreferences) {
  Drawing drawing;
  drawing.addRectangle(0, 0, 2000, 20);
  CutOption option;
  option.shape = kCrossRegmark;
  option.action = kEdgeRing;
  option.size = 12.5;
  option.strokeWeight = 0;
  option.count = 13;
  option.SavePreferences();
  EXPECT_EQ(drawing.host.preferences().integer("Corvane", "Shape"), 2);
  EXPECT_EQ(drawing.host.preferences().integer("Corvane", "Action"), 4);

  drawing.addRectangle(0, 0, 10 * 2000, 20);  // Many is now more
  CutOption loaded;
  loaded.LoadPreferences();
  EXPECT_EQ(loaded.shape, kCrossRegmark);
  EXPECT_EQ(loaded.action, kEdgeRing);
  EXPECT_EQ(loaded.size, 12.5);
  EXPECT_EQ(loaded.strokeWeight, 0.0);
  EXPECT_EQ(loaded.count, 138);
  drawing.host.preferences().put("Corvane", "Action", 3);
  drawing.host.preferences().put("Corvane", "Size", std::string("large"));
  loaded = {};
  loaded.LoadPreferences();
  EXPECT_EQ(loaded.action, kAutoMarks);
  EXPECT_EQ(loaded.size, 17.007874015748033) << "the default for what is no number";
}

TEST(RegmarkStyle, IsTheOptionInDocumentUnits) {
  Drawing drawing({0, 792, 612, 0}, 10);
  const std::tuple<std::uint32_t, AIColorTag, double> cases[] = {{kRoundRegmark, kFourColor, 2.3},
                                                                 {kRoundRegmark, kNoneColor, 2.3},
                                                                 {kCrossRegmark, kFourColor, 2.6},
                                                                 {kCrossRegmark, kNoneColor, 2},
                                                                 {2, kFourColor, 0}};
  for (const auto& [shape, fill, extent] : cases) {
    CutOption option;
    option.shape = shape;
    option.size = 20;
    option.strokeWeight = 3;
    option.fillColor.kind = fill;
    const RegmarkStyle style = MakeRegmarkStyle(option);
    EXPECT_DOUBLE_EQ(style.size, 2);
    EXPECT_DOUBLE_EQ(style.strokeWeight, 0.3);
    EXPECT_EQ(style.fillColor.kind, fill);
    EXPECT_DOUBLE_EQ(RegmarkExtent(style), extent) << shape << " filled with " << fill;
  }
}

}  // namespace
}  // namespace Vandrell::Corvane
