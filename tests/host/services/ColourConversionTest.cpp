#include "ColourConversion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "ColourProfileFiles.h"
#include "ScratchFolder.h"

namespace host {
namespace {

constexpr ColourSpace kGray = ColourSpace::Gray;
constexpr ColourSpace kRGB = ColourSpace::RGB;
constexpr ColourSpace kCMYK = ColourSpace::CMYK;
constexpr ColourSpace kLab = ColourSpace::Lab;

void expectNear(const ColourSample& actual, const ColourSample& expected, double tolerance,
                const std::string& where) {
  for (std::size_t i = 0; i < actual.size(); ++i) {
    EXPECT_NEAR(actual[i], expected[i], tolerance) << where << ", component " << i;
  }
}

// Lab of sRGB's corners at D50: http://www.brucelindbloom.com, "RGB Working Space Information".
TEST(ColourConversion, FollowsTheStandardsAndForPlainInksTheirFormula) {
  const struct {
    ColourSpace source;
    ColourSample sample;
    ColourSpace destination;
    ColourSample expected;
    double tolerance;
  } cases[] = {{kCMYK, {0.2, 0.4, 0.6, 0.5}, kRGB, {0.4, 0.3, 0.2}, 1e-4},
               {kRGB, {0, 0, 0}, kCMYK, {0, 0, 0, 1}, 1e-4},
               {kRGB, {0.4, 0.3, 0.2}, kCMYK, {0, 0.25, 0.5, 0.6}, 1e-4},
               {kGray, {0.25}, kCMYK, {0, 0, 0, 0.75}, 1e-4},
               {kCMYK, {0, 0, 0, 0.75}, kGray, {0.25}, 1e-4},
               {kLab, {100, 0, 0}, kCMYK, {0, 0, 0, 0}, 1e-4},
               {kGray, {0.5}, kRGB, {0.5, 0.5, 0.5}, 2e-3},
               {kRGB, {1, 0, 0}, kLab, {54.29, 80.81, 69.89}, 0.2},
               {kRGB, {0, 0, 1}, kLab, {29.57, 68.30, -112.03}, 0.2},
               {kLab, {54.29, 80.81, 69.89}, kRGB, {1, 0, 0}, 2e-3},
               {kRGB, {0.2, 0.4, 0.6}, kRGB, {0.2, 0.4, 0.6}, 2e-3}};
  ColourConversion plain({});
  EXPECT_EQ(plain.cmykProfile(), "");
  for (const auto& c : cases) {
    const ColourAnswer answer = plain.convert(c.source, c.sample, c.destination);
    expectNear(answer.sample, c.expected, c.tolerance, std::to_string(&c - cases));
    EXPECT_TRUE(answer.inGamut) << &c - cases;
  }
  const std::tuple<ColourSpace, ColourSample, ColourSpace> beyond[] = {
      {kRGB, {1, 0, 0}, kGray}, {kLab, {50, 127, -128}, kRGB}, {kLab, {90, -128, 0}, kCMYK}};
  for (const auto& [source, sample, destination] : beyond) {
    const ColourAnswer answer = plain.convert(source, sample, destination);
    EXPECT_FALSE(answer.inGamut);
    EXPECT_EQ(withinRange(destination, answer.sample), answer.sample);
  }
}

// The profile of a press that comes with one of the tools that look at PDF files.
class PressInks : public testing::Test {
 protected:
  void SetUp() override {
    const auto files = cmykProfileFiles(colourProfileFolders());
    if (files.empty()) GTEST_SKIP() << "this system has no profile of a press";
    bytes_ = readColourProfile(files.front()).value_or("");
  }

  std::string bytes_;
  const ScratchFolder folder_;
};

// White that is a hair below 1 would show as 65534 of 65535.
TEST_F(PressInks, WhiteAndBlackAreExact) {
  folder_.write("press.icc", bytes_);
  for (const auto& folders : {std::vector<std::filesystem::path>(), {folder_.path}}) {
    ColourConversion conversion(folders);
    EXPECT_EQ(conversion.convert(kCMYK, {0, 0, 0, 0}, kRGB).sample, (ColourSample{1, 1, 1}));
    EXPECT_EQ(conversion.convert(kLab, {100, 0, 0}, kRGB).sample, (ColourSample{1, 1, 1}));
    EXPECT_EQ(conversion.convert(kLab, {0, 0, 0}, kRGB).sample, ColourSample{});
  }
}

TEST_F(PressInks, FollowTheFirstUsableProfile) {
  folder_.write("a-half.icc", bytes_.substr(0, bytes_.size() / 2));
  folder_.write("c-noise.icc", bytes_.substr(0, 128) + std::string(4000, '\xFF'));
  EXPECT_EQ(ColourConversion({folder_.path}).cmykProfile(), "") << "none of these is any good";
  const auto file = folder_.write("press/own.icc", bytes_);
  folder_.write("z.icc", bytes_);
  ColourConversion conversion({"/nonexistent", folder_.path});
  EXPECT_EQ(conversion.cmykProfile(), file);
  // The darkest that inks can do counts as black; without compensation it would stay a gray.
  expectNear(conversion.convert(kCMYK, {1, 1, 1, 1}, kRGB).sample, {0, 0, 0}, 0.01, "black");
  const ColourSample red = conversion.convert(kCMYK, {0, 1, 1, 0}, kRGB).sample;
  EXPECT_GT(red[0], red[1] + 0.3) << "still a red";
  EXPECT_GT(red[1], 0.05) << "duller than that of a screen";
  EXPECT_TRUE(conversion.convert(kRGB, {0.6, 0.5, 0.55}, kCMYK).inGamut);
  EXPECT_FALSE(conversion.convert(kRGB, {0, 1, 0}, kCMYK).inGamut);
}

TEST(ColourConversion, SamplesBeyondTheirRangeCountAsItsEnds) {
  ColourConversion plain({});
  constexpr double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(plain.convert(kCMYK, {-1e300, 1e300, -infinity, 0}, kRGB).sample, (ColourSample{1, 0, 1}));
  EXPECT_EQ(plain.convert(kRGB, {2, -1, infinity, 9}, kRGB).sample, (ColourSample{1, 0, 1}));
  EXPECT_EQ(plain.convert(kGray, {std::nan("")}, kRGB).sample, (ColourSample{}));
}

// More colours than there are places: what was displaced is gone, never wrong.
TEST(ColourCache, AnswersItsOwnQuestionOnly) {
  ColourCache cache;
  for (int i = 0; i < 1000; ++i) {
    const int number = i % 500;
    const ColourQuestion question{kRGB, kCMYK, {number / 500.0}};
    const ColourAnswer* known = cache.find(question);
    EXPECT_TRUE(known == nullptr || (i >= 500 && known->sample[0] == number)) << i;
    cache.put(question, {{static_cast<double>(number)}, false});
    ASSERT_NE(cache.find(question), nullptr);
    EXPECT_EQ(cache.find({kRGB, kLab, question.sample}), nullptr);
  }
}

}  // namespace
}  // namespace host
