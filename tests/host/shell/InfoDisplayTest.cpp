#include "InfoDisplay.h"

#include <gtest/gtest.h>

#include "Geometry.h"

namespace host {
namespace {

TEST(InfoDisplay, TellsPlacesInTheUnitOfTheRulers) {
  const struct {
    ToolInfo info;
    double scale;
    AIRulerUnits units;
    const char* text;
  } table[] = {
      {{{kInfoDocY, 1234.567}}, 10, kPointRuler, "Y 12345.67 pt"},
      {{{kInfoDocX, 72}, {kInfoDocY, 7.2}}, 10, kMillimeterRuler, "X 254.00 mm   Y 25.40 mm"},
      {{{kInfoDocX, -0.001}}, 1, kPointRuler, "X 0.00 pt"},
      {{{kInfoDocX, 18}, {kInfoDocY, -0.01}}, 1, kInchRuler, "X 0.250 in   Y 0.000 in"},
      {{{kInfoDocX, 1e300}}, 1, kPixelRuler, "X - px"},
  };
  for (const auto& row : table) {
    Document document;
    document.setScale(row.scale);
    document.setRulerUnits(row.units);
    EXPECT_EQ(infoText(row.info, document), row.text);
  }
}

}  // namespace
}  // namespace host
