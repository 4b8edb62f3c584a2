// PDF files as tools of others see them.
#include <gmock/gmock.h>

#include <cstdio>
#include <cstdlib>
#include <regex>
#include <string>
#include <vector>

#include "PdfExport.h"
#include "PdfProof.h"
#include "ScratchFolder.h"
#include "SvgFallbackColour.h"
#include "SvgHostText.h"
#include "SvgPicture.h"

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

// The same bytes, damaged behind their maker's back.
TEST_F(PdfExportTest, TheProofSeesDamage) {
  const std::string svg = drawing(
      spot("Cut"),
      layer(
          "A",
          line("Cut", "id=\"edge\" stroke-width=\"2.5\"") +
              "<path id=\"area\" d=\"M1 1H9V9Z M3 3H5V5Z\" fill=\"#ff0000\" ch:fill=\"custom('Cut' 0)\"/>"));
  const auto read = readSvg(svg, nullptr);
  const std::string whole = write("whole.pdf", exported(svg).bytes);
  ASSERT_EQ(said("qpdf --qdf --object-streams=disable " + whole + " " + scratch_.file("plain.pdf")), "");
  const std::string plain = scratch_.read("plain.pdf");
  struct Case {
    std::string from, to, difference;
  };
  const Case cases[] = {{"2.5 w", "2.6 w", "\"edge\" has another width"},
                        {"/Separation\n  /Cut", "/Separation\n  /Cat", "the colour \"Cat\", not \"Cut\""},
                        {"/OP true", "/OP null", "\"edge\" does not overprint"},
                        {"20 280 m", "20 281 m", "\"edge\" lies elsewhere"},
                        {"1 299 m", "2 299 m", "\"area\" lies elsewhere"},
                        {"h\nf\n", "h\nn\n", "\"area\" is missing"},
                        {"/Name (A)", "/Name (B)", "the layers are not as"}};
  for (const Case& row : cases) {
    std::string bytes = plain;
    const std::size_t at = bytes.find(row.from);
    ASSERT_NE(at, std::string::npos) << row.from;
    bytes.replace(at, row.from.size(), row.to);
    EXPECT_THAT(proofOf(bytes, std::get<SvgDrawing>(read), {}), HasSubstr(row.difference)) << row.to;
  }
}

TEST_F(PdfExportTest, PrintAndCutAreApartAndMarksInBoth) {
  const std::string both =
      "<rect width=\"9\" height=\"9\" fill=\"#00f\" stroke=\"#ff0000\" "
      "ch:stroke=\"custom('Cut' 0)\"/>";
  const std::string svg =
      drawing(spot("Cut"), layer("Print", kPrint) + layer("Cut", line("Cut")) + layer("Mixed", both) +
                               layer("Regmark", "<circle r=\"9\" fill=\"#000\" ch:fill=\"gray(1)\"/>"));
  const std::pair<PdfPart, std::string> cases[] = {{PdfPart::Whole, "Regmark Mixed Cut Print, 2 cuts"},
                                                   {PdfPart::Print, "Regmark Mixed Print, 0 cuts"},
                                                   {PdfPart::Cut, "Regmark Mixed Cut, 2 cuts"}};
  for (const auto& [part, outcome] : cases) {
    PdfOptions options;
    options.part = part;
    options.steps["Regmark"] = "Structural/Cutting";
    const std::string file = write("part.pdf", exported(svg, options).bytes);
    std::string found;
    for (const char* title : {"Regmark", "Mixed", "Cut", "Print"}) {
      const std::string groups = said("qpdf --json=2 --json-key=qpdf " + file);
      if (groups.find("\"/Name\": \"u:" + std::string(title)) != std::string::npos)
        found += (found.empty() ? "" : " ") + std::string(title);
      EXPECT_THAT(groups, testing::Not(HasSubstr("GTS_Metadata"))) << "marks must print";
    }
    found += ", " + std::to_string(strokes(said("mutool trace " + file)).size()) + " cuts";
    EXPECT_EQ(found, outcome);
  }
}

TEST_F(PdfExportTest, SpotNamesThatCannotBeAreRefused) {
  const std::pair<std::string, std::string> cases[] = {
      {spot("Cut") + spot("Cut", "cmyk(0 1 0 0)"),
       "\"Cut\" is defined both as rgb(1 0 0) and as cmyk(0 1 0 0)"},
      {spot("None"), "cannot be named \"None\""},
      {spot("All"), "cannot be named \"All\""}};
  for (const auto& [swatches, reason] : cases) {
    const auto made = exportPdf(drawing(swatches, kPrint), nullptr, {});
    ASSERT_TRUE(std::holds_alternative<std::string>(made)) << swatches;
    EXPECT_THAT(std::get<std::string>(made), HasSubstr(reason));
  }
}

// The share of pixels in which a page looks otherwise than on the canvas.
double shareOfOtherPixels(const std::string& svg, const std::string& ppm) {
  const auto read = readSvg(svg, nullptr);
  const auto picture = SvgPicture::load(pictureSource(std::get<SvgDrawing>(read), svg, {}));
  int width = 0, height = 0, begin = 0;
  if (std::sscanf(ppm.c_str(), "P6 %d %d 255%n", &width, &height, &begin) != 2) return 1;
  std::vector<std::uint8_t> canvas(static_cast<std::size_t>(width * height * 4));
  const std::string reason =
      std::get<SvgPicture>(picture).draw({canvas.data(), width, height, width * 4},
                                         {0, 0, static_cast<double>(width), static_cast<double>(height)});
  EXPECT_EQ(reason, "");
  int others = 0;
  for (int i = 0; i < width * height; ++i) {
    bool differs = false;
    for (int channel = 0; channel < 3; ++channel) {
      const int a = static_cast<unsigned char>(ppm[static_cast<std::size_t>(begin + 1 + i * 3 + channel)]);
      const int b = canvas[static_cast<std::size_t>(i * 4 + 2 - channel)];
      differs |= std::abs(a - b) > 40;
    }
    others += differs ? 1 : 0;
  }
  return others / static_cast<double>(width * height);
}

constexpr char kFadingInks[] =
    R"svg(<defs><linearGradient id="h"><stop stop-color="#0f0"/><stop offset="1" stop-color="#00f"/></linearGradient>
<marker id="m" markerWidth="4" markerHeight="4" refX="2" refY="2"><circle cx="2" cy="2" r="2" fill="#00f"/></marker>
</defs><g opacity="0.5"><rect x="10" y="10" width="80" height="80" fill="#ff0000" ch:fill="custom('Gold' 0)"/>
<rect x="50" y="50" width="80" height="80" fill="#0a0"/><rect x="9" y="99" width="40" height="40" fill="url(#h)"/></g>
<rect opacity="0.5" x="160" y="20" width="100" height="60" fill="#00f" stroke="#ff0000" stroke-width="20"
ch:stroke="custom('Gold' 0)"/><g opacity="0.5"><rect opacity="0.7" x="160" y="120" width="100" height="60"
fill="url(#h)" stroke="#ff0000" stroke-width="9" ch:stroke="custom('Gold' 0)"/></g><path d="M20 200H120V280"
marker-start="url(#m)" marker-mid="url(#m)" fill="none" stroke="#ff0000" stroke-width="4"
ch:stroke="custom('Gold' 0)"/>)svg";

TEST_F(PdfExportTest, PagesLookLikeTheCanvas) {
  const std::string inks =
      drawing(spot("Gold") + spot("Cut"), layer("Inks", kFadingInks) + layer("Cut", line("Cut")));
  EXPECT_TRUE(exported(inks).remarks.empty());
  for (const std::string& svg : {inks, drawing({}, layer("Print", kPrint))}) {
    const std::string file = write("look.pdf", exported(svg).bytes);
    EXPECT_EQ(said("qpdf --check " + file + " >/dev/null"), "");
    ASSERT_EQ(said("pdftoppm -r 72 -singlefile " + file + " " + scratch_.file("look")), "");
    EXPECT_LT(shareOfOtherPixels(svg, scratch_.read("look.ppm")), 0.005);
  }
}

TEST_F(PdfExportTest, WhatInksCostIsSaid) {
  const PdfFile file =
      exported(drawing(spot("Cut"), layer("Cut",
                                          "<text x=\"30\" y=\"50\" id=\"word\" fill=\"none\" "
                                          "stroke=\"#ff0000\" ch:stroke=\"custom('Cut' 0)\">"
                                          "Cut</text>")));
  EXPECT_THAT(file.remarks, testing::ElementsAre(HasSubstr("\"word\" is painted with inks")));
  const PdfFile other = exported(drawing({},
                                         "<text id=\"t\" font-family=\"'No Such', serif\">Cut</text>"
                                         "<text font-family=\"DejaVu Sans\">here</text>"));
  EXPECT_THAT(other.remarks, testing::ElementsAre(HasSubstr("\"t\" is set in the font \"No Such\"")));
}

}  // namespace
}  // namespace host
