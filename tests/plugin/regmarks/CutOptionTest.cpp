#include "CutOption.h"

#include <cmath>

#include <gtest/gtest.h>

#include "AutoMarkCount.h"
#include "Drawing.h"

namespace Vandrell::Corvane {
namespace {

TEST(CutOption, ScalesTheCountWithTheArt) {
  const struct {
    double artWidth, artHeight;  // 0: no art
    double documentScale;
    std::int64_t maximum, halfWay;
  } cases[] = {{20, 2000, 1, 13, 7},
               {1583.9, 20, 1, 10, 6},
               {1584, 20, 1, 11, 6},
               {200, 100, 10, 13, 7},
               {0, 0, 1, 12, 7}};
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

}  // namespace
}  // namespace Vandrell::Corvane
