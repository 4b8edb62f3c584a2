#include "DecimalText.h"

#include <gtest/gtest.h>

namespace {

using host::decimalText;

TEST(DecimalText, RoundsTheShortestDecimalHalfAwayFromZero) {
  const struct {
    double value;
    int decimals;
    const char *kept, *dropped;
  } cases[] = {
      {0, 3, "0.000", "0"},
      {1.005, 2, "1.01", "1.01"},
      {999.9996, 3, "1000.000", "1000"},
      {9.5, 0, "10", "10"},
      {0.04999, 1, "0.0", "0"},
      {5e-324, 3, "0.000", "0"},
      {1e22, 1, "10000000000000000000000.0", "10000000000000000000000"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(decimalText(one.value, one.decimals, true), one.kept);
    EXPECT_EQ(decimalText(one.value, one.decimals, false), one.dropped);
    const bool isZero = std::string(one.dropped) == "0";
    EXPECT_EQ(decimalText(-one.value, one.decimals, true), (isZero ? "" : "-") + std::string(one.kept));
  }
  EXPECT_EQ(decimalText(1.7976931348623157e308, 2, false).size(), 309U);
  EXPECT_EQ(decimalText(-5e-324, 324, false).substr(321), "000005");
  EXPECT_EQ(decimalText(1, 32767, true).size(), 32769U);
}

}  // namespace
