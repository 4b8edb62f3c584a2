#include <gtest/gtest.h>

#include "DrawingMaker.h"
#include "SvgWriterCase.h"

namespace host {
namespace {

std::vector<SvgWriterCase> styleCases() {
  const std::string path = " d='M0 0h1v1z'/>";
  const auto stroke = [](SvgDrawing& d) { d.document->setStyle(named(d, "a"), stroked(rgb(1, 0, 0), 1.5)); };
  return {
      {"attributes", file("<path id='a' fill='blue'" + path), stroke,
       file("<path id='a' fill='none' d='M0 0h1v1z' stroke=\"#ff0000\" stroke-width=\"2\" "
            "stroke-linecap=\"butt\""
            " stroke-linejoin=\"miter\" stroke-miterlimit=\"4\" stroke-dasharray=\"none\" "
            "stroke-dashoffset=\"0\"/>")},
      {"one property in a style attribute",
       file("<path id='a' style='fill:none; stroke : red ;stroke-width:1; x:y' stroke='blue'" + path), stroke,
       file("<path id='a' style='fill:none; stroke : red ;stroke-width:2; x:y' stroke='blue'" + path)},
      {"a paint that was invisible", file("<g fill-opacity='0'><path id='a' fill='blue'" + path + "</g>"),
       [](SvgDrawing& d) { d.document->setStyle(named(d, "a"), filled(rgb(0, 0, 1))); },
       file("<g fill-opacity='0'><path id='a' fill='#0000ff' d='M0 0h1v1z' fill-opacity=\"1\"/></g>")},
      {"process colour and overprint", file("<path id='a' fill='red'" + path, kHost),
       [](SvgDrawing& d) { d.document->setStyle(named(d, "a"), filled(cmyk(1, 0.5, 0, 0.2), true)); },
       file("<path id='a' fill='#0066cc' d='M0 0h1v1z' ch:fill=\"cmyk(1 0.5 0 0.2)\" "
            "ch:fill-overprint=\"true\"/>",
            kHost)},
      {"from process colour to plain",
       file("<path id='a' fill='#000' ch:fill='cmyk(0 0 0 1)' ch:fill-overprint='true'" + path, kHost),
       [](SvgDrawing& d) { d.document->setStyle(named(d, "a"), filled(rgb(0, 0, 0))); },
       file("<path id='a' fill='#000'" + path, kHost)},
      {"new art among inherited properties",
       file("<g id='g' fill='red' style='stroke:blue;visibility:hidden'><path id='a'" + path + "</g><text/>"),
       [](SvgDrawing& d) {
         addPath(d, named(d, "g"), {{0, 72}, {0.75, 72}, {0.75, 71.25}}, filled(rgb(0, 0, 0)));
       },
       file("<g id='g' fill='red' style='stroke:blue;visibility:hidden'><path id='a'" + path +
            "<path fill=\"#000000\" stroke=\"none\" visibility=\"visible\" d=\"M 0,0 L 1,0 L 1,1 "
            "Z\"/></g><text/>")},
  };
}

TEST(SvgWriter, ChangesAPaintWhereItStands) {
  expectSaved(styleCases());
}

void addSpot(SvgDrawing& drawing, const std::string& name) {
  Document& document = *drawing.document;
  AICustomColor definition{};
  definition.kind = kCustomFourColor;
  definition.c.f = {0, 1, 0, 0};
  definition.flag = kCustomSpotColor;
  const CustomColorId color = document.addCustomColor(name, definition);
  const SwatchGroupId group = document.addSwatchGroup(-1);
  document.editSwatchGroup(group).name = "Cut & crease";
  document.addSwatch(group, testing::customPaint(document, color, 0), name);
  addPath(drawing, rootOf(drawing, 0), {{0, 72}, {0.75, 72}, {0.75, 71.25}},
          stroked(testing::customPaint(document, color, 0.5), 0.75, true));
}

constexpr char kSpotPath[] =
    R"x(<path fill="none" stroke="#ff80ff" ch:stroke="custom('It\'s' 0.5)" ch:stroke-overprint="true")x"
    R"( d="M 0,0 L 1,0 L 1,1 Z"/>)";

std::vector<SvgWriterCase> swatchCases() {
  const std::string entries =
      "\n   <ch:color name=\"It's\" definition=\"cmyk(0 1 0 0)\" spot=\"true\"/>"
      "\n   <ch:group name=\"Cut &amp; crease\" kind=\"0\"/>"
      "\n   <ch:swatch name=\"It's\" paint=\"custom('It\\'s' 0)\" group=\"1\"/>\n  </ch:swatches>";
  const std::string old =
      "\n  <ch:swatches>\n   <ch:swatch name=\"a\" paint=\"cmyk(0 0 0 1)\"/>\n  </ch:swatches>";
  return {
      {"a first spot colour", file("\n <title>t</title>\n <path d='M0 0h1'/>\n"),
       [](SvgDrawing& d) { addSpot(d, "It's"); },
       file("\n <title>t</title>\n <metadata>\n  <ch:swatches>" + entries +
                "\n </metadata>\n <path d='M0 0h1'/>\n " + kSpotPath + "\n",
            kHost)},
      {"a block that declares its own prefix",
       file("\n <metadata>\n  <ch:swatches" + std::string(kHost) +
            ">\n   <ch:swatch name=\"a\" paint=\"cmyk(0 0 0 1)\"/>\n  </ch:swatches>\n </metadata>\n"),
       [](SvgDrawing& d) { d.document->editSwatch(d.document->state().swatches[0]).name = "b"; },
       file("\n <metadata>\n  <ch:swatches" + std::string(kHost) +
            ">\n   <ch:swatch name=\"b\" paint=\"cmyk(0 0 0 1)\"/>\n  </ch:swatches>\n </metadata>\n")},
      {"the last swatch", file("\n <metadata>" + old + "\n </metadata>\n <path d='M0 0h1'/>\n", kHost),
       [](SvgDrawing& d) { d.document->editState().swatches.clear(); },
       file("\n <metadata>\n </metadata>\n <path d='M0 0h1'/>\n", kHost)},
  };
}

TEST(SvgWriter, KeepsSwatchesInTheMetadata) {
  expectSaved(swatchCases());
}

// Programs tell lines by widths that they compare exactly.
TEST(SvgWriterWidth, ComesBackExactlyWhateverTheScale) {
  for (const double scale : {1.0, 3.0, 10.0}) {
    for (int k = 1; k <= 60; k += 3) {
      const std::string text =
          "<svg xmlns='http://www.w3.org/2000/svg' xmlns:ch='urn:x-corvane-host:drawing:1' "
          "ch:scale='" +
          std::to_string(scale) + "' width='210mm' height='" + std::to_string(97 + k) + "mm' viewBox='0 0 " +
          std::to_string(13 * k) + " " + std::to_string(100 * k) +
          "' preserveAspectRatio='none'><g transform='rotate(" + std::to_string(k) + ") scale(1." +
          std::to_string(k) + ")'><path id='p' d='M0 0h1' stroke='red'/></g></svg>";
      SvgDrawing drawing = readDrawing(text);
      const double width = 1.0 / drawing.document->scale();
      ASSERT_EQ(drawing.document->scale(), scale);
      drawing.document->setStyle(named(drawing, "p"), stroked(rgb(1, 0, 0), width, true));
      const SvgDrawing again = readDrawing(saved(drawing));
      EXPECT_EQ(again.document->styleOf(named(again, "p"))->stroke.width, width) << scale << " " << k;
    }
  }
}

}  // namespace
}  // namespace host
