// `corvane-host info` and `corvane-host export` as a user runs them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

TEST(Export, WritesAPictureOfTheWholeDrawing) {
  const ScratchFolder scratch;
  const ProcessResult run =
      runHost({"export", kExamples + "/two-cards-a4.svg", "-o", scratch.file("two.png")});
  ASSERT_EQ(run.code, 0) << run.err;
  const std::string png = readText(scratch.file("two.png"));
  ASSERT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1a\n");
  const auto number = [&](std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i) value = value * 256 + static_cast<unsigned char>(png[at + i]);
    return value;
  };
  EXPECT_EQ(number(16), 2539U) << "430 mm at 150 pixels an inch";
  EXPECT_EQ(number(20), 1754U) << "297 mm";
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
