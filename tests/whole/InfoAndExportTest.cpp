// `corvane-host info` and `corvane-host export` as a user runs them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <cstdlib>
#include <nlohmann/json.hpp>

#include "HostProcess.h"

namespace host {
namespace {

using nlohmann::json;
using testing::HasSubstr;

const std::string kExamples = CORVANE_EXAMPLES;

TEST(Info, TellsArtboardsLayersAndArt) {
  const ProcessResult run = runHost({"info", "--json", kExamples + "/two-cards-a4.svg"});
  ASSERT_EQ(run.code, 0) << run.err;
  const json info = json::parse(run.out);
  ASSERT_EQ(info["artboards"].size(), 2U);
  EXPECT_EQ(info["artboards"][1]["name"], "Lebkuchenhaus");
  EXPECT_NEAR(info["artboards"][1]["left"].get<double>(), 220 * 72 / 25.4, 1e-9);
  EXPECT_NEAR(info["artboards"][0]["top"].get<double>(), 297 * 72 / 25.4, 1e-9);
  std::vector<std::string> titles;
  for (const json& layer : info["layers"]) titles.push_back(layer["title"]);
  EXPECT_THAT(titles, testing::ElementsAre("Cut", "Crease", "Artwork"));
}

TEST(Info, ListsWhatWasNotUnderstoodWithElementIdAndReason) {
  const ScratchFolder scratch;
  const std::string drawing = scratch.write(
      "bad.svg",
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100mm\" height=\"100mm\" viewBox=\"0 0 100 100\">\n"
      "<path id=\"half\" d=\"M10 10 L20 20 L oops\" stroke=\"#000\"/>\n</svg>");
  const ProcessResult words = runHost({"info", drawing});
  EXPECT_EQ(words.code, 0);
  EXPECT_THAT(words.out, HasSubstr("line 2, <path> \"half\": "));
  const json info = json::parse(runHost({"info", "--json", drawing}).out);
  EXPECT_EQ(info["not_understood"][0]["id"], "half");
  EXPECT_EQ(info["art"]["path"], 1) << "drawn up to the fault";
}

// One page that is a part of what the root element shows: it alone is the picture, in its own size.
TEST(Export, APageIsShownWhereverItLies) {
  const ScratchFolder scratch;
  const std::string drawing = scratch.write(
      "page.svg",
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"300pt\" height=\"200pt\" viewBox=\"0 0 300 200\""
      " xmlns:sodipodi=\"http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd\""
      " xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\"><sodipodi:namedview>"
      "<inkscape:page x=\"50\" y=\"50\" width=\"100\" height=\"100\"/></sodipodi:namedview>"
      "<g opacity=\"0.5\"><path d=\"M75 75h75v75h-75z\" fill=\"#00f\"/></g></svg>");
  ASSERT_EQ(runHost({"export", drawing, "-o", scratch.file("page.png")}).code, 0);
  ASSERT_EQ(runHost({"export", drawing, "-o", scratch.file("page.pdf")}).code, 0);
  ASSERT_EQ(std::system(("pdftocairo -png -singlefile -r 144 " + scratch.file("page.pdf") + " " +
                         scratch.file("printed"))
                            .c_str()),
            0);
  for (const char* name : {"page.png", "printed.png"}) {
    const QImage picture = QImage(QString::fromStdString(scratch.file(name))).scaled(100, 100);
    EXPECT_EQ(picture.pixelColor(20, 20).name(), "#ffffff") << name;
    EXPECT_NEAR(picture.pixelColor(30, 30).red(), 128, 1) << name;
    EXPECT_NEAR(picture.pixelColor(97, 97).red(), 128, 1) << name;
  }
}

TEST(Export, AnUntouchedSvgIsWrittenBackByteForByte) {
  const ScratchFolder scratch;
  for (const char* name : {"sticker-sheet.svg", "full-bleed-poster.svg", "two-cards-a4.svg"}) {
    ASSERT_EQ(runHost({"export", kExamples + "/" + name, "-o", scratch.file("copy.svg")}).code, 0);
    EXPECT_TRUE(readText(scratch.file("copy.svg")) == readText(kExamples + "/" + name));
  }
}

}  // namespace
}  // namespace host
