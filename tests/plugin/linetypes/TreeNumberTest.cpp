#include "TreeNumber.h"

#include <gtest/gtest.h>

#include <boost/property_tree/stream_translator.hpp>
#include <locale>
#include <sstream>

namespace Vandrell::Corvane {
namespace {

struct CommaPoint : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
};

TEST(TreeNumber, IsWrittenWithSeventeenDigitsInAnyLocale) {
  const std::pair<double, const char*> cases[] = {
      {1234.5, "1234.5"}, {0.1, "0.10000000000000001"}, {1e17, "1e+17"}, {-0.0, "-0"}};
  const std::locale former = std::locale::global(std::locale(std::locale::classic(), new CommaPoint));
  for (const auto& [value, text] : cases) {
    EXPECT_EQ(TextOfNumber(value), text);
    EXPECT_EQ(DoubleFromText(text), value);
  }
  EXPECT_EQ(DoubleFromText("1234,5"), std::nullopt);
  std::locale::global(former);
}

template <typename Number>
void ExpectLikeStream(const std::string& text, const std::optional<Number>& read) {
  boost::property_tree::stream_translator<char, std::char_traits<char>, std::allocator<char>, Number> stream(
      std::locale::classic());
  const auto expected = stream.get_value(text);
  ASSERT_EQ(read.has_value(), expected.has_value()) << '"' << text << '"';
  if (!read) return;
  ASSERT_EQ(TextOfNumber(static_cast<double>(*read)), TextOfNumber(static_cast<double>(*expected))) << text;
}

void ExpectLikeStream(const std::string& text) {
  ExpectLikeStream(text, DoubleFromText(text));
  ExpectLikeStream(text, Int32FromText(text));
  ExpectLikeStream(text, Int16FromText(text));
}

// Files written by other programs must read as those read them: strictly, by streams.
TEST(TreeNumber, ReadsWhatAStreamOfNoLocaleReads) {
  const std::string zeros(400, '0');
  for (const std::string& text :
       {std::string(), std::string("1\0", 2), std::string("\t1\n\v\f\r"), zeros + "1", "1" + zeros,
        "1" + zeros + "e-400", "1" + zeros + zeros + "e-400", "0." + zeros + zeros + "1e+400",
        "0." + zeros + "1e+400"}) {
    ExpectLikeStream(text);
  }
  std::istringstream texts(
      "+1 -1 +-1 --1 1x 1,5 1.5 .5 5. . -. + 1e5 1E+5 1e-5 1e 1e+ e5 0x10 0x1p3 1d5 inf -inf nan nan(1) "
      "1e308 "
      "1.8e308 1e400 -1e400 1e-400 -1e-400 5e-324 1e99999999999999999999 1e-99999999999999999999 0e99999999 "
      "007 2147483647 2147483648 -2147483648 -2147483649 32767 32768 -32768 -32769 99999999999999999999 "
      "true");
  for (std::string text; texts >> text;) {
    ExpectLikeStream(text);
    ExpectLikeStream(" " + text + " ");
    ExpectLikeStream(text + " x");
  }
}

}  // namespace
}  // namespace Vandrell::Corvane
