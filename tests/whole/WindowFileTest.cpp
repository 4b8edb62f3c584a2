// What the window keeps of files and of unsaved work.
#include <gmock/gmock.h>
#include <signal.h>
#include <unistd.h>

#include <QAction>
#include <QImage>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest/QTest>

#include "DeadSessions.h"
#include "RecoveryFolder.h"
#include "WindowWorld.h"

namespace host {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

std::vector<std::string> textsOf(const QMenu& menu) {
  std::vector<std::string> texts;
  for (const QAction* action : menu.actions()) texts.push_back(shownText(action->text()));
  return texts;
}

TEST_F(WindowTest, RecentFilesComeBackAndTheMissingGo) {
  const std::string one = scratch.write("one & more.svg", readText(kStickers));
  const std::string two = scratch.write("two.svg", readText(kStickers));
  window.openFiles({one, two, one});
  QMenu& menu = world.menu({"File", "Open Recent"});
  EXPECT_THAT(textsOf(menu), ElementsAre("1 " + one, "2 " + two, "", "Clear Recent Files"));
  fs::remove(one);
  while (world.host.currentDocument() != nullptr) world.press(Qt::Key_W, Qt::ControlModifier);
  {
    const BoxAnswer answer(Qt::Key_Return);
    world.choose({"File", "Open Recent", "1 " + one});
    ASSERT_TRUE(answer.seen());
    EXPECT_EQ(answer.seen()->text, "Cannot open " + one + ": there is no such file");
  }
  EXPECT_THAT(textsOf(menu), ElementsAre("1 " + two, "", "Clear Recent Files"));
  world.choose({"File", "Open Recent", "1 " + two});
  EXPECT_EQ(world.host.documents().current()->file, two);
  EXPECT_EQ(world.host.preferences().string("corvane-host", "RecentFile1"), two) << "for the next start";
  for (int i = 0; i < 12; ++i) window.openFiles({scratch.write(std::to_string(i) + ".svg", squareOnPage())});
  EXPECT_EQ(menu.actions().size(), 12) << "ten, the separator and the way to clear them";
  world.choose({"File", "Open Recent", "Clear Recent Files"});
  EXPECT_FALSE(menu.menuAction()->isEnabled());
}

TEST_F(WindowTest, ExportWritesTheFormatOfTheName) {
  window.openFiles({scratch.write("sheet.svg", squareOnPage())});
  world.fileToSave = scratch.file("sheet.png");
  world.press(Qt::Key_E, Qt::ControlModifier);
  EXPECT_EQ(world.proposedFile, scratch.file("sheet.pdf"));
  const QImage picture(QString::fromStdString(world.fileToSave));
  EXPECT_EQ(picture.size(), QSize(1250, 1667)) << "600 x 800 pt in 150 dpi";
  EXPECT_EQ(picture.pixelColor(400, 1200).name(), "#ff0000");
  EXPECT_EQ(world.host.documents().current()->file, scratch.file("sheet.svg"));
  for (const char* name : {"sheet.xyz", "none/sheet.png"}) {
    world.fileToSave = scratch.file(name);
    const BoxAnswer answer(Qt::Key_Return);
    world.press(Qt::Key_E, Qt::ControlModifier);
    ASSERT_TRUE(answer.seen());
    EXPECT_THAT(answer.seen()->text, HasSubstr(world.fileToSave));
  }
  EXPECT_EQ(scratch.count(), 2U);
}

TEST_F(WindowTest, NothingIsWrittenOverAFileThatIsOpen) {
  const std::string other = scratch.write("other.svg", squareOnPage(10));
  const std::string own = scratch.write("own.svg", squareOnPage(20));
  fs::create_symlink(other, scratch.file("link.svg"));
  window.openFiles({other, own});
  const struct {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    std::string file, said;
  } ways[] = {
      {Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier, other, "Cannot save * another tab"},
      {Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier, scratch.file("link.svg"),
       "Cannot save * another tab"},
      {Qt::Key_E, Qt::ControlModifier, other, "Cannot export to * another tab"},
      {Qt::Key_E, Qt::ControlModifier, own, "Cannot export to * the drawing itself"},
  };
  for (const auto& way : ways) {
    world.fileToSave = way.file;
    const BoxAnswer answer(Qt::Key_Return);
    world.press(way.key, way.modifiers);
    ASSERT_TRUE(answer.seen()) << way.said;
    const std::size_t star = way.said.find('*');
    EXPECT_THAT(answer.seen()->text,
                AllOf(StartsWith(way.said.substr(0, star) + way.file), HasSubstr(way.said.substr(star + 2))));
  }
  EXPECT_TRUE(readText(other) == squareOnPage(10) && readText(own) == squareOnPage(20));
}

// Answers one box after another, each with a key, "!" for Return and "." for Escape. What was asked is noted
// as in "a5": about a.svg, with five buttons.
class BoxAnswers {
 public:
  explicit BoxAnswers(std::string keys) : keys_(std::move(keys)) { waitForNext(); }
  std::string asked;

 private:
  void waitForNext() {
    answer_.emplace([this](QDialog& dialog) {
      const std::string text = qobject_cast<QMessageBox*>(&dialog)->text().toStdString();
      const char key = asked.size() / 2 < keys_.size() ? keys_[asked.size() / 2] : '.';
      asked += text[text.find(".svg") - 1] + std::to_string(dialog.findChildren<QPushButton*>().size());
      QObject::connect(
          &dialog, &QDialog::finished, &context_, [this] { waitForNext(); }, Qt::QueuedConnection);
      QTest::keyClick(&dialog, key == '!' ? Qt::Key_Return : key == '.' ? Qt::Key_Escape : Qt::Key(key));
    });
  }

  const std::string keys_;
  std::optional<BoxAnswer> answer_;
  QObject context_;
};

TEST_F(WindowTest, QuittingAsksAboutEachChangedDrawingOrAllAtOnce) {
  const struct {
    std::string changed, keys, asked, saved;
    bool closes;
  } rows[] = {
      {"b", "!", "b3", "b", true},       {"c", ".", "c3", "", false},
      {"abc", "I", "a5", "", true},      {"abc", "A", "a5", "abc", true},
      {"abc", ".", "a5", "", false},     {"ac", "!D", "a5c3", "a", true},
      {"abc", "DA", "a5b5", "bc", true}, {"abc", "SD.", "a5b5c3", "a", false},
      {"bd", "A!", "b5d1", "b", false},
  };
  const auto quit = [&](const std::string& keys) {
    BoxAnswers answers(keys);
    window.close();
    return answers.asked;
  };
  const std::string svg = squareOnPage();
  const auto open = [&](const char* name, bool changes) {
    window.openFiles({scratch.write(name, svg)});
    if (!changes) return;
    world.document().beginStep("Rename");
    world.document().editLayer(world.document().state().layers[0]).title = "Renamed";
    world.document().endStep();
  };
  for (const auto& row : rows) {
    window.show();
    for (const char* name : {"a.svg", "b.svg", "c.svg", "d/d.svg"}) {
      open(name, row.changed.find(name[0]) != std::string::npos);
    }
    fs::remove_all(scratch.file("d"));  // d can't be saved
    EXPECT_EQ(quit(row.keys), row.asked);
    EXPECT_NE(window.isVisible(), row.closes);
    std::string saved;
    for (const char* name : {"a.svg", "b.svg", "c.svg"}) {
      if (scratch.read(name) != svg) saved += name[0];
    }
    EXPECT_EQ(saved, row.saved);
    EXPECT_EQ(world.host.documents().all().size(), row.closes ? 0U : 4U) << "none is closed, or all are";
    quit("DDD");
  }
  window.show();
  open("a.svg", true);
  open("b.svg", true);
  BoxAnswers answers("!");
  world.press(Qt::Key_W, Qt::ControlModifier);
  EXPECT_EQ(answers.asked, "b3") << "closing one asks about that one alone";
  EXPECT_NE(scratch.read("b.svg"), svg);
  EXPECT_EQ(world.host.documents().all().size(), 1U);
}

TEST_F(WindowTest, RemarksAreCountedAndListed) {
  window.openFiles({scratch.write(
      "odd.svg",
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9mm\" height=\"9mm\" viewBox=\"0 0 9 9\">\n"
      "<path id=\"p\" d=\"M0 0 L 5 5 L oops\"/></svg>")});
  const std::vector<SvgRemark> remarks = drawingOf(scratch.read("odd.svg")).remarks;
  ASSERT_EQ(remarks.size(), 1U);
  auto* button = window.findChild<QToolButton*>("Remarks");
  ASSERT_TRUE(button != nullptr && button->isVisible());
  EXPECT_EQ(button->text(), "1 remark");
  std::vector<std::string> row;
  const BoxAnswer answer([&](QDialog& dialog) {
    const auto* list = dialog.findChild<QTreeWidget*>();
    for (int i = 0; i < 4; ++i) row.push_back(list->topLevelItem(0)->text(i).toStdString());
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_THAT(row, ElementsAre("path", "p", "2", remarks[0].reason));
  window.openFiles({kStickers});
  EXPECT_FALSE(button->isVisible());
}

// --- work that outlives its process ---

// Leaves behind what a killed window does: the folder of its copies, which nobody holds any more.
void dieWith(const std::string& root, const std::vector<std::pair<RecoveryNote, std::string>>& drawings) {
  const pid_t child = fork();
  if (child == 0) {
    RecoveryFolder folder(root);
    std::uint32_t number = 0;
    for (const auto& [note, svg] : drawings) folder.write(++number, note, svg);
    kill(getpid(), SIGKILL);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFSIGNALED(status));
}

class RecoveryTest : public testing::Test {
 protected:
  RecoveryTest() { folders.state = scratch.file("state"); }

  // Paths of the drawings that are kept, below the folder of all runs.
  std::vector<std::string> copies() const {
    std::vector<std::string> found;
    if (!fs::exists(root)) return found;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
      if (entry.path().extension() == ".svg") found.push_back(entry.path().string());
    }
    return found;
  }

  ScratchFolder scratch;
  Folders folders;
  const std::string root = scratch.file("state/recovery");
  const std::string file =
      scratch.write("sheet.svg", readText(std::string(CORVANE_EXAMPLES) + "/sticker-sheet.svg"));
};

TEST_F(RecoveryTest, CopiesFollowTheWorkAndGoWhenItIsSafe) {
  {
    WindowWorld world({corvaneBundle()}, folders, 1);
    world.window->openFiles({file});
    EXPECT_FALSE(fs::exists(root)) << "nothing to keep, nothing made";
    world.addMarks();
    ASSERT_TRUE(QTest::qWaitFor([&] { return copies().size() == 1; }));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return drawingOf(readText(copies()[0])).document->state().layers.size() > 1; }));
    EXPECT_TRUE(DeadSessions(root).drawings().empty()) << "this one lives";
    world.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return copies().empty(); }));
    world.press(Qt::Key_Z, Qt::ControlModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return copies().size() == 1; }));
    const BoxAnswer answer(QMessageBox::Discard);
    world.press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return copies().empty(); }));
  }
  EXPECT_TRUE(DeadSessions(root).drawings().empty());
  EXPECT_EQ(std::distance(fs::directory_iterator(root), fs::directory_iterator()), 1) << "the lock alone";
}

TEST_F(RecoveryTest, LostWorkIsOfferedAndComesBackUnsaved) {
  const RecoveryNote lost{"sheet.svg", file, 1};
  dieWith(root, {{lost, squareOnPage()}, {{"other.svg", "", 2}, "<svg"}});
  WindowWorld world({corvaneBundle()}, folders);
  std::optional<BoxAnswer> complaint;  // what is said after the answer
  const auto answerOffer = [&](const std::string& button) {
    const BoxAnswer answer([&](QDialog& dialog) {
      if (button == "Recover") complaint.emplace(Qt::Key_Return);
      for (QPushButton* candidate : dialog.findChildren<QPushButton*>()) {
        if (shownText(candidate->text()) == button) return candidate->click();
      }
    });
    world.window->offerLostDrawings();
    return answer.seen() ? answer.seen()->text : std::string();
  };
  EXPECT_THAT(answerOffer("Later"), HasSubstr("corvane-host ended without saving 2 drawings."));
  EXPECT_EQ(copies().size(), 2U);

  EXPECT_NE(answerOffer("Recover"), "");
  ASSERT_TRUE(complaint && complaint->seen());
  EXPECT_THAT(complaint->seen()->text, AllOf(StartsWith("Cannot recover other.svg: line 1, column "),
                                             HasSubstr("; its copy is kept as " + root + "/damaged-")));
  ASSERT_EQ(world.host.documents().all().size(), 1U);
  EXPECT_EQ(world.host.documents().current()->title, "sheet.svg");
  EXPECT_TRUE(world.window->isWindowModified());
  EXPECT_EQ(copies().size(), 2U) << "the damaged one, and the recovered one in the present run";
  EXPECT_EQ(answerOffer("Later"), "") << "neither is offered again";
  world.press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(readText(file) == squareOnPage());
  EXPECT_FALSE(world.window->isWindowModified());

  dieWith(root, {{lost, squareOnPage()}});
  EXPECT_THAT(answerOffer("Discard"), HasSubstr("without saving a drawing."));
  EXPECT_TRUE(QTest::qWaitFor([&] { return copies().size() == 1; })) << "the damaged one";
}

}  // namespace
}  // namespace host
