// PDF files as tools of others see them.
#include <gmock/gmock.h>

#include <algorithm>
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
                    const std::string& size = "300pt") {
  return R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:ch="urn:x-corvane-host:drawing:1")"
         R"( xmlns:inkscape="http://www.inkscape.org/namespaces/inkscape" width=")" +
         size + "\" height=\"" + size + "\" viewBox=\"0 0 300 300\"><metadata><ch:swatches>" + swatches +
         "</ch:swatches></metadata>" + content + "</svg>";
}

std::string spot(const std::string& name, const std::string& definition = "rgb(1 0 0)") {
  return "<ch:color name=\"" + name + "\" definition=\"" + definition + "\" spot=\"true\"/>";
}

// The colour that other programs are shown.
std::string fallbackOf(const std::string& definition, double tint = 0) {
  Document document;
  AIColor color{};
  color.kind = kCustomColor;
  color.c.c.color =
      makeHandle<AICustomColorHandle>(HandleKind::CustomColor, document.serial(),
                                      document.addCustomColor("any", *definitionFrom(definition)));
  color.c.c.tint = tint;
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

// What mutool finds of each path: layer, colour, width of a stroke, overprint.
std::vector<std::string> pathsOf(const std::string& trace) {
  const std::regex pattern(
      "<layer name=\"([^\"]*)\"|<(fill|stroke)_path (?:linewidth=\"([^\"]*)\")?.*colorspace=\"([^\"]*)\" "
      "color=\"([^\"]*)\".* op=\"([01])\"");
  std::vector<std::string> found;
  std::string current;
  for (std::sregex_iterator at(trace.begin(), trace.end(), pattern), end; at != end; ++at) {
    const std::smatch& match = *at;
    if (match[1].matched) {
      current = match[1];
    } else {
      found.push_back(current + ": " + match[4].str() + " " + match[5].str() + ", " +
                      (match[3].matched ? match[3].str() + " pt" : match[2].str()) + ", op " +
                      match[6].str());
    }
  }
  return found;
}

TEST_F(PdfExportTest, LinesKeepAnyName) {
  struct Case {
    const char* name;
    const char* definition;
    const char* space;
  };
  const Case cases[] = {{"CutContour", "cmyk(0 1 0 0)", "DeviceCMYK"},
                        {"Schnitt durch (2)", "rgb(1 0 0)", "DeviceRGB"},
                        {"a/b #2 %20 [x] {y} ) \\", "rgb(0 0 0)", "DeviceCMYK"},
                        {"\u5207\u308b \U0001F600", "lab(50 60 -20)", "Lab"}};
  std::string swatches, layers;
  std::vector<std::string> lines;
  for (const Case& row : cases) {
    const std::string name = row.name;
    std::string written = name;
    if (const std::size_t at = name.find('\\'); at != std::string::npos) written.insert(at, 1, '\\');
    swatches += spot(name, row.definition);
    layers += layer(name, line(written, "stroke-width=\"2.5\"", row.definition));
    lines.push_back(name + ": Separation(" + row.space + "," + name + ") 1, 2.5 pt, op 1");
  }
  const std::string file = write("lines.pdf", exported(drawing(swatches, layers)).bytes);
  EXPECT_THAT(said("qpdf --check " + file), testing::Not(HasSubstr("WARNING")));
  EXPECT_EQ(pathsOf(said("mutool trace " + file)), lines);
}

TEST_F(PdfExportTest, PathsKeepColourWidthAndOverprint) {
  const auto box = [](const std::string& paint) { return "<path d=\"M9 9h9v9z\" " + paint + "/>"; };
  const auto filled = [&](const std::string& fallback, const std::string& paint) {
    return box("fill=\"" + fallback + "\" ch:fill=\"" + paint + "\"");
  };
  const std::string gold = "cmyk(0 0.2 0.8 0)", sea = "lab(50 60 -20)";
  const std::string swatches = spot("Cut") + spot("Gold", gold) + "<ch:color name=\"Sea\" definition=\"" +
                               sea + "\"/>" +
                               "<ch:color name=\"[All]\" definition=\"rgb(0 0 0)\" registration=\"true\"/>";
  const std::string print =
      box("fill=\"#f00\" stroke=\"#00f\" stroke-width=\"3\"") + filled("#00ffff", "cmyk(1 0 0 0)") +
      filled("#808080", "gray(0.5)") + filled(fallbackOf(gold, 0.5), "custom('Gold' 0.5)") +
      filled(fallbackOf(sea), "custom('Sea' 0)") + filled("#000000", "custom('[All]' 0)");
  const std::string cut = filled(fallbackOf("rgb(1 0 0)"), "custom('Cut' 0)") +
                          box("fill=\"none\" stroke=\"#ff0000\" ch:stroke=\"custom('Cut' 0)\" "
                              "stroke-width=\"2\" transform=\"scale(2)\"");
  const std::string file =
      write("paths.pdf", exported(drawing(swatches, layer("Print", print) + layer("Cut", cut) +
                                                        layer("Top", box("fill=\"#f00\""))))
                             .bytes);
  EXPECT_THAT(
      pathsOf(said("mutool trace " + file)),
      testing::ElementsAre(
          "Print: DeviceRGB 1 0 0, fill, op 0", "Print: DeviceRGB 0 0 1, 3 pt, op 0",
          "Print: DeviceCMYK 1 0 0 0, fill, op 0", "Print: DeviceGray .5, fill, op 0",
          "Print: Separation(DeviceCMYK,Gold) .5, fill, op 0", "Print: Lab 50 60 -20, fill, op 0",
          "Print: Separation(DeviceCMYK,All) 1, fill, op 0", "Cut: Separation(DeviceRGB,Cut) 1, fill, op 1",
          "Cut: Separation(DeviceRGB,Cut) 1, 4 pt, op 1", "Top: DeviceRGB 1 0 0, fill, op 0"));
}

std::string withoutDate(const std::string& tiff) {
  return std::regex_replace(tiff, std::regex("20\\d\\d:\\d\\d:\\d\\d \\d\\d:\\d\\d:\\d\\d"), "");
}

// Whatever the lines are made of, and although one of them does not ask for overprint.
TEST_F(PdfExportTest, CuttingLinesLeaveTheProcessPlatesAlone) {
  const std::string fill = "fill=\"#ff0000\" ch:fill=\"custom('Cut' 0)\"";
  const std::string svg = drawing(
      spot("Cut"),
      layer("Print", std::string(kPrint) + "<path d=\"M20 200h200v60h-200z\" fill=\"#00ffff\" "
                                           "ch:fill=\"cmyk(1 0 0 0)\"/>") +
          layer("Cut", line("Cut", "stroke-width=\"5\"") + "<path d=\"M120 30h60v200z\" " + fill +
                           "/><g opacity=\"0.5\"><path d=\"M9 90h200v99z\" " + fill + "/>" + line("Cut") +
                           "</g><text y=\"240\" font-size=\"90\" " + fill + ">Cut</text>"));
  const auto plates = [&](const std::string& name, PdfPart part) {
    PdfOptions options;
    options.part = part;
    const std::string file = write(name + ".pdf", exported(svg, options).bytes);
    return said("cd " + scratch_.path.string() +
                " && gs -q -dBATCH -dNOPAUSE -sDEVICE=tiffsep -sCompression=none -r50 -o " + name +
                "%d.tif " + file);
  };
  ASSERT_EQ(plates("with", PdfPart::Whole), "");
  ASSERT_EQ(plates("without", PdfPart::Print), "");
  EXPECT_TRUE(scratch_.has("with1(Cut).tif"));
  EXPECT_FALSE(scratch_.has("without1(Cut).tif"));
  for (const char* plate : {"Cyan", "Magenta", "Yellow", "Black"}) {
    const std::string end = std::string("1(") + plate + ").tif";
    const std::string bytes = scratch_.read("with" + end);
    EXPECT_FALSE(bytes.empty());
    EXPECT_TRUE(withoutDate(bytes) == withoutDate(scratch_.read("without" + end))) << plate;
  }
}

TEST_F(PdfExportTest, PagesHaveTheirTrueSize) {
  struct Case {
    const char* size;
    const char* unit;
    const char* side;
  };
  const Case cases[] = {{"100mm", "null", "283.4"},
                        {"14400pt", "null", "14400"},
                        {"36000pt", "3", "12000"},
                        {"990000pt", "69", "14347.8"}};
  for (const Case& row : cases) {
    const std::string cut = layer("Cut", line("Cut", "stroke-width=\"0.123\""));
    const std::string file = write("size.pdf", exported(drawing(spot("Cut"), cut, row.size)).bytes);
    EXPECT_EQ(said("mutool show " + file + " pages/1/UserUnit"), row.unit + std::string("\n"));
    EXPECT_THAT(said("mutool show " + file + " pages/1/MediaBox"), HasSubstr(row.side));
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
      {"inkscape:label=\"A\"", "inkscape:label=\"A\" style=\"display:none\"", "the layers are not as in"},
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

std::size_t countOf(const std::vector<std::string>& texts, const std::string& part) {
  return static_cast<std::size_t>(std::count_if(texts.begin(), texts.end(), [&](const std::string& text) {
    return text.find(part) != std::string::npos;
  }));
}

TEST_F(PdfExportTest, PrintAndCutAreApartAndMarksInBoth) {
  const std::string both =
      "<rect width=\"9\" height=\"9\" fill=\"#00f\" stroke=\"#ff0000\" "
      "ch:stroke=\"custom('Cut' 0)\"/>";
  const std::string svg =
      drawing(spot("Cut"), layer("Print", kPrint) + layer("Secret", kPrint, "style=\"display:none\"") +
                               layer("Cut", line("Cut")) + layer("Mixed", both) +
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
    found += ", " + std::to_string(countOf(pathsOf(said("mutool trace " + file)), "Separation")) + " cuts";
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

TEST_F(PdfExportTest, WhatIsLostIsSaid) {
  const std::string ink = "stroke=\"#ff0000\" ch:stroke=\"custom('Ink' 0)\"";
  const std::string box = "<path d=\"M9 9h90v90z\" id=\"box\" " + ink;
  const std::pair<std::string, std::string> cases[] = {
      {box + "/>", ""},
      {"<text y=\"50\" id=\"word\" " + ink + ">Cut</text>",
       "\"word\" is painted with inks and loses that it was text"},
      {box + " style=\"paint-order:stroke\"/>", "\"box\" is painted with inks and loses the order"},
      {box + " stroke-dasharray=\"1 2 3 4 5 6 7 8\"/>", "the end of its dash pattern"},
      {box + " transform=\"scale(2 1)\"/>", "the stretching of its stroke"},
      {line("Cut", "transform=\"scale(2 1)\""), ""},
      {line("Cut", "style=\"mix-blend-mode:multiply\""), "its blend mode"},
      {"<g opacity=\"0.5\">" + line("Cut") + line("Cut") + "</g>", "that it fades as one"},
      {"<text id=\"t\" font-family=\"'No Such', serif\">Cut</text>", "\"t\" is set in the font \"No Such\""},
      {"<text font-family=\"DejaVu Sans\">here</text>", ""}};
  for (const auto& [content, remark] : cases) {
    const PdfFile file = exported(drawing(spot("Cut") + spot("Ink"), layer("Cut", content)));
    EXPECT_EQ(file.remarks.size(), remark.empty() ? 0U : 1U) << content;
    for (const std::string& each : file.remarks) EXPECT_THAT(each, HasSubstr(remark));
  }
}

}  // namespace
}  // namespace host
