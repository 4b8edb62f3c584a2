// A drawing with line types on its way to the table: steps, summary, and files beside the PDF.
#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QtTest/QTest>
#include <map>
#include <nlohmann/json.hpp>

#include "WindowWorld.h"

namespace host {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

const std::string kJob =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\""
    " xmlns:ch=\"urn:x-corvane-host:drawing:1\" width=\"200mm\" height=\"100mm\" viewBox=\"0 0 200 100\">\n"
    "<metadata><ch:swatches><ch:color name=\"Through Cut\" definition=\"rgb(1 0 1)\" spot=\"true\"/>"
    "<ch:color name=\"A=B\" definition=\"rgb(0 1 1)\" spot=\"true\"/>"
    "<ch:color name=\"Regmark\" definition=\"rgb(0 0 0)\" spot=\"true\"/></ch:swatches></metadata>\n"
    "<g inkscape:groupmode=\"layer\" inkscape:label=\"Regmark\"/>\n"
    "<g inkscape:groupmode=\"layer\" inkscape:label=\"A=B\"><path d=\"M60 10h40\" fill=\"none\""
    " stroke=\"#00ffff\" ch:stroke=\"custom('A=B' 0)\"/></g>\n"
    "<g inkscape:groupmode=\"layer\" inkscape:label=\"Through Cut\"><path d=\"M10 10h40v30h-40z\" "
    "fill=\"none\""
    " stroke=\"#ff00ff\" ch:stroke=\"custom('Through Cut' 0)\"/></g></svg>";
// With the steps that the tests choose.
std::string withSteps() {
  std::string text = kJob;
  const auto behind = [&text](const std::string& label, const std::string& more) {
    text.insert(text.find("inkscape:label=\"" + label + "\"") + 17 + label.size(), more);
  };
  behind("A=B", " ch:step=\"Structural/Creasing\"");
  behind("Through Cut", " ch:step=\"none\"");
  return text;
}

std::size_t count(const std::string& text, const std::string& part) {
  std::size_t found = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++found;
  return found;
}

TEST(ExportJob, MisuseIsOneSentenceAndWritesNothing) {
  const ScratchFolder scratch;
  const std::string drawing = scratch.write("job.svg", kJob);
  const std::string text = scratch.write("job.txt", kJob);
  const std::string plain = std::string(CORVANE_EXAMPLES) + "/two-cards-a4.svg";
  const std::string pdf = scratch.file("job.pdf");
  const std::string png = scratch.file("job.png");
  const std::string svg = scratch.file("other.svg");
  const std::string lineTypes = "; it has \"Through Cut\" and \"A=B\"";
  struct Row {
    std::vector<std::string> words;
    std::string sentence;
  };
  const Row table[] = {
      {{drawing, "-o", pdf, "--step", "Through=Cutting"}, "no line type \"Through\"" + lineTypes},
      {{drawing, "-o", pdf, "--step", "Through Cut"}, "--step takes NAME=TYPE, not \"Through Cut\""},
      {{drawing, "-o", pdf, "--step", "A=B=Creesing"}, "step \"Creesing\"; write Structural/Creasing"},
      {{drawing, "-o", pdf, "--step", "Regmark=White"}, "marks have to be printed"},
      {{drawing, "-o", png, "--step", "A=B=White"}, "--step goes with a .pdf or a .svg"},
      {{drawing, "-o", svg, "--summary"}, "--summary go with a .pdf"},
      {{text, "-o", pdf, "--summary"}, "job.txt would be written over the drawing itself"},
      {{plain, "-o", pdf, "--step", "Cut=Cutting"}, "\"Cut\"; it has none"}};
  for (Row row : table) {
    row.words.insert(row.words.begin(), "export");
    const ProcessResult run = runHost(row.words);
    EXPECT_EQ(run.code, 2) << row.sentence;
    EXPECT_THAT(run.err, HasSubstr(row.sentence));
    EXPECT_EQ(count(run.err, "\n"), 1U) << run.err;
  }
  EXPECT_EQ(scratch.count(), 2U);
}

TEST(ExportJob, FilesLieBesideEachOtherAndStepsAreRemembered) {
  const ScratchFolder scratch;
  const std::string drawing = scratch.write("job.svg", kJob);
  const std::vector<std::string> steps{"--step", "A=B=creasing", "--step", "Through Cut=NONE"};
  const auto run = [&](std::vector<std::string> words) {
    words.insert(words.begin(), {"export", drawing, "-o"});
    words.insert(words.end(), steps.begin(), steps.end());
    return runHost(words);
  };
  ASSERT_EQ(run({scratch.file("next.svg")}).code, 0);
  EXPECT_TRUE(readText(scratch.file("next.svg")) == withSteps());

  const ProcessResult whole = run({scratch.file("a.b.PDF"), "--summary", "--print-file", "--cut-file"});
  ASSERT_EQ(whole.code, 0) << whole.err;
  for (const char* name : {"a.b.PDF", "a.b-print.pdf", "a.b-cut.pdf", "a.b.txt", "a.b.json"}) {
    EXPECT_THAT(whole.err, HasSubstr(scratch.file(name)));
    EXPECT_TRUE(fs::exists(scratch.file(name))) << name;
  }
  const std::string bytes = readText(scratch.file("a.b.PDF"));
  EXPECT_EQ(count(bytes, "/GTS_Metadata"), 1U);
  EXPECT_THAT(bytes, HasSubstr("/GTS_ProcStepsType /Creasing"));
  const auto job = nlohmann::json::parse(readText(scratch.file("a.b.json")));
  EXPECT_EQ(job["drawing"], "job.svg");
  EXPECT_EQ(job["line_types"][0]["length"], 140);
  EXPECT_EQ(job["line_types"][1]["step"], "Structural/Creasing");

  std::string text = kJob;
  text.insert(text.find("<path"), "<text y=\"9\" fill=\"#00ffff\" ch:fill=\"custom('A=B' 0)\">a</text>");
  const ProcessResult lossy = runHost({"export", scratch.write("t.svg", text), "-o", scratch.file("t.pdf")});
  EXPECT_EQ(lossy.code, 3) << "there is something to say";
  EXPECT_THAT(lossy.err, HasSubstr("loses that it was text"));

  fs::create_directories(scratch.file("c.txt/in"));
  const ProcessResult half = run({scratch.file("c.pdf"), "--summary", "--cut-file"});
  EXPECT_EQ(half.code, 1);
  EXPECT_THAT(half.err, HasSubstr("cannot save " + scratch.file("c.txt") + ": "));
  EXPECT_THAT(half.err,
              HasSubstr(scratch.file("c.pdf") + " and " + scratch.file("c-cut.pdf") + " are there"));
  EXPECT_FALSE(fs::exists(scratch.file("c.json")));
}

TEST_F(WindowTest, TheExportOfAPdfAsksForStepsAndKeepsThem) {
  const std::string drawing = scratch.write("job.svg", kJob);
  window.openFiles({drawing});
  world.fileToSave = scratch.file("job.pdf");
  using Steps = std::map<std::string, std::string>;  // by field
  Steps shown;
  std::vector<std::string> checked;
  const auto exportPdf = [&](const Steps& chosen, Qt::Key key) {
    shown.clear();
    checked.clear();
    const BoxAnswer answer([&](QDialog& dialog) {
      for (QComboBox* box : dialog.findChildren<QComboBox*>()) {
        const std::string field = box->accessibleName().toStdString();
        shown[field] = box->currentText().toStdString();
        const auto choice = chosen.find(field);
        if (choice != chosen.end()) QTest::keyClicks(box, QString::fromStdString(choice->second));
      }
      for (QCheckBox* box : dialog.findChildren<QCheckBox*>()) {
        if (box->isChecked()) checked.push_back(shownText(box->text()));
        const bool isWanted = box->text().contains("summary") && !box->isChecked();
        if (isWanted) QTest::keyClick(box, Qt::Key_Space);
      }
      QTest::keyClick(&dialog, key);
    });
    world.press(Qt::Key_E, Qt::ControlModifier);
    ASSERT_TRUE(answer.seen());
    EXPECT_EQ(answer.seen()->defaultButton, "Export");
  };
  const std::string crease = "Processing step of A=B";
  const std::string cut = "Processing step of Through Cut";
  const Steps steps{{crease, "Creas"}, {cut, "None"}};

  exportPdf(steps, Qt::Key_Escape);
  EXPECT_EQ(shown, (Steps{{crease, "None"}, {cut, "Cutting"}}));
  EXPECT_EQ(scratch.count(), 1U);
  EXPECT_EQ(world.document().undoCount(), 0U);
  exportPdf({}, Qt::Key_Return);
  EXPECT_EQ(world.document().undoCount(), 0U) << "as it was";
  EXPECT_EQ(scratch.count(), 4U) << "the PDF and its summary";
  exportPdf(steps, Qt::Key_Return);
  EXPECT_THAT(checked, testing::ElementsAre("Job summary: job.txt and job.json (replaces what is there)"));
  EXPECT_EQ(world.document().undoName(), "Processing Steps");
  EXPECT_THAT(readText(scratch.file("job.pdf")), HasSubstr("/GTS_ProcStepsType /Creasing"));
  EXPECT_TRUE(window.isWindowModified());
  world.press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(readText(drawing) == withSteps());
  world.press(Qt::Key_Z, Qt::ControlModifier);
  exportPdf({}, Qt::Key_Escape);
  EXPECT_EQ(shown[cut], "Cutting");
}

}  // namespace
}  // namespace host
