#include "EvaluateExpression.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace {

using host::evaluateExpression;

constexpr std::int32_t kNumber = 0, kPt = 1, kInch = 2, kMm = 3, kPica = 5, kPercent = 6, kDegree = 7,
                       kFt = 12;

std::optional<double> evaluate(const std::string& text, std::int32_t field, double whole = 40) {
  return evaluateExpression(text, host::unitOfField(field), whole);
}

// What stands between bars.
std::vector<std::string> parted(const std::string& texts) {
  std::vector<std::string> parts;
  std::istringstream stream(texts);
  for (std::string part; std::getline(stream, part, '|');) parts.push_back(part);
  return parts;
}

struct Readable {
  const char* text;
  std::int32_t field;
  double expected;
};

TEST(EvaluateExpression, MixesUnits) {
  const Readable cases[] = {
      {"2 in + 5 mm", kMm, 55.8},
      {"2*(3 mm+1pt)", kMm, 6 + 50.8 / 72},
      {"24/4/2*3", kMm, 9},
      {"(10 mm + 1 cm) / 5 mm", kNumber, 4},
      {"2 * 3/4in + 1", kPt, 109},
      {"3p6.5", kPt, 42.5},
      {"-2p3", kPica, -2.25},
      {"2p + 3", kPt, 27},
      {"5'6\"", kInch, 66},
      {"5' - 6", kInch, 54},
      {"-5 ft 6 in", kFt, -5.5},
      {"--3 - -+2", kPt, 5},
      {"\xE2\x88\x92"
       "3 \xC3\x97 2 \xC3\xB7 4",
       kPt, -1.5},
      {"1,5 + ,5 + 2.", kMm, 4},
      {"50%", kPt, 20},
      {"50% + 1 in", kPt, 92},
      {"10 mm / 50%", kMm, 20},
      {"25% + 10", kPercent, 35},
      {"50% * 50%", kPercent, 25},
      {"90\xC2\xB0 / 4", kDegree, 22.5},
      {"\xC2\xA0\t 1\xE2\x80\xAFmm\xE3\x80\x80\xEF\xBB\xBF\r\n", kMm, 1},
      {"0.000000000000000000000000000000000000000000000000000000000000000001 mm", kMm, 1e-66},
  };
  for (const Readable& one : cases) {
    const std::optional<double> value = evaluate(one.text, one.field);
    ASSERT_TRUE(value.has_value()) << one.text;
    EXPECT_DOUBLE_EQ(*value, one.expected) << one.text;
  }
}

TEST(EvaluateExpression, KnowsUnitsByTheirUsualSpellings) {
  const std::pair<double, const char*> cases[] = {
      {1, "pt|PT|pts|point|points|px|pixel|pixels"},
      {12, "p|pc|pica|picas"},
      {72, "in|\"|''|inch|Inches|\xE2\x80\xB3|\xE2\x80\x9D"},
      {864, "ft|'|foot|feet|\xE2\x80\xB2|\xE2\x80\x99"},
      {2592, "yd|yard|yards"},
      {72 / 25.4, "mm"},
      {720 / 25.4, "cm|Cm"},
      {72000 / 25.4, "m"},
      {18 / 25.4, "Q|q|H"},
  };
  for (const auto& [points, spellings] : cases) {
    for (const std::string& spelling : parted(spellings)) {
      for (const char* blank : {"", " "}) {
        EXPECT_DOUBLE_EQ(evaluate("2" + (blank + spelling), kPt).value_or(-1), 2 * points) << spelling;
      }
    }
  }
}

TEST(EvaluateExpression, RefusesWhatIsNoQuantityOfTheField) {
  const std::pair<std::int32_t, const char*> cases[] = {
      {kNumber, "10 mm"},
      {kDegree, "10 mm"},
      {kInch, "5'000|5'6"},
      {kPt, "3p6 mm"},
      {kMm, "90\xC2\xB0|1\xC2\xB0 + 1 mm|3 mm * 4 mm|3 mm * 4 mm / 2 mm|4 / (2 mm)"},
      {kMm, "1 mm / 0|1 / (2 - 2)|1 mm / 0 mm|1/0 mm|1.234,5|1,234.5|1.2.3|1 000|3 mm 2 mm"},
      {kMm, "| |.|mm|+|1 +|* 2|1 ** 2|(1|1)|()|2(3)|1e3|nan|inf|0x10"},
      {kMm, "1 millimetrefoo|1\xFF|1\xEF\xBF\xBD|\xE2\x88"}};
  for (const auto& [field, texts] : cases) {
    for (const std::string& text : parted(texts)) EXPECT_FALSE(evaluate(text, field).has_value()) << text;
  }
  EXPECT_FALSE(evaluate(std::string("1\0", 2), kMm).has_value());
}

TEST(EvaluateExpression, HoldsItsGroundWithHugeTexts) {
  const auto repeated = [](const std::string& part, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += part;
    return text;
  };
  constexpr int kMany = 1000000;
  constexpr int kTerms = 50000;
  EXPECT_EQ(evaluate(repeated("(", 100) + "7" + repeated(")", 100), kPt), 7.0);
  EXPECT_FALSE(evaluate(repeated("(", 101) + "7" + repeated(")", 101), kPt).has_value());
  EXPECT_EQ(evaluate(repeated("1+", kTerms) + "1", kPt), kTerms + 1.0);
  EXPECT_EQ(evaluate(repeated("0", kMany) + "7." + repeated("0", kMany), kPt), 7.0);
  EXPECT_FALSE(evaluate(repeated("9", 400), kPt).has_value());
  EXPECT_FALSE(evaluate("0 / (1" + repeated("0", 307) + " m)", kPt).has_value());
  EXPECT_FALSE(evaluate("1" + repeated("*1" + repeated("0", 300), 2) + "-1", kPt).has_value());
}

}  // namespace
