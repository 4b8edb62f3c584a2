// Paints and definitions of custom colours, in trees and on a screen.
#include "ColorTree.h"

#include <boost/property_tree/json_parser.hpp>
#include <sstream>

#include "CustomColorTree.h"
#include "LineTypeDisplayColor.h"
#include "PaintFixture.h"

namespace Vandrell::Corvane {
namespace {

class LineTypeColors : public PaintFixture {
 protected:
  template <typename Color>
  static std::string Written(const Color& color) {
    LineTypeTree tree;
    if constexpr (std::is_same_v<Color, AIColor>) {
      ColorToTree(tree, color);
    } else {
      CustomColorToTree(tree, color);
    }
    std::ostringstream stream;
    boost::property_tree::write_json(stream, tree, false);
    return stream.str().substr(0, stream.str().size() - 1);
  }
};

TEST_F(LineTypeColors, AreWrittenAsKindAndComponentsInOrder) {
  AICustomColor lab = Definition(kCustomLabColor, 50, -20, 30.5);
  lab.flag = -2;  // carried as it is
  const std::pair<std::string, const char*> cases[] = {
      {Written(Paint(kGrayColor, 0.1)), R"({"kind":"0","gray":["0.10000000000000001"]})"},
      {Written(Paint(kFourColor, 0, 1, 0.5, 0.25)), R"({"kind":"1","cmyk":["0","1","0.5","0.25"]})"},
      {Written(Paint(kNoneColor)), R"({"kind":"6"})"},
      {Written(lab), R"({"kind":"2","flag":"-2","lab":["50","-20","30.5"]})"},
      {Written(CustomPaint(Definition(kCustomFourColor, 0, 1), 0.5)),
       R"({"kind":"3","custom":{"kind":"0","flag":"1","cmyk":["0","1","0","0"]}})"}};
  for (const auto& [written, expected] : cases) EXPECT_EQ(written, expected);
}

TEST_F(LineTypeColors, ShowAsPaints) {
  LineType type;
  type.isCustomDataModel = true;
  const auto shown = [&type](const AICustomColor& definition) {
    type.customColor = definition;
    return LineTypeDisplayColor(type);
  };
  EXPECT_EQ(shown(Definition(kCustomFourColor, 0, 0.25, 1, 0)).c.f.magenta, 0.25);
  EXPECT_EQ(shown(Definition(kCustomThreeColor, 1, 0.25, 0)).c.rgb.green, 0.25);
  const AIColor lab = shown(Definition(kCustomLabColor, 54.29, 80.81, 69.89));
  EXPECT_EQ(lab.kind, kThreeColor);
  EXPECT_NEAR(lab.c.rgb.red, 1, 0.02) << "the red of sRGB";
  ASSERT_EQ(host.refusal().add("AI Color Conversion Suite:ConvertSample"), "");
  EXPECT_EQ(shown(Definition(kCustomLabColor, 50)).kind, kNoneColor);
}

}  // namespace
}  // namespace Vandrell::Corvane
