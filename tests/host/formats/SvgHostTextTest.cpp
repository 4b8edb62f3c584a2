#include "SvgHostText.h"

#include <gtest/gtest.h>

#include "TestDrawing.h"

namespace host {
namespace {

TEST(SvgHostText, ReadsTheWordsItWrites) {
  Document document;
  document.addCustomColor("It's \\ (a) \xC3\xA4", AICustomColor{});
  const char* const words[] = {"gray(0.1)",
                               "cmyk(0 0.3333333333333333 0 1)",
                               "rgb(1 0.5 0)",
                               "custom('It\\'s \\\\ (a) \xC3\xA4' 0.5)",
                               "gradient('url(#a)' 1 0 0.2)",
                               "pattern('url(#b)' 0 0 0)",
                               "none"};
  for (const char* const text : words) {
    const auto paint = paintFrom(text, document);
    ASSERT_TRUE(paint) << text;
    EXPECT_EQ(paintText(*paint, document), text);
  }
  EXPECT_EQ(paintFrom("gradient('url(#a)' 0 0 0)", document)->c.s.server,
            paintFrom("gradient('url(#a)' 1 1 1)", document)->c.s.server);
}

TEST(SvgHostText, RefusesWhatItDoesNotMean) {
  Document document;
  for (const char* const text :
       {"", "red", "cmyk(0 0 0)", "cmyk(0 0 0 0 0)", "gray(0.1", "gray(0.1) x", "gray(nan)", "custom('x' 0)",
        "custom('x 0)", "custom(0)", "rgb('a' 1 1 1)", "cmyk(0,0,0,1)"}) {
    EXPECT_FALSE(paintFrom(text, document)) << text;
  }
  EXPECT_EQ(paintFrom("gray(7)", document)->c.g.gray, 1);
}

TEST(SvgHostText, ReportsWhatDoesNotCount) {
  const SvgDrawing drawing = readDrawing(
      "<svg xmlns='http://www.w3.org/2000/svg' xmlns:h='urn:x-corvane-host:drawing:1' width='9pt' "
      "height='9pt' h:stroke='gray(1)'>"
      "<metadata><h:swatches><h:color name='a' definition='lab(50 -100 100)' registration='true'/>"
      "<h:color name='a' definition='rgb(0 0 0)'/><h:swatch name='s' paint=\"custom('a' 0.5)\" group='3'/>"
      "<h:swatch name='t' paint='red'/><other/></h:swatches></metadata><g h:fill='gray(1)'/></svg>");
  ASSERT_EQ(drawing.remarks.size(), 5U);
  EXPECT_EQ(drawing.remarks[0].element, "color");
  EXPECT_EQ(drawing.remarks[3].element, "svg");
  const Document& document = *drawing.document;
  ASSERT_EQ(document.state().swatches.size(), 1U);
  const Swatch& swatch = *document.swatch(document.state().swatches[0]);
  EXPECT_EQ(swatch.group, 0U);
  const CustomColor& color = *customColorOf(swatch.color, document);
  EXPECT_EQ(color.definition.flag, kCustomRegistrationColor);
  EXPECT_EQ(color.definition.c.lab.a, -100);
}

}  // namespace
}  // namespace host
