#include "InfoDisplay.h"

#include <gtest/gtest.h>

namespace host {
namespace {

TEST(InfoDisplay, TellsPointsWhateverTheUnitOfTheDocument) {
  const struct {
    ToolInfo info;
    double pointsPerUnit;
    const char* text;
  } table[] = {
      {{}, 1, ""},
      {{{kInfoDocX, 12.5}, {kInfoDocY, -3}}, 1, "X 12.50 pt   Y -3.00 pt"},
      {{{kInfoDocY, 1234.567}}, 10, "Y 12345.67 pt"},
      {{{kInfoDocX, -0.001}}, 1, "X 0.00 pt"},
      {{{kInfoDocX, 1e300}}, 1, "X - pt"},
  };
  for (const auto& row : table) EXPECT_EQ(infoText(row.info, row.pointsPerUnit), row.text);
}

}  // namespace
}  // namespace host
