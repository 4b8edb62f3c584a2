// Numbers with units, through the host that writes and reads them.

#include <cmath>

#include "AIDocument.h"
#include "AIPreference.h"
#include "AIUser.h"
#include "DimensionController.h"
#include "FormatDimension.h"
#include "ParseDimension.h"
#include "RulerUnits.h"
#include "ToolkitTest.h"

namespace {

using namespace qRVADM;

constexpr ADMUnits kAllUnits[] = {
    kNoUnits,      kPointUnits,  kInchUnits,  kMillimeterUnits, kCentimeterUnits,  kPicaUnits,
    kPercentUnits, kDegreeUnits, kQUnits,     ADMUnits(9),      kPixelUnits,       ADMUnits(11),
    ADMUnits(12),  kFootUnits,   kMeterUnits, kYardUnits,       kFootAndInchUnits, ADMUnits(17)};

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
               {{12, kPicaUnits}, "12p0"},
               {{-2.25, kPicaUnits}, "-2p3"},
               {{0.5, kPicaUnits}, "0p6"},
               {{3.99999, kPicaUnits}, "3p12"},
               {{10, kMillimeterUnits}, "10 mm"},
               {{17.007874015748033, kPointUnits}, "17.008 pt"},
               {{0.23622, kInchUnits}, "0.2362 in"},
               {{50, kPercentUnits}, "50%"},
               {{22.5, kDegreeUnits}, "22.5\xC2\xB0"},
               {{100, kQUnits}, "100 H"},
               {{0.0001, kPointUnits}, "0 pt"},
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
  for (const ADMUnits unit : kAllUnits) {
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
  } cases[] = {{"10 mm", kPointUnits, 720 / 25.4},
               {"2 m", kFootUnits, 2 / 0.3048},
               {"2 m", kMeterUnits, 2},
               {"3 ft", kYardUnits, 1},
               {"1 yd", kFootAndInchUnits, 3},
               {"1 in", kPixelUnits, 72},
               {"4 Q", kMillimeterUnits, 1},
               {"50%", kMillimeterUnits, 4},
               {"5000000", kPointUnits, 1000000},
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
  EXPECT_EQ(ConvertDimension({1, kInchUnits}, kNoUnits), 72);
  EXPECT_EQ(ConvertDimension({1, kNoUnits}, kInchUnits), 1);
}

TEST_F(NumbersTest, RulersComeFromTheDocumentOrThePreferences) {
  std::string preferred;
  for (int type = -1; type <= 11; ++type) {
    sAIPreference->PutIntegerPreference(nullptr, "rulerType", type);
    preferred += std::to_string(GetRulerUnits()) + " ";
  }
  EXPECT_EQ(preferred, "3 1 5 3 4 2 3 6 8 9 10 11 3 ");
  const auto document = std::make_shared<host::Document>();
  document->setRulerUnits(kCentimeterRuler);
  host.documents().open(document, "drawing");
  EXPECT_EQ(GetRulerUnits(), kCentimeterRuler);

  for (const std::int16_t ruler : {std::int16_t{12}, std::int16_t{-1}}) {
    ADMUnits unit = kUnreadableUnits;
    EXPECT_EQ(RulerToADMUnits(ruler, &unit), kBadParameterErr) << ruler;
    EXPECT_EQ(unit, kUnreadableUnits) << ruler;
  }
}

TEST_F(NumbersTest, AFieldMayGoWhileItIsWritten) {
  QString text;
  DimensionController* controller = nullptr;
  const auto write = [&](const QString& shown) {
    text = shown;
    delete std::exchange(controller, nullptr);
  };
  const DimensionController::TextReader read = [&] { return text; };
  controller =
      new DimensionController(read, [&](const QString& shown) { text = shown; }, write, {0, kPointUnits});
  controller->Step(1);
  EXPECT_EQ(controller, nullptr);
  EXPECT_EQ(text, "1 pt");
  EXPECT_THROW(DimensionController({}, {}, {}, {1, kPointUnits}), std::runtime_error);
}

}  // namespace
