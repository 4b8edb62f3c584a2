// PDF files as tools of others see them.
#include <gmock/gmock.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <regex>
#include <string>
#include <tuple>
#include <vector>

#include "DrawingMaker.h"
#include "PdfExport.h"
#include "PdfProof.h"
#include "ScratchFolder.h"
#include "SvgFallbackColour.h"
#include "SvgHostText.h"
#include "SvgPicture.h"
#include "SvgWords.h"

namespace host {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

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
                    const std::string& side = "300pt", const std::string& more = {}) {
  return svgText("width='" + side + "' height='" + side + "' viewBox='0 0 300 300'" + more, swatches,
                 content);
}

// The colour that other programs are shown.
std::string fallbackOf(const std::string& definition, double tint = 0) {
  Document document;
  const CustomColorId id = document.addCustomColor("any", *definitionFrom(definition));
  char text[8];
  std::snprintf(text, sizeof text, "#%06x", fallbackRgb(testing::customPaint(document, id, tint), document));
  return text;
}

std::string line(const std::string& spotName, const std::string& more = {},
                 const std::string& definition = "rgb(1 0 0)") {
  return "<path d='M20 20H280V280Z' fill='none'" + inked("stroke", spotName, fallbackOf(definition)) +
         "ch:stroke-overprint='true' " + more + "/>";
}

constexpr char kPrint[] =
    R"svg(<defs><linearGradient id="g"><stop offset="0" stop-color="#f00"/><stop offset="1" stop-color="#00f"/>
</linearGradient></defs><rect x="10" y="10" width="200" height="150" fill="url(#g)"/>
<g opacity="0.5"><circle cx="150" cy="150" r="60" fill="#0a0"/><circle cx="190" cy="150" r="60" fill="#00f"/></g>
<text x="30" y="250" font-family="DejaVu Sans" font-size="24">Cut here</text>)svg";

class PdfExportTest : public ::testing::Test {
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
    layers += layer(name, line(written, "stroke-width='2.5'", row.definition));
    lines.push_back(name + ": Separation(" + row.space + "," + name + ") 1, 2.5 pt, op 1");
  }
  const std::string file = write("lines.pdf", exported(drawing(swatches, layers)).bytes);
  EXPECT_THAT(said("qpdf --check " + file), Not(HasSubstr("WARNING")));
  EXPECT_EQ(pathsOf(said("mutool trace " + file)), lines);
}

TEST_F(PdfExportTest, PathsKeepColourWidthAndOverprint) {
  const auto box = [](const std::string& paint) { return "<path d='M9 9h9v9z' " + paint + "/>"; };
  const auto filled = [&](const std::string& fallback, const std::string& paint) {
    return box("fill='" + fallback + "' ch:fill=\"" + paint + "\"");
  };
  const std::string gold = "cmyk(0 0.2 0.8 0)", sea = "lab(50 60 -20)";
  const std::string swatches = spot("Cut") + spot("Gold", gold) + "<ch:color name='Sea' definition='" + sea +
                               "'/><ch:color name='[All]' definition='rgb(0 0 0)' registration='true'/>";
  const std::string print =
      box("fill='#f00' stroke='#00f' stroke-width='3'") + filled("#00ffff", "cmyk(1 0 0 0)") +
      filled("#808080", "gray(0.5)") + filled(fallbackOf(gold, 0.5), "custom('Gold' 0.5)") +
      filled(fallbackOf(sea), "custom('Sea' 0)") + filled("#000000", "custom('[All]' 0)");
  const std::string cut = box(inked("fill", "Cut")) +
                          box("fill='none' stroke-width='2' transform='scale(2)'" + inked("stroke", "Cut"));
  const std::string file =
      write("paths.pdf", exported(drawing(swatches, layer("Print", print) + layer("Cut", cut) +
                                                        layer("Top", box("fill='#f00'"))))
                             .bytes);
  EXPECT_THAT(
      pathsOf(said("mutool trace " + file)),
      ElementsAre("Print: DeviceRGB 1 0 0, fill, op 0", "Print: DeviceRGB 0 0 1, 3 pt, op 0",
                  "Print: DeviceCMYK 1 0 0 0, fill, op 0", "Print: DeviceGray .5, fill, op 0",
                  "Print: Separation(DeviceCMYK,Gold) .5, fill, op 0", "Print: Lab 50 60 -20, fill, op 0",
                  "Print: Separation(DeviceCMYK,All) 1, fill, op 0",
                  "Cut: Separation(DeviceRGB,Cut) 1, fill, op 1",
                  "Cut: Separation(DeviceRGB,Cut) 1, 4 pt, op 1", "Top: DeviceRGB 1 0 0, fill, op 0"));
}

std::string withoutDate(const std::string& tiff) {
  return std::regex_replace(tiff, std::regex("20\\d\\d:\\d\\d:\\d\\d \\d\\d:\\d\\d:\\d\\d"), "");
}

// Whatever the lines are made of, and although one of them does not ask for overprint.
TEST_F(PdfExportTest, CuttingLinesLeaveTheProcessPlatesAlone) {
  const std::string fill = inked("fill", "Cut");
  const std::string print = std::string(kPrint) +
                            "<path d='M9 9h200v99z' style='mix-blend-mode:screen' fill='#08f'/>"
                            "<path d='M20 200h200v60h-200z' fill='#00ffff' ch:fill='cmyk(1 0 0 0)'/>";
  const std::string cut = line("Cut", "stroke-width='5'") + "<path d='M120 30h60v200z'" + fill +
                          "/><g opacity='0.5'><path d='M9 90h200v99z'" + fill + "/>" + line("Cut") +
                          "</g><text y='240' font-size='90'" + fill + ">Cut</text>";
  const std::string svg = drawing(spot("Cut"), layer("Print", print) + layer("Cut", cut));
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
  const std::tuple<const char*, const char*, const char*> cases[] = {{"100mm", "null\n", "283.4"},
                                                                     {"14400pt", "null\n", "14400"},
                                                                     {"36000pt", "3\n", "12000"},
                                                                     {"990000pt", "69\n", "14347.8"}};
  for (const auto& [size, unit, side] : cases) {
    const std::string cut = layer("Cut", line("Cut", "stroke-width='0.123'"));
    const std::string file = write("size.pdf", exported(drawing(spot("Cut"), cut, size)).bytes);
    EXPECT_EQ(said("mutool show " + file + " pages/1/UserUnit"), unit);
    EXPECT_THAT(said("mutool show " + file + " pages/1/MediaBox"), HasSubstr(side));
  }
}

// The proof compares with the drawing that the file is not of.
TEST_F(PdfExportTest, TheProofNamesWhatDiffers) {
  const std::string svg = drawing(spot("Cut") + spot("Kiss"), layer("A", line("Cut", "id='edge'")));
  const std::string bytes = exported(svg).bytes;
  const std::tuple<std::string, std::string, std::string> cases[] = {
      {"", "", ""},
      {"custom('Cut' 0)", "custom('Kiss' 0)", "\"edge\" has the colour \"Cut\", not \"Kiss\""},
      {"ch:stroke-overprint='true'", "", "\"edge\" overprints"},
      {"id='edge'", "id='edge' stroke-width='2'", "\"edge\" has another width"},
      {"M20 20H280", "M20 20H281", "\"edge\" lies elsewhere or has another size"},
      {"inkscape:label='A'", "inkscape:label='B'", "the layers are not as in the drawing"},
      {"inkscape:label='A'", "inkscape:label='A' style='display:none'", "the layers are not as in"},
      {"width='300pt'", "width='301pt' preserveAspectRatio='none'", "has another size"},
      {"</g>", line("Cut", "id='more'") + "</g>", "\"more\" is missing"}};
  for (const auto& [from, to, difference] : cases) {
    std::string other = svg;
    if (!from.empty()) other.replace(other.find(from), from.size(), to);
    auto read = readSvg(other, nullptr);
    ASSERT_TRUE(std::holds_alternative<SvgDrawing>(read)) << to;
    EXPECT_THAT(proofOf(bytes, std::get<SvgDrawing>(read), {}), HasSubstr(difference)) << to;
  }
}

constexpr std::size_t kSide = 300, kCell = 5;  // dots

// Means of red, green and blue in cells of some dots each: edges may be smoothed in other ways.
template <typename Dots>
std::vector<int> coarse(Dots dots) {
  constexpr std::size_t kCells = kSide / kCell;
  std::vector<int> means(kCells * kCells * 3);
  for (std::size_t i = 0; i < kSide * kSide * 3; ++i) {
    const std::size_t x = i / 3 % kSide, y = i / 3 / kSide, cell = y / kCell * kCells + x / kCell;
    means[cell * 3 + i % 3] += dots(i / 3, i % 3);
  }
  for (int& mean : means) mean /= static_cast<int>(kCell * kCell);
  return means;
}

std::vector<int> canvasOf(const std::string& svg) {
  const auto read = readSvg(svg, nullptr);
  const auto loaded = SvgPicture::load(pictureSource(std::get<SvgDrawing>(read), svg, {}));
  std::vector<std::uint32_t> dots(kSide * kSide);
  auto* const bytes = reinterpret_cast<std::uint8_t*>(dots.data());
  constexpr int kWidth = kSide;
  EXPECT_EQ(std::get<SvgPicture>(loaded).draw({bytes, kWidth, kWidth, kWidth * 4}, {0, 0, kSide, kSide}), "");
  return coarse([&](std::size_t dot, std::size_t channel) {
    return static_cast<int>(dots[dot] >> (16 - 8 * channel) & 255);
  });
}

// Where readers of PDF part from SVG or from each other.
TEST_F(PdfExportTest, AllReadersDrawWhatTheCanvasShows) {
  const std::string cut = inked("stroke", "Cut"),
                    difference = "style='mix-blend-mode:difference' fill='#09c'";
  const std::string dots =  // at a scale at which the canvas does not round them away
      "<g fill='none' stroke-width='3' stroke-linecap='square' stroke='#00f' transform='scale(10)'><path "
      "d='M4 4z'" +
      cut + "/><path d='M10 4h0M16 2v4'" + cut + "/><path d='M24 4z' transform='rotate(45 24 4)'" + cut +
      "/><path d='M4 12z' stroke-dasharray='.4'/><path d='M4 20h19' stroke-width='2' stroke-dasharray='0 5'" +
      cut +
      "/><path d='M4 26h18' stroke-dasharray='0 5 1' opacity='.5'/><path d='M16 12z'/>"
      "<path d='M22 12h5' paint-order='stroke' fill='#0a0'/></g>";
  const auto bar = [](int y, const std::string& more) {
    return "<path d='M20 " + std::to_string(y) + "h260v20h-260z' " + more + "/>";
  };
  const auto group = [](const std::string& look, const std::string& content) {
    return "<g style='" + look + "'>" + content + "</g>";
  };
  const std::string ink = "<path d='M200 140h60v90h-60z'" + inked("fill", "Cut") + "/>";
  const std::string blends = "<path d='M0 0h120v300h-120z' fill='#fd8'/>" +
                             bar(20, "style='mix-blend-mode:screen' fill='#09c'") + bar(50, difference) +
                             group("isolation:isolate", bar(80, difference)) +
                             group("isolation:isolate", ink + bar(110, difference)) +
                             group("mix-blend-mode:multiply", bar(240, difference)) +
                             group("opacity:.5", ink + bar(270, difference));
  const std::string file = scratch_.file("look.pdf"), picture = scratch_.file("look.ppm");
  for (const auto& [content, look] :
       {std::pair(dots, ""), std::pair(blends, ""), std::pair(blends, " style='isolation:isolate'")}) {
    const std::string svg = drawing(spot("Cut"), layer("A", content), "300pt", look);
    write("look.pdf", exported(svg).bytes);
    const std::vector<int> canvas = canvasOf(svg);
    for (const std::string& command :
         {"pdftoppm -r 72 " + file + " > " + picture, "mutool draw -q -r 72 -o " + picture + " " + file,
          "gs -q -dBATCH -dNOPAUSE -dGraphicsAlphaBits=4 -sDEVICE=ppmraw -r72 -o " + picture + " " + file}) {
      said(command);
      const std::string ppm = scratch_.read("look.ppm");
      constexpr std::size_t kBytes = kSide * kSide * 3;
      ASSERT_GT(ppm.size(), kBytes) << command;
      const std::string_view body = std::string_view(ppm).substr(ppm.size() - kBytes);
      const std::vector<int> drawn = coarse([&](std::size_t dot, std::size_t channel) {
        return int{static_cast<std::uint8_t>(body[dot * 3 + channel])};
      });
      const auto isNear = [](int a, int b) { return std::abs(a - b) <= 90; };
      EXPECT_TRUE(std::equal(canvas.begin(), canvas.end(), drawn.begin(), isNear)) << command << "\n" << svg;
    }
  }
}

TEST_F(PdfExportTest, PrintAndCutAreApartAndMarksInBoth) {
  const std::string both = "<rect width='9' height='9' fill='#00f'" + inked("stroke", "Cut") + "/>";
  const std::string svg =
      drawing(spot("Cut"), layer("Print", kPrint) + layer("Secret", kPrint, "style='display:none'") +
                               layer("Cut", line("Cut")) + layer("Mixed", both) +
                               layer("Regmark", "<circle r='9' fill='#000' ch:fill='gray(1)'/>"));
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
      EXPECT_THAT(groups, Not(HasSubstr("GTS_Metadata"))) << "marks must print";
    }
    std::size_t cuts = 0;
    for (const std::string& path : pathsOf(said("mutool trace " + file)))
      cuts += path.find("Separation") != path.npos;
    found += ", " + std::to_string(cuts) + " cuts";
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
  const std::string ink = inked("stroke", "Ink"), box = "<path d='M9 9h90v90z' id='box'" + ink;
  const std::pair<std::string, std::string> cases[] = {
      {box + "/>", ""},
      {"<text y='50' id='word'" + ink + ">Cut</text>",
       "\"word\" is painted with inks and loses that it was text"},
      {box + "style='paint-order:stroke'/>", "\"box\" is painted with inks and loses the order"},
      {box + "stroke-dasharray='1 2 3 4 5 6 7 8'/>", "the end of its dash pattern"},
      {box + "transform='scale(2 1)'/>", "the stretching of its stroke"},
      {line("Cut", "transform='scale(2 1)'"), ""},
      {line("Cut", "style='mix-blend-mode:multiply'"), "its blend mode"},
      {"<g style='isolation:isolate'><path d='M9 9h9z' style='mix-blend-mode:screen'/>" + line("Cut") +
           "</g>",
       "its isolation"},
      {"<g opacity='0.5'>" + line("Cut") + line("Cut") + "</g>", "that it fades as one"},
      {"<text id='t' font-family='No Such, serif'>Cut</text>", "\"t\" is set in the font \"No Such\""},
      {"<text font-family='DejaVu Sans'>here</text>", ""}};
  for (const auto& [content, remark] : cases) {
    const PdfFile file = exported(drawing(spot("Cut") + spot("Ink"), layer("Cut", content)));
    EXPECT_EQ(file.remarks.size(), remark.empty() ? 0U : 1U) << content;
    for (const std::string& each : file.remarks) EXPECT_THAT(each, HasSubstr(remark));
  }
}

}  // namespace
}  // namespace host
