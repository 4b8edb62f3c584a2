// Numbers with units, through the host that writes and reads them.

#include <cmath>
#include <vector>

#include "AIDocument.h"
#include "AIPreference.h"
#include "AIUser.h"
#include "DimensionController.h"
#include "FormatDimension.h"
#include "FormatNumber.h"
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
  NumbersTest() {
    for (const char* suite : {kAIUserSuite, kAIDocumentSuite, kAIPreferenceSuite}) {
      EXPECT_EQ(plugin.RequestSuite(suite), kNoErr) << suite;
    }
  }
};

TEST_F(NumbersTest, DimensionsAreWrittenByTheirUnits) {
  const struct {
    Dimension dimension;
    const char* text;
    int precision = -1;
  } cases[] = {
      {{3.5, kPicaUnits}, "3p6"},
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
      {{HUGE_VAL, kPicaUnits}, ""},
  };
  for (const auto& one : cases) {
    const QString text = FormatDimension(one.dimension, one.precision);
    if (one.text == nullptr) {
      EXPECT_EQ(text.size(), 301);
    } else {
      EXPECT_EQ(text.toStdString(), one.text);
    }
  }
  for (const char* both : {"0.500 0.5", "10.000 10", "100 100", "-0.000 0", "0 0", "-0 0", ".0 ."}) {
    const QStringList texts = QString(both).split(' ');
    EXPECT_EQ(TrimTrailingZeros(texts[0]).toStdString(), texts[1].toStdString());
  }
}

TEST_F(NumbersTest, WhatIsWrittenIsReadBackAsItStands) {
  for (const ADMUnits unit : kAllUnits) {
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
  } cases[] = {
      {"10 mm", kPointUnits, 720 / 25.4},
      {"2 m", kFootUnits, 2 / 0.3048},
      {"2 m", kMeterUnits, 2},
      {"3 ft", kYardUnits, 1},
      {"1 yd", kFootAndInchUnits, 3},
      {"1 in", kPixelUnits, 72},
      {"4 Q", kMillimeterUnits, 1},
      {"50%", kMillimeterUnits, 4},
      {"5000000", kPointUnits, 1000000},
      {"-5000000", kPointUnits, -999999},
  };
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

TEST_F(NumbersTest, AHostThatRefusesLeavesNumbersWritten) {
  for (const char* entry : {"AI User Suite:RealToString", "AI Unicode String Suite:New"}) {
    ASSERT_TRUE(host.refusal().add(entry).empty());
    EXPECT_EQ(FormatDimension({2.5, kMillimeterUnits}, -1).toStdString(), "2.5 mm") << entry;
  }
  EXPECT_EQ(ParseDimension("2.5 mm", kMillimeterUnits, 0).unit, kUnreadableUnits);
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

  std::string units;
  for (const int ruler : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, -1}) {
    ADMUnits unit = kUnreadableUnits;
    const AIErr code = RulerToADMUnits(static_cast<std::int16_t>(ruler), &unit);
    EXPECT_EQ(code, unit == kUnreadableUnits ? kBadParameterErr : kNoErr) << ruler;
    units +=
        std::to_string(unit) + ":" + std::to_string(RulerDecimals(static_cast<std::int16_t>(ruler))) + " ";
  }
  EXPECT_EQ(units, "0:3 2:4 4:4 1:3 5:3 3:3 10:3 8:3 13:3 14:3 15:3 16:3 -99:3 -99:3 ");
}

// A field that is nothing but its text.
struct Field {
  explicit Field(Dimension first)
      : controller([this] { return text; }, [this](const QString& shown) { text = shown; },
                   [this](const QString& shown) { text = shown; }, first) {
    QObject::connect(&controller, &DimensionController::Parsed, [this] { ++parsed; });
    controller.SetMinimum(-7200);
    controller.SetMaximum(7200);
  }
  std::string Typed(const QString& typed) {
    text = typed;
    controller.Parse();
    return text.toStdString();
  }

  QString text;
  int parsed = 0;
  DimensionController controller;
};

TEST_F(NumbersTest, AFieldTakesWhatIsTypedWithinItsRange) {
  Field field({0, kPointUnits});
  EXPECT_EQ(field.text, "0 pt") << "shown as it is, though it is below the minimum";
  field.controller.SetUnit(kInchUnits);
  const std::pair<const char*, const char*> cases[] = {
      {"72 pt", "1 in"}, {"x", "1 in"}, {"", "1 in"}, {"101", "100 in"}, {"-9999 m", "-100 in"}};
  for (const auto& [typed, shown] : cases) EXPECT_EQ(field.Typed(typed), shown) << typed;
  EXPECT_EQ(field.parsed, 5);
  field.controller.SetGetDefault([](ADMUnits unit) { return unit == kInchUnits ? 8.0 : 0.0; });
  EXPECT_EQ(field.Typed("25%"), "2 in");
  field.controller.SetDimension({25.4, kMillimeterUnits});
  EXPECT_EQ(field.text, "1 in");
  field.controller.SetDimension({3, kNoUnits});
  field.text = "5,5";
  field.controller.ParseImmediate();
  EXPECT_EQ(field.text, "5,5");
  EXPECT_EQ(field.controller.GetDimension().value, 5.5);
  field.controller.FormatImmediate();
  EXPECT_EQ(field.text, "5.5 in");
  EXPECT_EQ(field.controller.GetPrecision(), 4);
  field.controller.SetPrecision(0);
  EXPECT_EQ(field.Typed("5.7"), "6 in");
  Field fresh({0, kPointUnits});
  fresh.controller.SetMinimum(0.01);
  EXPECT_EQ(fresh.Typed("0"), "0.01 pt");
}

TEST_F(NumbersTest, StepsLandOnMultiples) {
  const struct {
    double from, delta;
    const char* shown;
  } cases[] = {{2.3, 1, "3 mm"},   {3, 1, "4 mm"},         {2.3, -1, "2 mm"},
               {2, -1, "1 mm"},    {2.3, .5, "2.5 mm"},    {2.3, 10, "10 mm"},
               {-2.3, 1, "-2 mm"}, {2.3, 1e-11, "2.3 mm"}, {2540, 1, "2540 mm"}};
  for (const auto& one : cases) {
    Field field({0, kMillimeterUnits});
    field.controller.SetDimension({one.from, kMillimeterUnits});
    field.controller.Step(one.delta);
    EXPECT_EQ(field.text.toStdString(), one.shown) << one.from << " by " << one.delta;
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
  try {
    DimensionController({}, {}, {}, {1, kPointUnits});
    ADD_FAILURE() << "an empty function was called";
  } catch (const std::runtime_error& problem) {
    EXPECT_STREQ(problem.what(), "call to empty boost::function");
  }
}

}  // namespace
