#include <cmath>
#include <cstdlib>

#include "AIColorConversion.h"
#include "HostFixture.h"

namespace {

class ColorConversionSuiteTest : public HostFixture {
 protected:
  // No profile is found below these: inks are plain.
  static void SetUpTestSuite() {
    for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_DATA_DIRS"}) setenv(name, "/nonexistent", 1);
  }

  const AIColorConversionSuite& suite = ACQUIRE(AIColorConversionSuite);
};

TEST_F(ColorConversionSuiteTest, ConvertsAmongItsSpaces) {
  const struct {
    AIColorSpace source;
    float sample[4];
    AIColorSpace destination;
    float expected[4];
    AIBoolean inGamut;
  } cases[] = {
      {kCMYKSpace, {0.5F, 0, 1, 0.5F}, kRGBSpace, {0.25F, 0.5F, 0, -1}, 1},
      {kGraySpace, {1}, kLabSpace, {100, 0, 0, -1}, 1},
      {kLabSpace, {50, 127, -128}, kRGBSpace, {0.84F, 0, 1, -1}, 0},
  };
  for (const auto& c : cases) {
    float result[4] = {-1, -1, -1, -1};  // components that the space does not have are left alone
    AIBoolean inGamut = 7;
    EXPECT_EQ(suite.ConvertSample(c.source, c.sample, c.destination, result, kDefaultConversion, &inGamut),
              kNoErr);
    for (int i = 0; i < 4; ++i) EXPECT_NEAR(result[i], c.expected[i], 2e-3) << (&c - cases) << " " << i;
    EXPECT_EQ(inGamut, c.inGamut) << (&c - cases);
  }
}

TEST_F(ColorConversionSuiteTest, RefusesWhatIsNoSample) {
  const float good[4] = {}, nan[] = {0, NAN, 0}, infinite[] = {0, 0, -INFINITY};
  float result[4] = {-1, -1, -1, -1};
  AIBoolean inGamut = 7;
  const auto convert = [&](int source, const float* sample, int destination, float* to, int options = 0) {
    return suite.ConvertSample(static_cast<AIColorSpace>(source), sample,
                               static_cast<AIColorSpace>(destination), to,
                               static_cast<AIConversionOptions>(options), &inGamut);
  };
  for (const int space : {-1, 0, 3, 5, 8}) {
    EXPECT_EQ(convert(space, good, kRGBSpace, result), kBadParameterErr) << space;
    EXPECT_EQ(convert(kRGBSpace, good, space, result), kBadParameterErr) << space;
  }
  EXPECT_TRUE(
      each(kBadParameterErr, convert(kRGBSpace, nan, kCMYKSpace, result),
           convert(kRGBSpace, infinite, kCMYKSpace, result), convert(kRGBSpace, nullptr, kRGBSpace, result),
           convert(kRGBSpace, good, kRGBSpace, nullptr), convert(kRGBSpace, good, kRGBSpace, result, 1)));
  EXPECT_EQ(result[0], -1);
  EXPECT_EQ(inGamut, 7);
}

}  // namespace
