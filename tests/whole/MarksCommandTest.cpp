// `corvane-host marks` as a user runs it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "HostProcess.h"

namespace host {
namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;

const std::string kExamples = CORVANE_EXAMPLES;

TEST(MarksCommand, TellsWhereTheMarksAreAndStoresNothing) {
  const ScratchFolder scratch;
  const ProcessResult run =
      runHost({"marks", "-", "-o", scratch.file("out.svg"), "--size", "10pt", "--weight", "0", "--json"},
              squareOnPage());
  EXPECT_EQ(run.code, 0) << run.err;
  EXPECT_FALSE(run.hasStored);
  const json report = json::parse(run.out);
  EXPECT_EQ(report["not_placed"], 0);
  // The fifth mark first, then the corners.
  const double centres[][2] = {{200, 90}, {90, 310}, {310, 310}, {310, 90}, {90, 90}};
  ASSERT_EQ(report["marks"].size(), std::size(centres));
  for (std::size_t i = 0; i < std::size(centres); ++i) {
    EXPECT_NEAR(report["marks"][i]["x"].get<double>(), centres[i][0], 1e-9) << i;
    EXPECT_NEAR(report["marks"][i]["y"].get<double>(), centres[i][1], 1e-9) << i;
  }
  const ProcessResult piped = runHost({"marks", "-", "-o", "-"}, squareOnPage());
  EXPECT_EQ(piped.code, 0) << piped.err;
  EXPECT_THAT(piped.out, HasSubstr("brevia Regmark"));
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
  EXPECT_THAT(run.err, testing::ContainsRegex("(^|\n)(message|error): " + std::string(sentence)));
  EXPECT_TRUE(scratch.has("out.svg"));
}

TEST(MarksCommand, ADrawingWithoutArtLosesItsOldMarksAndMayGetOthers) {
  const ScratchFolder scratch;
  const std::string old =
      "<svg xmlns=\"http://www.w3.org/2000/svg\" "
      "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\" "
      "width=\"100mm\" height=\"100mm\" viewBox=\"0 0 100 100\">\n"
      "  <g inkscape:groupmode=\"layer\" inkscape:label=\"Art\"/>\n"
      "  <g inkscape:groupmode=\"layer\" inkscape:label=\"Regmark\"><circle cx=\"9\" cy=\"9\" r=\"3\"/></g>\n"
      "</svg>\n";
  const ProcessResult run = runHost({"marks", "-", "-o", scratch.file("out.svg"), "--json"}, old);
  EXPECT_EQ(run.code, 3);
  EXPECT_TRUE(json::parse(run.out)["marks"].empty());
  EXPECT_THAT(run.err, HasSubstr("no marks were placed"));
  EXPECT_EQ(readText(scratch.file("out.svg")).find("Regmark"), std::string::npos);

  const std::string empty = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"300mm\" height=\"300mm\"/>";
  EXPECT_EQ(runHost({"marks", "-", "-o", scratch.file("edge.svg"), "--placement", "edge"}, empty).code, 0);
  const json info = json::parse(runHost({"info", "--json", scratch.file("edge.svg")}).out);
  ASSERT_EQ(info["layers"].size(), 2U);
  EXPECT_EQ(info["layers"][0]["title"], "Regmark");
  EXPECT_EQ(info["layers"][1]["title"], "Layer 1") << "it stays under the marks";
}

TEST(MarksCommand, BadInputGivesOneSentenceAndNoFile) {
  const ScratchFolder scratch;
  std::string nested = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>";
  for (int i = 0; i < 1000000; ++i) nested += "<g>";
  const struct {
    std::string file, reason;
  } table[] = {
      {scratch.file("missing.svg"), "there is no such file"},
      {scratch.write("empty.svg", ""), "the file is empty"},
      {scratch.write("broken.svg", "<svg>\n  <g></h>\n</svg>"), "line 2, column 8: mismatched tag"},
      {scratch.write("deep.svg", nested), "line 1, column "},
      {scratch.write("absurd.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='1e9mm' height='5mm'/>"),
       "line 1, column 1: width=\"1e9mm\""}};
  for (const auto& row : table) {
    SCOPED_TRACE(row.file);
    const ProcessResult run = runHost({"marks", row.file, "-o", scratch.file("out.svg")});
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(run.err, StartsWith("corvane-host: cannot open " + row.file + ": " + row.reason));
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

TEST(MarksCommand, OneBadDrawingOfManyStopsNoneOfTheOthers) {
  const ScratchFolder scratch;
  const std::string bad = scratch.write("bad.svg", "no");
  const ProcessResult run = runHost(
      {"marks", bad, kExamples + "/sticker-sheet.svg", "--out-dir", scratch.file("new/out"), "--json"});
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(json::parse(run.out)["marks"].size(), 5U);
  EXPECT_TRUE(scratch.has("new/out/sticker-sheet.svg"));
  EXPECT_FALSE(scratch.has("new/out/bad.svg"));
  const ProcessResult inFile = runHost({"marks", kExamples + "/sticker-sheet.svg", "--out-dir", bad});
  EXPECT_EQ(inFile.code, 1);
  EXPECT_THAT(inFile.err, StartsWith("corvane-host: cannot make the folder " + bad + ": "));
}

TEST(MarksCommand, RefusedCallsAreNamed) {
  const ScratchFolder scratch;
  const auto refuse = [&](const std::string& rule, const std::string& drawing) {
    return runHost({"marks", kExamples + drawing, "-o", scratch.file("out.svg"), "--refuse", rule, "--json"});
  };
  const ProcessResult call = refuse("AI Art Suite:NewArt:3", "/sticker-sheet.svg");
  EXPECT_EQ(call.code, 3);
  EXPECT_THAT(call.err, HasSubstr("refused AI Art Suite:NewArt, call 3"));
  EXPECT_EQ(json::parse(call.out)["marks"].size(), 2U) << "what was drawn before stays";
  std::filesystem::remove(scratch.file("out.svg"));
  const ProcessResult unasked = refuse("AS User Interaction Suite", "/full-bleed-poster.svg");
  EXPECT_EQ(unasked.code, 3);
  EXPECT_EQ(json::parse(unasked.out)["messages"].size(), 1U) << "who cannot be asked for leave is told";
  std::filesystem::remove(scratch.file("out.svg"));
  EXPECT_EQ(refuse("AI Layer Suite", "/sticker-sheet.svg").code, 1);
  EXPECT_FALSE(scratch.has("out.svg"));
}

}  // namespace
}  // namespace host
