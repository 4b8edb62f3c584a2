// Numbers, lengths, colours, transforms and other single values.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <tuple>

#include "Geometry.h"
#include "SvgColour.h"
#include "SvgFont.h"
#include "SvgLayerPlan.h"
#include "SvgLength.h"
#include "SvgNumber.h"
#include "SvgQuoted.h"
#include "SvgScanner.h"
#include "SvgTransform.h"
#include "SvgUrl.h"
#include "SvgViewBox.h"
#include "SvgXmlText.h"

namespace host {
namespace {

// One reader for much data, one for a single value, which may not be endless.
TEST(SvgNumbers, AreReadExactlyAndAlikeByBothReaders) {
  const double infinity = std::numeric_limits<double>::infinity();
  const std::tuple<const char*, std::optional<double>, const char*> cases[] = {
      {"0.1", 0.1, ""},
      {"-12.5e-1x", -1.25, "x"},
      {"1.", 1, ""},
      {".5.5", 0.5, ".5"},
      {"1e", 1, "e"},
      {"2e+3e", 2000, "e"},
      {"0.30000000000000004", 0.30000000000000004, ""},
      {"9007199254740993", 9007199254740992.0, ""},
      {"1234567890123456789012", 1.2345678901234568e21, ""},
      {"4.9e-324", 4.9e-324, ""},
      {"1e-999", 0, ""},
      {"-1e999", -infinity, ""},
      {".", std::nullopt, "."},
      {"-.e5", std::nullopt, "-.e5"},
      {"0x10", 0, "x10"},
      {"0.0000e5", 0, ""},
      {"", std::nullopt, ""},
      {"nan", std::nullopt, "nan"}};
  for (const auto& [whole, value, rest] : cases) {
    SvgScanner scanner(whole);
    EXPECT_EQ(scanner.number(), value) << whole;
    EXPECT_EQ(scanner.rest(), rest) << whole;
    std::string_view text = whole;
    const bool isFinite = value && std::isfinite(*value);
    EXPECT_EQ(takeNumber(text), isFinite ? value : std::nullopt) << whole;
    EXPECT_EQ(text, isFinite ? rest : whole);
  }
}

TEST(SvgNumbers, AreWrittenShort) {
  const std::pair<double, const char*> numbers[] = {
      {-0.0, "0"}, {-1.0 / 3, "-0.3333333333333333"}, {1e21, "1e+21"}, {5e-324, "5e-324"}};
  for (const auto& [value, text] : numbers) EXPECT_EQ(numberText(value), text);
}

std::string lengthText(std::string_view text) {
  const auto length = parseLength(text);
  // A viewport of 200 by 100 and a font size of 10: the diagonal is sqrt(25000).
  return length ? numberText(std::round(userUnits(*length, SvgAxis::X, {200, 100, 10}) * 1e6) / 1e6) : "none";
}

TEST(SvgLength, KnowsItsUnits) {
  const std::pair<const char*, const char*> cases[] = {
      {"5", "5"},       {" 5px ", "5"},   {"3PT", "4"},        {"1pc", "16"},      {"1in", "96"},
      {"2.54cm", "96"}, {"25.4mm", "96"}, {"101.6q", "96"},    {"50%", "100"},     {"2em", "20"},
      {"2ex", "10"},    {"1ch", "5"},     {"1ic", "10"},       {"1rem", "16"},     {"1vw", "2"},
      {"10vh", "10"},   {"1vmax", "2"},   {"-1.5e1px", "-15"}, {"5 px", "none"},   {"5furlong", "none"},
      {"px", "none"},   {"", "none"},     {"1e999", "none"},   {"5px 6px", "none"}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(lengthText(text), expected) << text;
  EXPECT_NEAR(userUnits(*parseLength("100%"), SvgAxis::Diagonal, {200, 100, 10}), std::sqrt(25000), 1e-9);
  EXPECT_EQ(userUnits(*parseLength("10%"), SvgAxis::Y, {200, 100, 10}), 10);
}

std::string colourText(std::string_view text) {
  const auto colour = parseColour(text);
  if (!colour) return "none";
  const auto byte = [](double value) { return std::to_string(std::lround(value * 255)); };
  return byte(colour->red) + " " + byte(colour->green) + " " + byte(colour->blue) + " " + byte(colour->alpha);
}

TEST(SvgColour, ReadsEveryNotation) {
  const std::pair<const char*, const char*> cases[] = {{"red", "255 0 0 255"},
                                                       {" LightGoldenRodYellow ", "250 250 210 255"},
                                                       {"aliceblue", "240 248 255 255"},
                                                       {"yellowgreen", "154 205 50 255"},
                                                       {"transparent", "0 0 0 0"},
                                                       {"#f0a", "255 0 170 255"},
                                                       {"#F0Ac", "255 0 170 204"},
                                                       {"#12ab3480", "18 171 52 128"},
                                                       {"rgb(10, 20,30)", "10 20 30 255"},
                                                       {"RGB(100%,0%,50%)", "255 0 128 255"},
                                                       {"rgba(10 20 30 / 50%)", "10 20 30 128"},
                                                       {"rgb(300,-5,20.4)", "255 0 20 255"},
                                                       {"hsl(120,100%,25%)", "0 128 0 255"},
                                                       {"hsla(-120deg 100% 50% / .2)", "0 0 255 51"},
                                                       {"hsl(.5turn,100%,50%)", "0 255 255 255"},
                                                       {"hwb(0 20% 20%)", "204 51 51 255"},
                                                       {"device-cmyk(0 1 1 .5)", "128 0 0 255"},
                                                       {"#f00 icc-color(a, 1, 2)", "255 0 0 255"},
                                                       {"#f00 device-cmyk(0,1,1,0)", "255 0 0 255"},
                                                       {"#12g", "none"},
                                                       {"rgb(1,2)", "none"},
                                                       {"rgb(1,2,3", "none"},
                                                       {"red blue", "none"},
                                                       {"", "none"}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(colourText(text), expected) << text;
}

std::string transformText(std::string_view text) {
  const auto matrix = parseTransform(text);
  if (!matrix) return "none";
  std::string result;
  for (const double value : {matrix->a, matrix->b, matrix->c, matrix->d, matrix->tx, matrix->ty}) {
    result += (result.empty() ? "" : " ") + numberText(std::round(value * 1000) / 1000 + 0.0);
  }
  return result;
}

TEST(SvgTransform, MultipliesFromTheInside) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "1 0 0 1 0 0"},
      {"matrix(1 2 3 4 5 6)", "1 2 3 4 5 6"},
      {"translate(5,-6.5)", "1 0 0 1 5 -6.5"},
      {"scale(2 -3)", "2 0 0 -3 0 0"},
      {"rotate(90)", "0 1 -1 0 0 0"},
      {"rotate(90 10 20)", "0 1 -1 0 30 10"},
      {"rotate(.25turn)", "0 1 -1 0 0 0"},
      {"skewY(45deg)", "1 1 0 1 0 0"},
      {" translate( 10px , 20px )scale(2) , rotate(90)", "0 2 -2 0 10 20"},
      {"rotate(90 10)", "none"},
      {"scale(2", "none"},
      {"foo(1)", "none"},
      {"translate(1e999)", "none"},
      {"translate(1) x", "none"}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(transformText(text), expected) << text;
}

TEST(SvgUrl, TellsTargetAndFallback) {
  const std::array<const char*, 3> cases[] = {
      {"url( '#a b' ) none", "a b", "none"}, {"URL(\"#a\")  red ", "a", "red"}, {"url(other.svg#a)", "", ""}};
  for (const auto& [text, id, fallback] : cases) {
    const auto url = parseUrl(text);
    ASSERT_TRUE(url) << text;
    EXPECT_EQ(url->id(), id) << text;
    EXPECT_EQ(url->fallback, fallback) << text;
  }
  for (const char* text : {"#a", "url('#a)", ""}) EXPECT_FALSE(parseUrl(text)) << text;
}

TEST(SvgFont, TakesTheShorthandApart) {
  const auto font = parseFontShorthand("italic small-caps 600 12px/1.5 'Fira Sans', serif");
  ASSERT_TRUE(font);
  EXPECT_EQ(font->style, "italic");
  EXPECT_EQ(font->weight, "600");
  EXPECT_EQ(font->size, "12px");
  EXPECT_EQ(font->family, "'Fira Sans', serif");
  EXPECT_FALSE(parseFontShorthand("bold"));
  EXPECT_FALSE(parseFontShorthand("caption"));
  EXPECT_EQ(parseFontSize("150%", 10), 15);
  EXPECT_EQ(parseFontSize("larger", 10), 12);
  EXPECT_EQ(parseFontSize("-1px", 10), std::nullopt);
  EXPECT_EQ(parseFontWeight("bolder", 400), 700);
  EXPECT_EQ(parseFontWeight("12px", 400), std::nullopt);
}

TEST(SvgAspect, HasADefaultForWhatItDoesNotKnow) {
  const auto text = [](std::string_view value) {
    const SvgAspect aspect = parseAspect(value);
    return numberText(aspect.alignX) + " " + numberText(aspect.alignY) + (aspect.slice ? " slice" : "") +
           (aspect.stretch ? " stretch" : "");
  };
  EXPECT_EQ(text(""), "0.5 0.5");
  EXPECT_EQ(text("xMinYMax"), "0 1");
  EXPECT_EQ(text("defer xMaxYMin slice"), "1 0 slice");
  EXPECT_EQ(text("none"), "0.5 0.5 stretch");
  EXPECT_EQ(text("yes"), "0.5 0.5");
}

TEST(SvgNames, AreDecodedAndQuoted) {
  EXPECT_EQ(decodedId("Cut_x0020_Contour_x5F_1"), "Cut Contour_1");
  EXPECT_EQ(decodedId("_x00E4_"), "\xC3\xA4");
  EXPECT_EQ(decodedId("a_xyz_ _x_ _x0_ _xD800_ _x20"), "a_xyz_ _x_ _x0_ _xD800_ _x20");
  EXPECT_EQ(host::quoted("a\nb"), "\"a b\"");
  EXPECT_EQ(escapedAttribute("<\n\"'\x01"), "&lt;&#10;&quot;'\xEF\xBF\xBD");
  EXPECT_EQ(host::quoted(std::string(59, 'x') + "\xC3\xA4!"), "\"" + std::string(59, 'x') + "...\"");
}

}  // namespace
}  // namespace host
