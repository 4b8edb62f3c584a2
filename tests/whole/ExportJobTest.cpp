// A drawing with line types on its way to the table: steps, summary, and files beside the PDF.
#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QtTest/QTest>
#include <cstdlib>
#include <map>
#include <nlohmann/json.hpp>

#include "SvgPicture.h"
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
    "<g inkscape:groupmode=\"layer\" inkscape:label=\"Through Cut\"><path d=\"M10 10h40v30h-40\" "
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
  EXPECT_EQ(job["line_types"][0]["length"], 110);
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

std::string odd(const std::string& content) {
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" "
         "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\""
         " xmlns:ch=\"urn:x-corvane-host:drawing:1\" width=\"300pt\" height=\"300pt\" viewBox=\"0 0 300 "
         "300\">"
         "<metadata><ch:swatches><ch:color name=\"Gold\" definition=\"rgb(1 0 0)\" "
         "spot=\"true\"/></ch:swatches>"
         "</metadata><g inkscape:groupmode=\"layer\" inkscape:label=\"Odd\">" +
         content + "</g></svg>";
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

constexpr char kBlends[] =
    R"svg(<path d="M0 0h300v300h-300z" fill="#fec"/><path d="M20 20h150v100h-150z" fill="#ff0"/><path d="M60 60h150v100h-150z" fill="#0ff"
style="mix-blend-mode:multiply"/><g style="mix-blend-mode:color-dodge" opacity="0.8"><path d="M90 10h30v200h-30z"
fill="#a03"/><path d="M100 180h90v40h-90z" fill="#0a0"/></g><path d="M30 90h200v20h-200z" fill="#ff0000"
ch:fill="custom('Gold' 0)" style="mix-blend-mode:screen"/><g><text x="20" y="150" font-family="DejaVu Sans"
font-size="40" style="mix-blend-mode:difference" fill="#fff">Blend</text></g>)svg";

constexpr char kStrokes[] =
    R"svg(<g fill="none" stroke-width="12" stroke="#ff0000">
<path ch:stroke="custom('Gold' 0)" d="M20 20h0" stroke-linecap="round"/>
<path ch:stroke="custom('Gold' 0)" d="M60 20z" stroke-linecap="round"/>
<path ch:stroke="custom('Gold' 0)" d="M100 20c0 0 0 0 0 0z" stroke-linecap="round"/>
<path ch:stroke="custom('Gold' 0)" d="M20 50h250" stroke-dasharray="20 10" stroke-dashoffset="-7"/>
<path ch:stroke="custom('Gold' 0)" d="M20 70h250" stroke-dasharray="0 0"/>
<path ch:stroke="custom('Gold' 0)" d="M20 90h250" stroke-dasharray="9 5 30"/>
<path ch:stroke="custom('Gold' 0)" d="M20 110h250" stroke-dasharray="1e-9 1e-9"/></g>
<path d="M20 130h250" stroke="#00f" stroke-width="9" stroke-dasharray="5 9 20 9 5 9 40 9"/>
<path d="M20 150h60v60h-60z" fill="#0a0" stroke="#00f" stroke-width="30" paint-order="stroke"/>
<path d="M40 160h10v50h-10z" fill="#0a0" stroke="#00f" stroke-width="9" transform="scale(4 1)"/>
<path d="M280 160L250 260L300 190H240L280 260Z" fill="#0a0" fill-rule="evenodd"/>)svg";

constexpr int kDotsPerInch = 60;

// The page of an artboard as the canvas shows it.
QImage canvasOf(const std::string& svg, std::size_t artboard) {
  const auto read = readSvg(svg, nullptr);
  const auto& drawing = std::get<SvgDrawing>(read);
  const auto loaded = SvgPicture::load(pictureSource(drawing, svg, {}));
  const auto& picture = std::get<SvgPicture>(loaded);
  const double scale = drawing.document->scale() * kDotsPerInch / 72;
  const AIRealRect& page = drawing.document->state().artboards[artboard].position;
  const AIRealRect& all = picture.bounds();
  QImage image(static_cast<int>((page.right - page.left) * scale),
               static_cast<int>((page.top - page.bottom) * scale), QImage::Format_RGB32);
  EXPECT_EQ(picture.draw({image.bits(), image.width(), image.height(), image.bytesPerLine()},
                         {(all.left - page.left) * scale, (page.top - all.top) * scale,
                          (all.right - all.left) * scale, (all.top - all.bottom) * scale}),
            "");
  return image;
}

// In how many places of four by four dots do pictures differ? Edges may be smoothed in other ways.
int differences(const QImage& a, const QImage& b) {
  const QSize size = a.size().boundedTo(b.size());
  const auto coarse = [&size](const QImage& image) {
    return image.copy(QRect(QPoint(), size))
        .convertToFormat(QImage::Format_RGB32)
        .scaled(size / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  };
  const QImage one = coarse(a), other = coarse(b);
  int count = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QRgb p = one.pixel(x, y), q = other.pixel(x, y);
      const int most = std::max(
          {std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))});
      count += most > 90 ? 1 : 0;
    }
  }
  return count;
}

TEST(ExportJob, PagesLookLikeTheCanvas) {
  const ScratchFolder scratch;
  const auto marked = [&scratch](const std::string& name, const std::string& placement) {
    const std::string input = std::string(CORVANE_EXAMPLES) + "/" + name;
    runHost({"marks", "--placement", placement, input, "-o", scratch.file("marked.svg")});
    return readText(scratch.file("marked.svg"));
  };
  struct Row {
    std::string svg;
    std::size_t pages;
  };
  const Row table[] = {{marked("sticker-sheet.svg", "corner"), 1},
                       {marked("full-bleed-poster.svg", "auto"), 1},
                       {marked("two-cards-a4.svg", "edge"), 2},
                       {marked("tea-carton.svg", "corner"), 1},
                       {odd(kFadingInks), 1},
                       {odd(kBlends), 1},
                       {odd(kStrokes), 1}};
  for (const Row& row : table) {
    const std::string file = scratch.file("look.pdf");
    const std::string drawing = scratch.write("look.svg", row.svg);
    ASSERT_NE(runHost({"export", drawing, "-o", file}).code, 1);
    for (std::size_t i = 0; i < row.pages; ++i) {
      const std::string page = std::to_string(i + 1);
      const std::string command =
          "pdftocairo -png -singlefile -r " + std::to_string(kDotsPerInch) + " -f " + page + " " + file + " ";
      ASSERT_EQ(std::system((command + scratch.file("look")).c_str()), 0);
      const QImage printed(QString::fromStdString(scratch.file("look.png")));
      EXPECT_EQ(differences(printed, canvasOf(row.svg, i)), 0) << row.svg.substr(0, 2000);
    }
  }
}

TEST_F(WindowTest, TheExportOfAPdfAsksForStepsAndKeepsThem) {
  const std::string drawing = scratch.write("job.svg", kJob);
  window.openFiles({drawing});
  world.fileToSave = scratch.file("job.pdf");
  using Steps = std::map<std::string, std::string>;  // by field
  Steps shown;
  std::vector<std::string> checked, findings;
  const auto exportPdf = [&](const Steps& chosen, Qt::Key key) {
    shown.clear();
    checked.clear();
    findings.clear();
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
      for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        if (label->text().contains("finding")) findings.push_back(label->text().toStdString());
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
  EXPECT_THAT(findings, testing::ElementsAre("1 finding; see the Preflight panel")) << "what is cut is open";
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
  exportPdf({}, Qt::Key_Escape);
  EXPECT_THAT(findings, testing::IsEmpty()) << "no longer cut";
  world.press(Qt::Key_Z, Qt::ControlModifier);
  exportPdf({}, Qt::Key_Escape);
  EXPECT_EQ(shown[cut], "Cutting");
}

}  // namespace
}  // namespace host
