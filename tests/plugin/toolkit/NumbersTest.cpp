// Numbers with units, through the host that writes and reads them.

#include <cmath>

#include "AIDocument.h"
#include "AIPreference.h"
#include "AIUser.h"
#include "FormatDimension.h"
#include "ParseDimension.h"
#include "ToolkitTest.h"

namespace {

using namespace qRVADM;

class NumbersTest : public ToolkitTest {
 protected:
  NumbersTest() { Request({kAIUserSuite, kAIDocumentSuite, kAIPreferenceSuite}); }
};

TEST_F(NumbersTest, DimensionsAreWrittenByTheirUnits) {
  const struct {
    Dimension dimension;
    const char* text;
    int precision = -1;
  } cases[] = {{{3.5, kPicaUnits}, "3p6"},
               {{-2.25, kPicaUnits}, "-2p3"},
               {{3.99999, kPicaUnits}, "3p12"},
               {{10, kMillimeterUnits}, "10 mm"},
               {{17.007874015748033, kPointUnits}, "17.008 pt"},
               {{22.5, kDegreeUnits}, "22.5\xC2\xB0"},
               {{0.00049, kPointUnits}, "0 pt"},
               {{0.0005, kPointUnits}, "0.001 pt"},
               {{0.4999999, kPointUnits}, "1 pt", 0},
               {{-0.0002, kPointUnits}, "0 pt"},
               {{-2.675, kPointUnits}, "-2.68 pt", 2},
               {{1e300, kNoUnits}, nullptr},
               {{std::nan(""), kPointUnits}, ""},
               {{HUGE_VAL, kPicaUnits}, ""}};
  for (const auto& one : cases) {
    const QString text = FormatDimension(one.dimension, one.precision);
    if (one.text == nullptr) {
      EXPECT_EQ(text.size(), 301);
    } else {
      EXPECT_EQ(text.toStdString(), one.text);
    }
  }
}

TEST_F(NumbersTest, WhatIsWrittenIsReadBackAsItStands) {
  for (int number = kNoUnits; number <= kFootAndInchUnits + 1; ++number) {
    const auto unit = static_cast<ADMUnits>(number);
    // Any values will do. NOLINTNEXTLINE(clang-analyzer-security.FloatLoopCounter)
    for (double value = 1e-5; value < 9e5; value *= 1.37) {
      for (const int precision : {-1, 0, 1, 6}) {
        for (const double sign : {1.0, -1.0}) {
          const QString text = FormatDimension({sign * value, unit}, precision);
          const Dimension read = ParseDimension(text, unit, 0);
          ASSERT_EQ(read.unit, unit) << text.toStdString();
          const int decimals = precision < 0 ? DefaultDecimals(unit) : precision;
          const bool losesSign = unit == kPicaUnits && sign < 0 && value < 1;
          const double lost = std::abs(losesSign ? read.value - value : read.value - sign * value);
          EXPECT_LE(lost, 0.500001 * std::pow(10.0, -decimals) + 1e-9) << text.toStdString();
          if (unit != kPicaUnits) {
            EXPECT_EQ(FormatDimension(read, precision), text) << text.toStdString();
          }
        }
      }
    }
  }
}

TEST_F(NumbersTest, TypedUnitsBecomeThoseOfTheField) {
  const struct {
    const char* text;
    ADMUnits unit;
    double expected;
  } cases[] = {{"10 mm", kPointUnits, 720 / 25.4}, {"2 m", kFootUnits, 2 / 0.3048},
               {"1 yd", kFootAndInchUnits, 3},     {"4 Q", kMillimeterUnits, 1},
               {"50%", kMillimeterUnits, 4},       {"5000000", kPointUnits, 1000000},
               {"-5000000", kPointUnits, -999999}};
  for (const auto& one : cases) {
    const Dimension read = ParseDimension(one.text, one.unit, 8);
    EXPECT_EQ(read.unit, one.unit) << one.text;
    EXPECT_DOUBLE_EQ(read.value, one.expected) << one.text;
  }
  for (const QString& text : {QString(), QString("1 kg"), QString(QChar(0xD800)), QString(1000000, '(')}) {
    const Dimension read = ParseDimension(text, kPointUnits, 8);
    EXPECT_EQ(read.unit, kUnreadableUnits);
    EXPECT_EQ(read.value, 0);
  }
}

}  // namespace
