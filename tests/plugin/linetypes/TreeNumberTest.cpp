#include "TreeNumber.h"

#include <gtest/gtest.h>

#include <boost/property_tree/stream_translator.hpp>
#include <clocale>
#include <cstring>
#include <limits>
#include <locale>
#include <random>

namespace Vandrell::Corvane {
namespace {

std::uint64_t Bits(double value) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

TEST(TreeNumber, IsWrittenWithSeventeenDigits) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  const struct {
    double value;
    const char* text;
  } cases[] = {
      {1, "1"},
      {0.5, "0.5"},
      {0.1, "0.10000000000000001"},
      {-0.0, "-0"},
      {100, "100"},
      {1e17, "1e+17"},
      {1.0 / 3, "0.33333333333333331"},
      {1e-5, "1.0000000000000001e-05"},
      {std::numeric_limits<double>::max(), "1.7976931348623157e+308"},
      {std::numeric_limits<double>::denorm_min(), "4.9406564584124654e-324"},
      {-infinity, "-inf"},
  };
  for (const auto& c : cases) EXPECT_EQ(TextOfNumber(c.value), c.text);
  EXPECT_EQ(TextOfNumber(std::numeric_limits<std::int32_t>::min()), "-2147483648");
  EXPECT_FALSE(DoubleFromText(TextOfNumber(infinity)));
  EXPECT_FALSE(DoubleFromText(TextOfNumber(std::numeric_limits<double>::quiet_NaN())));
}

TEST(TreeNumber, ReadsBackTheSameBits) {
  std::mt19937_64 random(3);
  for (int i = 0; i < 20000; ++i) {
    const std::uint64_t bits = random();
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    if (value - value != 0) continue;  // not finite
    const auto read = DoubleFromText(TextOfNumber(value));
    ASSERT_TRUE(read) << TextOfNumber(value);
    ASSERT_EQ(Bits(*read), bits) << TextOfNumber(value);
  }
}

template <typename Number>
void ExpectLikeStream(const std::string& text, const std::optional<Number>& read) {
  boost::property_tree::stream_translator<char, std::char_traits<char>, std::allocator<char>, Number> stream(
      std::locale::classic());
  const auto expected = stream.get_value(text);
  ASSERT_EQ(read.has_value(), expected.has_value()) << '"' << text << '"';
  if (read) {
    ASSERT_EQ(Bits(static_cast<double>(*read)), Bits(static_cast<double>(*expected))) << '"' << text << '"';
  }
}

void ExpectLikeStream(const std::string& text) {
  ExpectLikeStream(text, DoubleFromText(text));
  ExpectLikeStream(text, Int32FromText(text));
  ExpectLikeStream(text, Int16FromText(text));
}

// Files written by other programs must read as those read them: strictly, by streams.
TEST(TreeNumber, ReadsWhatAStreamOfNoLocaleReads) {
  for (const char* text : {"",
                           " ",
                           "1",
                           " 1",
                           "1 ",
                           "\t1\n\v\f\r",
                           "+1",
                           "-1",
                           "+-1",
                           "--1",
                           "- 1",
                           "1x",
                           "1 x",
                           "1,5",
                           "1.5",
                           ".5",
                           "5.",
                           ".",
                           "-.",
                           "+",
                           "1e5",
                           "1E+5",
                           "1e-5",
                           "1e",
                           "1e+",
                           "e5",
                           "0x10",
                           "0x1p3",
                           "1d5",
                           "inf",
                           "-inf",
                           "infinity",
                           "nan",
                           "nan(1)",
                           "NaN",
                           "1e308",
                           "1.8e308",
                           "1e400",
                           "-1e400",
                           "1e-400",
                           "-1e-400",
                           "5e-324",
                           "1e99999999999999999999",
                           "1e-99999999999999999999",
                           "0e99999999",
                           "0.0e-99999",
                           "007",
                           "2147483647",
                           "2147483648",
                           "-2147483648",
                           "-2147483649",
                           "32767",
                           "32768",
                           "-32768",
                           "-32769",
                           "99999999999999999999",
                           "true",
                           "1.0",
                           "1e0",
                           "\xC2\xA0"
                           "1",
                           "1_000",
                           "1'000",
                           "1 2",
                           "\"1\""}) {
    ExpectLikeStream(text);
  }
  ExpectLikeStream(std::string("1\0", 2));
  ExpectLikeStream(std::string(400, '0') + "1");
  ExpectLikeStream("1" + std::string(400, '0'));
  ExpectLikeStream("1" + std::string(400, '0') + "e-400");
  ExpectLikeStream("1" + std::string(800, '0') + "e-400");
  ExpectLikeStream("0." + std::string(800, '0') + "1e+400");
  ExpectLikeStream("0." + std::string(400, '0') + "1e+400");
}

TEST(TreeNumber, ReadsRandomTextAsAStreamDoes) {
  std::mt19937 random(5);
  constexpr char alphabet[] = "0123456789012345678901234567890123456789..eE+-- \tx,inf";
  for (int i = 0; i < 30000; ++i) {
    std::string text(random() % 9, '0');
    for (char& c : text) c = alphabet[random() % (sizeof alphabet - 1)];
    ASSERT_NO_FATAL_FAILURE(ExpectLikeStream(text));
  }
}

struct CommaPoint : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(TreeNumber, DoesNotFollowTheLocale) {
  const std::locale former = std::locale::global(std::locale(std::locale::classic(), new CommaPoint));
  EXPECT_EQ(TextOfNumber(1234.5), "1234.5");
  EXPECT_EQ(DoubleFromText("1234.5"), 1234.5);
  EXPECT_EQ(DoubleFromText("1234,5"), std::nullopt);
  EXPECT_EQ(TextOfNumber(123456), "123456");
  std::locale::global(former);
}

}  // namespace
}  // namespace Vandrell::Corvane
