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
      {{}, 1, kPointRuler, ""},
      {{{kInfoDocX, 12.5}, {kInfoDocY, -3}}, 1, kPointRuler, "X 12.50 pt   Y -3.00 pt"},
      {{{kInfoDocY, 1234.567}}, 10, kPointRuler, "Y 12345.67 pt"},
      {{{kInfoDocX, 72}, {kInfoDocY, 7.2}}, 10, kMillimeterRuler, "X 254.00 mm   Y 25.40 mm"},
      {{{kInfoDocX, -0.001}}, 1, kPointRuler, "X 0.00 pt"},
      {{{kInfoDocX, 18}, {kInfoDocY, -0.01}}, 1, kInchRuler, "X 0.250 in   Y 0.000 in"},
      {{{kInfoDocX, 1e300}}, 1, kPixelRuler, "X - px"},
      {{{kInfoDocX, 6}}, 1, kUnknownRuler, "X 6.00 pt"},
  };
  for (const auto& row : table) {
    Document document;
    document.setScale(row.scale);
    document.setRulerUnits(row.units);
    EXPECT_EQ(infoText(row.info, document), row.text);
  }
}

TEST(InfoDisplay, TellsHowLargeTheSelectionIs) {
  Document document;
  document.setScale(2);
  document.setRulerUnits(kMillimeterRuler);
  document.insertLayer(0, kPlaceAboveAll);
  EXPECT_EQ(selectionText(document, kEmptyRect), "");
  document.setSelected(*document.newArt(kPathArt, kPlaceAboveAll, 0), true);
  EXPECT_EQ(selectionText(document, kEmptyRect), "1 object");
  document.setSelected(*document.newArt(kPathArt, kPlaceAboveAll, 0), true);
  EXPECT_EQ(selectionText(document, {0, 36, 72, 0}), "2 objects, 50.80 \u00d7 25.40 mm");
}

}  // namespace
}  // namespace host
