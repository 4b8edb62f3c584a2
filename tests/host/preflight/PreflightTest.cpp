// Small drawings, each with exactly the faults that it was drawn with.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Preflight.h"
#include "SvgWords.h"

namespace host {
namespace {

using testing::ElementsAreArray;
using testing::HasSubstr;

const std::string kCutPaint = " fill='none'" + inked("stroke", "Through Cut");

std::string cut(const std::string& data, const std::string& name = {}) {
  return "<path" + kCutPaint + " inkscape:label='" + name + "' d='" + data + "'/>";
}
std::string crease(const std::string& data) {
  return "<path fill='none'" + inked("stroke", "Crease", "#0000ff") + " d='" + data + "'/>";
}
// A dot of 6 mm.
std::string mark(double x, double y) {
  return "<circle inkscape:label='brevia Regmark' r='3' cx='" + std::to_string(x) + "' cy='" +
         std::to_string(y) + "'/>";
}
const std::string kFourMarks = mark(20, 20) + mark(180, 20) + mark(180, 180) + mark(20, 180);

// 200 by 200 mm, in millimetres.
std::shared_ptr<Document> drawn(const std::string& layers) {
  return documentOf(svgText("width='200mm' height='200mm' viewBox='0 0 200 200'",
                            spot("Through Cut") + spot("Crease", "rgb(0 0 1)"), layers));
}

struct Case {
  const char* name;
  std::string layers;
  std::vector<std::string> kinds;
  const char* sentence;  // a part of the first
  std::size_t art = 1;   // in the first
};

std::vector<Case> cases() {
  const std::string square = "M40 40h60v60h-60z";
  const std::string squareInFrame = layer("Through Cut", cut(square));
  std::string bundle;
  for (int i = 0; i < 500; ++i) bundle += cut("M10 10h40v40h-40z");
  const std::string withFifth = layer("Regmark", kFourMarks + mark(60, 180));
  return {
      {"clean: print out of reach, text in print, art up to a mark's clear zone, a name with one more word",
       layer("Print",
             "<text x='90' y='50'>Moin</text><rect x='186' y='14' width='9' height='12'/>"
             "<g sodipodi:insensitive='true'><rect width='9' height='9' style='display:none'/></g>") +
           layer("Through Cut 2", "") + squareInFrame + withFifth,
       {},
       ""},
      {"nearly closed",
       layer("Through Cut", cut("M10 10h40v40h-40V10.35")),
       {"open-path"},
       "1 path in Through Cut is nearly closed, at (10, 189.6) mm: a gap of 0.35 mm keeps the part attached"},
      {"a crease is open, ends lie on each other, the sheet closes what runs from edge to edge",
       layer("Crease", crease("M10 10h40") + crease("M10 30h40v40h-40v-39")) +
           layer("Through Cut", cut("M60 10h9v9h-9v-9") + cut("M-3 150h150v53")),
       {},
       ""},
      {"open, one of them from an edge",
       layer("Through Cut", cut("M10 10h40v40") + cut("M0 100h40v40")),
       {"open-path"},
       "2 paths in Through Cut are open, the first at (40, 60) mm",
       2},
      {"doubled: the other way round, otherwise divided, in part, one rising where the other falls",
       layer("Through Cut",
             cut(square) + cut("M100 40h-60v60h60z") + "<circle cx='150' cy='50' r='20'" + kCutPaint + "/>" +
                 cut("M164.142 64.142A20 20 0 0 1 135.858 35.858A20 20 0 0 1 164.142 64.142z") +
                 cut("M100 150h40v20h-40z") + cut("M120 130h40v20.05h-40z") + cut("M10 100h30v30h-30z") +
                 cut("M150 100l40 .04v20h-40z") + cut("M150 100.04l40 -.04v-20h-40z")),
       {"doubled-line"},
       "8 paths in Through Cut lie over each other",
       8},
      {"doubled beside a bundle",
       layer("Through Cut", bundle + cut("M10 10.45h40v40h-40z") + cut("M10 10.52h40v40h-40z")),
       {"doubled-line"},
       "502 paths in Through Cut lie over each other, the first at (10, 189.5) mm for 160 mm",
       502},
      {"crossing, touching and apart by a quarter of a millimetre",
       layer("Through Cut", cut(square) + cut("M30 70h80v40h-80z") + cut("M100 100h20v20h-20z") +
                                cut("M40.25 40.25h59.5v59.5h-59.5z")),
       {},
       ""},
      {"hidden and locked",
       layer("Through Cut", "<g sodipodi:insensitive='true'>" + cut(square) + "</g><g style='display:none'>" +
                                cut("M110 10h9v9h-9z") + cut("M130 10h9v9h-9z") + "</g>"),
       {"out-of-reach", "out-of-reach"},
       "2 paths in Through Cut are hidden",
       2},
      {"hidden layers",
       layer("Through Cut", cut(square), "style='display:none'") +
           layer("Regmark", kFourMarks, "style='display:none'"),
       {"out-of-reach", "out-of-reach", "symmetrical-marks"},
       "1 path in Through Cut is on a hidden layer, at (40, 160) mm"},
      {"blanks and case, and a layer without its color",
       layer("Through Cut", cut(square)) + layer("through\u00A0cut ", "") +
           layer("Kiss  cut", cut("M1 1h9v9h-9z")),
       {"near-miss-name", "near-miss-name", "wrong-layer"},
       "The layer \u201CKiss  cut\u201D is named like a line type"},
      {"on the wrong layer, and wrongly painted on the right one",
       layer("Print", cut(square, "Lid")) + layer("Through Cut", "<rect x='110' width='9' height='9'/>"),
       {"wrong-layer", "wrong-layer"},
       "1 path in Through Cut lies on the layer Print, \u201CLid\u201D at (40, 160) mm"},
      {"out of the frame, or too near to it",
       layer("Through Cut", cut("M2 40h60v60h-60z") + cut("M40 20.5h60v60h-60z") + cut("M40 90h9v9h-9z") +
                                cut("M300 300h9v9h-9z")) +
           withFifth,
       {"outside-marks", "outside-marks"},
       "2 paths in Through Cut leave the frame",
       2},
      {"art in clear zones, a ground of ink, and paper white over it",
       layer("Print",
             "<rect fill='#888' width='100' height='200'/><circle cx='20' cy='20' r='9' fill='#fff'/>"
             "<rect x='174.1' y='24' width='9' height='9'/>") +
           withFifth,
       {"in-clear-zone", "in-clear-zone"},
       "1 of 5 marks has art within 6 mm of the centre, at (180, 180) mm"},
      {"symmetrical", layer("Regmark", kFourMarks), {"symmetrical-marks"}, "The 4 marks look the same", 4},
      {"tiny, and of no length",
       layer("Through Cut", cut("M40 40h60v0.05h0.04v60h-59.84v0.11h-0.2z") + cut("M10 10h9v9v0h-9z")),
       {"tiny-segment", "tiny-segment"},
       "2 segments in Through Cut are shorter than 0.1 mm, at (100, 160) mm"},
      {"text",
       layer("Through Cut", "<text x='9' y='50'>Moin</text>"),
       {"live-text"},
       "1 text in Through Cut"},
  };
}

TEST(Preflight, FindsWhatIsWrongAndNothingElse) {
  for (const Case& row : cases()) {
    const auto document = drawn(row.layers);
    const std::vector<Finding> findings = preflight(*document);
    std::vector<std::string> kinds;
    std::string sentences;
    for (const Finding& finding : findings) {
      kinds.emplace_back(keyOf(finding.kind));
      sentences += finding.sentence + "\n";
    }
    EXPECT_THAT(kinds, ElementsAreArray(row.kinds)) << row.name << "\n" << sentences;
    if (findings.empty()) continue;
    EXPECT_THAT(sentences, HasSubstr(row.sentence)) << row.name;
    EXPECT_EQ(findings.front().art.size(), row.art) << row.name << "\n" << sentences;
  }
}

}  // namespace
}  // namespace host
