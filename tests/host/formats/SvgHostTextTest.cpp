#include "SvgHostText.h"

#include <gtest/gtest.h>

#include "SvgNumber.h"
#include "SvgStyleText.h"
#include "TestDrawing.h"

namespace host {
namespace {

TEST(SvgNumber, IsShortAndReadsBack) {
  const std::pair<double, const char*> numbers[] = {{0, "0"},        {-0.0, "0"},
                                                    {0.1, "0.1"},    {-1.0 / 3, "-0.3333333333333333"},
                                                    {1e21, "1e+21"}, {5e-324, "5e-324"}};
  for (const auto& [value, text] : numbers) {
    EXPECT_EQ(numberText(value), text);
    EXPECT_EQ(numberFrom(text), value);
  }
}

TEST(SvgNumber, StandsAlone) {
  EXPECT_EQ(numberFrom("\t2 "), 2);
  EXPECT_EQ(numberFrom("2 3"), std::nullopt);
}

TEST(SvgStyleText, FindsTheLastDeclaration) {
  constexpr char kStyle[] = "a:url(x;y); /* b:1; */ B : '2;' !important;b:3;; c";
  EXPECT_EQ(styleProperty(kStyle, "a"), "url(x;y)");
  EXPECT_EQ(styleProperty(kStyle, "b"), "3");
  EXPECT_EQ(styleProperty("b:'2;' !important", "b"), "'2;'");
  EXPECT_EQ(styleProperty(kStyle, "c"), std::nullopt) << "without a colon";
  EXPECT_EQ(styleProperty(kStyle, "x"), std::nullopt);
}

TEST(SvgStyleText, ChangesOneProperty) {
  EXPECT_EQ(withStyleProperty("a:1; b : 2 !important; c:3", "b", "x"), "a:1; b : x !important; c:3");
  EXPECT_EQ(withStyleProperty("a:1; ", "b", "2"), "a:1;b:2;");
  EXPECT_EQ(withStyleProperty("a:1", "b", "2"), "a:1;b:2");
  EXPECT_EQ(withStyleProperty("", "b", "2"), "b:2");
  EXPECT_EQ(withoutStyleProperty("b:0;a:1; b:2; c:3; B:4", "b"), "a:1; c:3;");
  EXPECT_EQ(withoutStyleProperty("a:1", "b"), "a:1");
}

TEST(SvgHostText, ShowsPaintsInRgb) {
  Document document;
  AICustomColor lab{};
  lab.kind = kCustomLabColor;
  lab.c.lab = {53.585, 80.0, 67.0};  // close to sRGB red, https://www.w3.org/TR/css-color-4/#lab-samples
  const CustomColorId red = document.addCustomColor("red", lab);
  AIColor gray{};
  gray.kind = kGrayColor;
  gray.c.g.gray = 0.25;
  EXPECT_EQ(fallbackRgb(gray, document), 0xBFBFBFU);
  EXPECT_EQ(fallbackRgb(cmyk(0, 0, 0, 1), document), 0x000000U);
  EXPECT_EQ(fallbackRgb(cmyk(1, 0.5, 0, 0.5), document), 0x004080U);
  EXPECT_EQ(fallbackRgb(spot(document, red, 1), document), 0xFFFFFFU);
  const std::uint32_t shown = fallbackRgb(spot(document, red, 0), document);
  EXPECT_GT(shown >> 16, 0xF8U);
  EXPECT_LT((shown >> 8) & 0xFF, 0x18U);
  EXPECT_LT(shown & 0xFF, 0x18U);
}

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

TEST(SvgHostText, ReportsSwatchesThatItCannotRead) {
  const SvgDrawing drawing = readDrawing(
      "<svg xmlns='http://www.w3.org/2000/svg' xmlns:h='urn:x-corvane-host:drawing:1' width='9pt' "
      "height='9pt'>"
      "<metadata><h:swatches><h:color name='a' definition='lab(50 -100 100)' registration='true'/>"
      "<h:color name='a' definition='rgb(0 0 0)'/><h:swatch name='s' paint=\"custom('a' 0.5)\" group='3'/>"
      "<h:swatch name='t' paint='red'/><other/></h:swatches></metadata></svg>");
  ASSERT_EQ(drawing.remarks.size(), 3U);
  EXPECT_EQ(drawing.remarks[0].element, "color");
  const Document& document = *drawing.document;
  ASSERT_EQ(document.state().swatches.size(), 1U);
  const Swatch& swatch = *document.swatch(document.state().swatches[0]);
  EXPECT_EQ(swatch.group, 0U);
  const CustomColor& color = *customColorOf(swatch.color, document);
  EXPECT_EQ(color.definition.flag, kCustomRegistrationColor);
  EXPECT_EQ(color.definition.c.lab.a, -100);
}

TEST(SvgPage, MeasuresInTheUnitOfItsWidth) {
  const std::pair<const char*, AIRulerUnits> cases[] = {
      {"10mm", kMillimeterRuler}, {"10cm", kCentimeterRuler}, {"10in", kInchRuler},
      {"10pc", kPicaRuler},       {"10q", kQRuler},           {"10pt", kPointRuler},
      {"10px", kPointRuler},      {"10", kPointRuler},        {"10%", kPointRuler}};
  for (const auto& [width, expected] : cases) {
    const std::string start = R"(<svg xmlns="http://www.w3.org/2000/svg" height="1in" width=")";
    EXPECT_EQ(readDrawing(start + width + "\"/>").document->rulerUnits(), expected) << width;
  }
}

}  // namespace
}  // namespace host
