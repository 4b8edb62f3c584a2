// PDF files as tools of others see them.
#include <gmock/gmock.h>

#include <cstdio>
#include <regex>
#include <string>
#include <vector>

#include "PdfExport.h"
#include "PdfProof.h"
#include "ScratchFolder.h"
#include "SvgFallbackColour.h"
#include "SvgHostText.h"

namespace host {
namespace {

using testing::HasSubstr;

std::string said(const std::string& command) {
  std::string text;
  FILE* pipe = popen((command + " 2>&1").c_str(), "r");
  if (pipe == nullptr) return "cannot run " + command;
  char buffer[4096];
  for (std::size_t count; (count = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;)
    text.append(buffer, count);
  const int code = pclose(pipe);
  return code == 0 ? text : text + "\nexit " + std::to_string(code);
}

std::string drawing(const std::string& swatches, const std::string& content,
                    const std::string& size = "300pt", const std::string& box = "0 0 300 300") {
  return R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:ch="urn:x-corvane-host:drawing:1")"
         R"( xmlns:inkscape="http://www.inkscape.org/namespaces/inkscape")"
         R"( xmlns:sodipodi="http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd" width=")" +
         size + "\" height=\"" + size + "\" viewBox=\"" + box + "\"><metadata><ch:swatches>" + swatches +
         "</ch:swatches></metadata>" + content + "</svg>";
}

std::string spot(const std::string& name, const std::string& definition = "rgb(1 0 0)") {
  return "<ch:color name=\"" + name + "\" definition=\"" + definition + "\" spot=\"true\"/>";
}

// The colour that other programs are shown.
std::string fallbackOf(const std::string& definition) {
  Document document;
  AIColor color{};
  color.kind = kCustomColor;
  color.c.c.color =
      makeHandle<AICustomColorHandle>(HandleKind::CustomColor, document.serial(),
                                      document.addCustomColor("any", *definitionFrom(definition)));
  char text[8];
  std::snprintf(text, sizeof text, "#%06x", fallbackRgb(color, document));
  return text;
}

std::string line(const std::string& spotName, const std::string& more = {},
                 const std::string& definition = "rgb(1 0 0)") {
  return "<path d=\"M20 20H280V280Z\" fill=\"none\" stroke=\"" + fallbackOf(definition) +
         "\" ch:stroke=\"custom('" + spotName + "' 0)\" ch:stroke-overprint=\"true\" " + more + "/>";
}

std::string layer(const std::string& title, const std::string& content, const std::string& more = {}) {
  return "<g inkscape:groupmode=\"layer\" inkscape:label=\"" + title + "\" " + more + ">" + content + "</g>";
}

constexpr char kPrint[] =
    R"svg(<defs><linearGradient id="g"><stop offset="0" stop-color="#f00"/><stop offset="1" stop-color="#00f"/>
</linearGradient></defs><rect x="10" y="10" width="200" height="150" fill="url(#g)"/>
<g opacity="0.5"><circle cx="150" cy="150" r="60" fill="#0a0"/><circle cx="190" cy="150" r="60" fill="#00f"/></g>
<text x="30" y="250" font-family="DejaVu Sans" font-size="24">Cut here</text>)svg";

class PdfExportTest : public testing::Test {
 protected:
  PdfFile exported(const std::string& svg, const PdfOptions& options = {}) {
    auto made = exportPdf(svg, nullptr, options);
    if (const std::string* reason = std::get_if<std::string>(&made)) {
      ADD_FAILURE() << *reason;
      return {};
    }
    return std::move(std::get<PdfFile>(made));
  }
  std::string write(const std::string& name, const std::string& bytes) { return scratch_.write(name, bytes); }

  ScratchFolder scratch_;
};

// What mutool finds of each stroke in a Separation: layer, space, tint, width, overprint.
std::vector<std::string> strokes(const std::string& trace) {
  const std::regex pattern(
      "<layer name=\"([^\"]*)\"|<stroke_path linewidth=\"([^\"]*)\".*colorspace=\"(Separation[^\"]*)\" "
      "color=\"([^\"]*)\".* op=\"([01])\"");
  std::vector<std::string> found;
  std::string current;
  for (std::sregex_iterator at(trace.begin(), trace.end(), pattern), end; at != end; ++at) {
    if ((*at)[1].matched) {
      current = (*at)[1];
    } else {
      found.push_back(current + ": " + (*at)[3].str() + " " + (*at)[4].str() + ", " + (*at)[2].str() +
                      " pt, op " + (*at)[5].str());
    }
  }
  return found;
}

TEST_F(PdfExportTest, LinesKeepNameWidthAndOverprint) {
  struct Case {
    const char* name;
    const char* definition;
    const char* space;
  };
  const Case cases[] = {{"CutContour", "cmyk(0 1 0 0)", "DeviceCMYK"},
                        {"Schnitt durch (2)", "rgb(1 0 0)", "DeviceRGB"},
                        {"a/b #2 %20 [x] {y}", "rgb(1 0 0)", "DeviceRGB"},
                        {"\u5207\u308b \U0001F600", "lab(50 60 -20)", "Lab"}};
  for (const Case& row : cases) {
    const std::string svg = drawing(
        spot(row.name, row.definition),
        layer("Print", kPrint) + layer(row.name, line(row.name, "stroke-width=\"2.5\"", row.definition)));
    const std::string file = write("lines.pdf", exported(svg).bytes);
    EXPECT_THAT(said("qpdf --check " + file), testing::Not(HasSubstr("WARNING"))) << row.name;
    const std::string space = std::string("Separation(") + row.space + "," + row.name + ")";
    const std::vector<std::string> found = strokes(said("mutool trace " + file));
    ASSERT_FALSE(found.empty()) << row.name;
    EXPECT_EQ(found[0], std::string(row.name) + ": " + space + " 1, 2.5 pt, op 1");
  }
}

TEST_F(PdfExportTest, LayersKeepOrderStateAndSteps) {
  PdfOptions options;
  options.steps["Cut"] = "Structural/Cutting";
  const std::string svg =
      drawing(spot("Cut"), layer("Print", kPrint) + layer("Secret", kPrint, "style=\"display:none\"") +
                               layer("Cut", line("Cut"), "sodipodi:insensitive=\"true\"") +
                               layer("Cut", line("Cut")));
  const std::string file = write("layers.pdf", exported(svg, options).bytes);
  const std::string json = said("qpdf --json=2 --json-key=qpdf " + file);
  EXPECT_THAT(json, HasSubstr("\"/GTS_ProcStepsType\": \"/Cutting\""));
  const std::string groups = said("mutool show -g " + file + " grep | grep -c '/Type/OCG'");
  EXPECT_EQ(groups, "4\n") << "equal titles stay apart";
  EXPECT_THAT(said("mutool draw -F txt " + file), testing::Not(HasSubstr("Cut here\nCut here")))
      << "one is hidden";
  EXPECT_THAT(said("mutool draw -F txt " + file), HasSubstr("Cut here")) << "text is text";
}

std::string withoutDate(const std::string& tiff) {
  return std::regex_replace(tiff, std::regex("20\\d\\d:\\d\\d:\\d\\d \\d\\d:\\d\\d:\\d\\d"), "");
}

TEST_F(PdfExportTest, CuttingLinesLeaveTheProcessPlatesAlone) {
  const std::string with = drawing(spot("Cut"), layer("Print", kPrint) + layer("Cut", line("Cut")));
  const std::string without = drawing(spot("Cut"), layer("Print", kPrint));
  const auto plates = [&](const std::string& name, const std::string& svg) {
    const std::string file = write(name + ".pdf", exported(svg).bytes);
    return said("cd " + scratch_.path.string() +
                " && gs -q -dBATCH -dNOPAUSE -sDEVICE=tiffsep -sCompression=none -r50 -o " + name +
                "%d.tif " + file);
  };
  ASSERT_EQ(plates("with", with), "");
  ASSERT_EQ(plates("without", without), "");
  EXPECT_TRUE(scratch_.has("with1(Cut).tif"));
  for (const char* plate : {"Cyan", "Magenta", "Yellow", "Black"}) {
    const std::string end = std::string("1(") + plate + ").tif";
    const std::string bytes = scratch_.read("with" + end);
    EXPECT_FALSE(bytes.empty());
    EXPECT_TRUE(withoutDate(bytes) == withoutDate(scratch_.read("without" + end))) << plate;
  }
}

TEST_F(PdfExportTest, PagesHaveTheirTrueSize) {
  const std::string small = write("small.pdf", exported(drawing({}, kPrint, "100mm")).bytes);
  EXPECT_THAT(said("pdfinfo " + small), testing::ContainsRegex("Page size: *283\\.4[67]"));
  const std::string large =
      write("large.pdf", exported(drawing(spot("Cut"), layer("Cut", line("Cut")), "36000pt")).bytes);
  EXPECT_THAT(said("mutool show " + large + " pages/1/UserUnit"), HasSubstr("3"));
  EXPECT_THAT(said("mutool show " + large + " pages/1/MediaBox"), HasSubstr("12000"));
}

TEST_F(PdfExportTest, ThingsThatAreOddComeThrough) {
  std::string colours, lines;
  for (int i = 0; i < 500; ++i) {
    colours += spot("Spot " + std::to_string(i));
    lines += line("Spot " + std::to_string(i));
  }
  const std::string cases[] = {
      drawing(colours, layer("All", lines)),
      drawing(spot("Cut"), layer("Cut",
                                 "<path d=\"M5 5h0\" fill=\"none\" stroke=\"#f00\" stroke-linecap=\"round\" "
                                 "ch:stroke=\"custom('Cut' 0)\"/>")),
      drawing(spot("Cut"), layer("Cut", "<g transform=\"translate(9e6 9e6)\">" + line("Cut") + "</g>")),
      drawing(spot("Cut"),
              layer("Cut", "<g clip-path=\"url(#none)\" mask=\"url(#none)\">" + line("Cut") + "</g>")),
      drawing({}, {})};
  for (const std::string& svg : cases) {
    const PdfFile file = exported(svg);
    EXPECT_THAT(said("qpdf --check " + write("odd.pdf", file.bytes)), testing::Not(HasSubstr("exit")));
    EXPECT_TRUE(exported(svg).bytes == file.bytes) << "the same drawing gives the same bytes";
  }
}

// The proof compares with the drawing that the file is not of.
TEST_F(PdfExportTest, TheProofNamesWhatDiffers) {
  const std::string svg = drawing(spot("Cut") + spot("Kiss"), layer("A", line("Cut", "id=\"edge\"")));
  const std::string bytes = exported(svg).bytes;
  struct Case {
    std::string from, to, difference;
  };
  const Case cases[] = {
      {"", "", ""},
      {"custom('Cut' 0)", "custom('Kiss' 0)", "\"edge\" has the colour \"Cut\", not \"Kiss\""},
      {"ch:stroke-overprint=\"true\"", "", "\"edge\" overprints"},
      {"id=\"edge\"", "id=\"edge\" stroke-width=\"2\"", "\"edge\" has another width"},
      {"M20 20H280", "M20 20H281", "\"edge\" lies elsewhere or has another size"},
      {"inkscape:label=\"A\"", "inkscape:label=\"B\"", "the layers are not as in the drawing"},
      {"width=\"300pt\"", "width=\"301pt\" preserveAspectRatio=\"none\"", "has another size"},
      {"</g>", line("Cut", "id=\"more\"") + "</g>", "\"more\" is missing"}};
  for (const Case& row : cases) {
    std::string other = svg;
    if (!row.from.empty()) other.replace(other.find(row.from), row.from.size(), row.to);
    auto read = readSvg(other, nullptr);
    ASSERT_TRUE(std::holds_alternative<SvgDrawing>(read)) << row.to;
    EXPECT_THAT(proofOf(bytes, std::get<SvgDrawing>(read), {}), HasSubstr(row.difference)) << row.to;
  }
}

TEST_F(PdfExportTest, WhatInksCostIsSaid) {
  const PdfFile file =
      exported(drawing(spot("Cut"), layer("Cut",
                                          "<text x=\"30\" y=\"50\" id=\"word\" fill=\"none\" "
                                          "stroke=\"#ff0000\" ch:stroke=\"custom('Cut' 0)\">"
                                          "Cut</text>")));
  EXPECT_THAT(file.remarks, testing::Each(HasSubstr("\"word\" is painted with inks")));
}

}  // namespace
}  // namespace host
