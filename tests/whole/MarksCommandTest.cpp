// `corvane-host marks` as a user runs it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "HostProcess.h"

namespace host {
namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

const std::string kExamples = CORVANE_EXAMPLES;

// Centres of the marks that the run says it placed.
std::vector<std::pair<double, double>> centres(const ProcessResult& run) {
  std::vector<std::pair<double, double>> list;
  const json report = json::parse(run.out);
  for (const json& mark : report["marks"]) {
    list.emplace_back(mark["x"].get<double>(), mark["y"].get<double>());
  }
  return list;
}

void expectNear(const std::vector<std::pair<double, double>>& actual,
                const std::vector<std::pair<double, double>>& expected) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_NEAR(actual[i].first, expected[i].first, 1e-9) << i;
    EXPECT_NEAR(actual[i].second, expected[i].second, 1e-9) << i;
  }
}

std::string rectangleOnPage(int left, int bottom, int right, int top) {
  const auto text = [](int number) { return std::to_string(number); };
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"800pt\" height=\"800pt\" viewBox=\"0 0 800 800\">"
         "<rect x=\"" +
         text(left) + "\" y=\"" + text(800 - top) + "\" width=\"" + text(right - left) + "\" height=\"" +
         text(top - bottom) + "\"/></svg>";
}

TEST(MarksCommand, CornerMarksStandWhereTheRulesPutThem) {
  struct Row {
    const char* name;
    int left, bottom, right, top;
    std::vector<std::pair<double, double>> expected;  // the fifth mark first, then the corners
  };
  const double d = 283.46;
  const std::vector<Row> table{
      {"room for the distance",
       100,
       100,
       400,
       500,
       {{90 + d, 90}, {90, 510}, {410, 510}, {410, 90}, {90, 90}}},
      {"middle of the bottom", 100, 100, 350, 500, {{225, 90}, {90, 510}, {360, 510}, {360, 90}, {90, 90}}},
      {"up the right side", 100, 100, 110, 600, {{120, 90 + d}, {90, 610}, {120, 610}, {120, 90}, {90, 90}}},
      {"a small square has no fifth", 100, 100, 120, 120, {{90, 130}, {130, 130}, {130, 90}, {90, 90}}}};
  const ScratchFolder scratch;
  for (const Row& row : table) {
    SCOPED_TRACE(row.name);
    const std::string input =
        scratch.write("in.svg", rectangleOnPage(row.left, row.bottom, row.right, row.top));
    const ProcessResult run =
        runHost({"marks", input, "-o", scratch.file("out.svg"), "--size", "10pt", "--weight", "0", "--json"});
    EXPECT_EQ(run.code, 0) << run.err;
    expectNear(centres(run), row.expected);
    EXPECT_EQ(json::parse(run.out)["not_placed"], 0);
  }
}

TEST(MarksCommand, ARunStoresNothing) {
  const ScratchFolder scratch;
  const std::string command = "XDG_CONFIG_HOME=" + quoted(scratch.file("config")) + " " + CORVANE_BIN +
                              "/corvane-host marks " + quoted(kExamples + "/sticker-sheet.svg") +
                              " --size 9mm -o " + quoted(scratch.file("out.svg"));
  EXPECT_EQ(std::system(command.c_str()), 0);
  EXPECT_TRUE(scratch.has("out.svg"));
  EXPECT_FALSE(scratch.has("config"));
}

TEST(MarksCommand, EveryOtherByteOfADrawingStaysAsItWas) {
  const ScratchFolder scratch;
  for (const char* name : {"sticker-sheet.svg", "full-bleed-poster.svg", "two-cards-a4.svg"}) {
    for (const char* placement : {"corner", "auto", "edge"}) {
      SCOPED_TRACE(std::string(name) + " " + placement);
      const std::string before = readText(kExamples + "/" + name);
      const ProcessResult run =
          runHost({"marks", kExamples + "/" + name, "-o", scratch.file("out.svg"), "--placement", placement});
      EXPECT_TRUE(run.code == 0 || run.code == 3) << run.err;
      const std::string after = readText(scratch.file("out.svg"));
      ASSERT_GT(after.size(), before.size());
      // One stretch is new; what stands before and behind it is the file that was.
      std::size_t same = 0;
      while (same < before.size() && before[same] == after[same]) ++same;
      EXPECT_TRUE(before.substr(same) == after.substr(after.size() - (before.size() - same)));
      // A second run replaces the marks, and takes the first away without a trace.
      const ProcessResult again = runHost(
          {"marks", scratch.file("out.svg"), "-o", scratch.file("again.svg"), "--placement", placement});
      EXPECT_EQ(again.code, run.code);
      EXPECT_TRUE(readText(scratch.file("again.svg")) == after);
    }
  }
}

TEST(MarksCommand, MarksWithoutRoomAreCountedSaidAndTold) {
  const ScratchFolder scratch;
  const ProcessResult run =
      runHost({"marks", kExamples + "/full-bleed-poster.svg", "-o", scratch.file("out.svg"), "--json"});
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(json::parse(run.out)["not_placed"], 2);
  const char* sentence = "Not all regmarks are placed because not enough space in the current artboard.";
  EXPECT_EQ(json::parse(run.out)["messages"], json::array({sentence}));
  EXPECT_THAT(run.err, HasSubstr(sentence));
  EXPECT_TRUE(scratch.has("out.svg"));
}

TEST(MarksCommand, ADrawingWithoutArtLosesItsOldMarks) {
  const ScratchFolder scratch;
  const std::string old =
      "<svg xmlns=\"http://www.w3.org/2000/svg\" "
      "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\" "
      "width=\"100mm\" height=\"100mm\" viewBox=\"0 0 100 100\">\n"
      "  <g inkscape:groupmode=\"layer\" inkscape:label=\"Art\"/>\n"
      "  <g inkscape:groupmode=\"layer\" inkscape:label=\"Regmark\"><circle cx=\"9\" cy=\"9\" r=\"3\"/></g>\n"
      "</svg>\n";
  const ProcessResult run =
      runHost({"marks", scratch.write("in.svg", old), "-o", scratch.file("out.svg"), "--json"});
  EXPECT_EQ(run.code, 3);
  EXPECT_TRUE(json::parse(run.out)["marks"].empty());
  EXPECT_THAT(run.err, HasSubstr("no marks were placed"));
  EXPECT_EQ(readText(scratch.file("out.svg")).find("Regmark"), std::string::npos);
}

TEST(MarksCommand, AnEmptyDrawingKeepsItsLayerUnderTheMarks) {
  const ScratchFolder scratch;
  const std::string empty = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"300mm\" height=\"300mm\"/>";
  const ProcessResult run =
      runHost({"marks", "-", "-o", scratch.file("out.svg"), "--placement", "edge"}, empty);
  EXPECT_EQ(run.code, 0) << run.err;
  const json info = json::parse(runHost({"info", "--json", scratch.file("out.svg")}).out);
  ASSERT_EQ(info["layers"].size(), 2U);
  EXPECT_EQ(info["layers"][0]["title"], "Regmark");
  EXPECT_EQ(info["layers"][1]["title"], "Layer 1");
}

TEST(MarksCommand, BadInputGivesOneSentenceAndNoFile) {
  const ScratchFolder scratch;
  const std::string missing = scratch.file("missing.svg");
  std::string nested = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>";
  for (int i = 0; i < 1000000; ++i) nested += "<g>";
  struct Row {
    std::string file, sentence;
  };
  const auto sized = [](const std::string& size) {
    return "<svg xmlns='http://www.w3.org/2000/svg' " + size + "><path d='M0 0h9'/></svg>";
  };
  const std::string empty = scratch.write("empty.svg", "");
  const std::string broken = scratch.write("broken.svg", "<svg>\n  <g></h>\n</svg>");
  const std::string html = scratch.write("page.svg", "<html/>");
  const std::string deep = scratch.write("deep.svg", nested);
  const std::string zero = scratch.write("zero.svg", sized("width='0' height='5mm'"));
  const std::string negative = scratch.write("negative.svg", sized("width='5mm' height='-5mm'"));
  const std::string absurd = scratch.write("absurd.svg", sized("width='1e9mm' height='5mm'"));
  const std::vector<Row> table{
      {missing, "cannot open " + missing + ": there is no such file"},
      {empty, "cannot open " + empty + ": the file is empty"},
      {broken, "cannot open " + broken + ": line 2, column 8: mismatched tag"},
      {html, "cannot open " + html + ": line 1, column 1: the root element is <html>, not <svg>"},
      {deep, "cannot open " + deep + ": line 1, column "},
      {zero, "cannot open " + zero + ": line 1, column 1: width=\"0\""},
      {negative, "cannot open " + negative + ": line 1, column 1: height=\"-5mm\""},
      {absurd, "cannot open " + absurd + ": line 1, column 1: width=\"1e9mm\""}};
  for (const Row& row : table) {
    SCOPED_TRACE(row.file);
    const ProcessResult run = runHost({"marks", row.file, "-o", scratch.file("out.svg")});
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(run.err, StartsWith("corvane-host: " + row.sentence));
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1);
    EXPECT_FALSE(scratch.has("out.svg"));
  }
}

TEST(MarksCommand, AResultThatCannotBeSavedLeavesNothingHalfWritten) {
  const ScratchFolder scratch;
  const std::string input = kExamples + "/sticker-sheet.svg";
  const std::string nowhere = scratch.file("nowhere/out.svg");
  const ProcessResult lost = runHost({"marks", input, "-o", nowhere});
  EXPECT_EQ(lost.code, 1);
  EXPECT_THAT(lost.err, HasSubstr("cannot save " + nowhere + ": "));

  // A file may grow to 8 blocks only, as on a full disk; the old file stays whole.
  const std::string old = scratch.write("out.svg", "old");
  const ProcessResult full = runHost({"marks", input, "-o", old}, {}, "trap '' XFSZ; ulimit -f 8;");
  EXPECT_EQ(full.code, 1);
  EXPECT_THAT(full.err, HasSubstr("cannot save " + old + ": "));
  EXPECT_EQ(readText(old), "old");
  EXPECT_EQ(scratch.count(), 1U) << "no temporary file is left";
}

TEST(MarksCommand, WrongUsageIsToldApart) {
  const std::string input = kExamples + "/sticker-sheet.svg";
  const std::vector<std::vector<std::string>> table{
      {"marks"},
      {"marks", input},
      {"marks", input, "-o", "a.svg", "--out-dir", "."},
      {"marks", input, input, "-o", "a.svg"},
      {"marks", input, input, "--out-dir", "."},
      {"marks", input, "-o", "a.svg", "--size", "six"},
      {"marks", input, "-o", "a.svg", "--amount", "2"},
      {"marks", input, "-o", "a.svg", "--placement", "circle"},
      {"marks", input, "-o", "a.svg", "--pref", "Corvane"},
      {"marks", input, "-o", "a.svg", "--refuse", "AI Nothing Suite"},
      {"marks", input, "-o", "-", "--json"},
      {"export", input, "-o", "a.doc"},
      {"frobnicate"}};
  for (const auto& arguments : table) {
    const ProcessResult run = runHost(arguments);
    EXPECT_EQ(run.code, 2) << testing::PrintToString(arguments) << run.err;
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, StartsWith("corvane-host: "));
  }
  EXPECT_EQ(runHost({"--help"}).code, 0);
  EXPECT_EQ(runHost({"--version"}).out, "corvane-host 0.1.0\n");
}

TEST(MarksCommand, StandardInputAndOutputAreFiles) {
  const ProcessResult run = runHost({"marks", "-", "-o", "-"}, rectangleOnPage(100, 100, 400, 500));
  EXPECT_EQ(run.code, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr("brevia Regmark"));
}

TEST(MarksCommand, OneBadDrawingOfManyStopsNoneOfTheOthers) {
  const ScratchFolder scratch;
  std::filesystem::create_directory(scratch.file("out"));
  const std::string bad = scratch.write("bad.svg", "no");
  const ProcessResult run =
      runHost({"marks", bad, kExamples + "/sticker-sheet.svg", "--out-dir", scratch.file("out"), "--json"});
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(json::parse(run.out)["marks"].size(), 5U);
  EXPECT_TRUE(scratch.has("out/sticker-sheet.svg"));
  EXPECT_FALSE(scratch.has("out/bad.svg"));
}

TEST(MarksCommand, RefusedCallsAreNamed) {
  const ScratchFolder scratch;
  const ProcessResult run = runHost({"marks", kExamples + "/sticker-sheet.svg", "-o", scratch.file("out.svg"),
                                     "--refuse", "AI Art Suite:NewArt:3", "--json"});
  EXPECT_EQ(run.code, 3);
  EXPECT_THAT(run.err, HasSubstr("refused AI Art Suite:NewArt, call 3"));
  EXPECT_EQ(json::parse(run.out)["marks"].size(), 2U) << "what was drawn before stays";
  const ProcessResult withheld = runHost({"marks", kExamples + "/sticker-sheet.svg", "-o",
                                          scratch.file("no.svg"), "--refuse", "AI Layer Suite"});
  EXPECT_EQ(withheld.code, 1);
  EXPECT_FALSE(scratch.has("no.svg"));
}

}  // namespace
}  // namespace host
