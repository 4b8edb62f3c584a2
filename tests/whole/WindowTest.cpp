// A user's way through the window: open, mark, undo, save, close.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QScreen>
#include <QTabWidget>
#include <QTranslator>
#include <QUrl>
#include <QtTest/QTest>

#include "QtLanguage.h"
#include "WindowWorld.h"

namespace host {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr char kMarksLayer[] = "Regmark";

QTabWidget& tabsOf(const MainWindow& window) {
  return *window.findChild<QTabWidget*>();
}

std::string tabTitle(const MainWindow& window) {
  return shownText(tabsOf(window).tabText(tabsOf(window).currentIndex()));
}

TEST_F(WindowTest, MarksComeThroughTheMenuAndGoWithUndo) {
  world.filesToOpen = {kPoster};
  world.choose({"File", "Open..."});
  ASSERT_NE(world.host.currentDocument(), nullptr);
  EXPECT_EQ(window.windowTitle().toStdString(), "full-bleed-poster.svg[*] \u2014 corvane-host");
  settle();
  const QImage before = window.grab().toImage();

  bool stillBusy = false;
  bool marksAreSeen = false;
  std::optional<BoxAnswer> answer;
  const BoxAnswer options([&](QDialog& dialog) {
    answer.emplace([&](QDialog& box) {
      stillBusy = !world.session.takesCommands();
      marksAreSeen = window.grab().toImage() != before;
      QTest::keyClick(&box, Qt::Key_Return);
    });
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  world.choose({"Window", world.textOf("Vandrell"), world.textOf("corvane "), world.textOf(kMarksKey)});
  ASSERT_TRUE(answer && answer->seen());
  EXPECT_EQ(answer->seen()->name, "RVADM_CriticalMessageDialog");
  EXPECT_EQ(answer->seen()->text,
            "Not all regmarks are placed because not enough space in the current artboard.");
  EXPECT_EQ(answer->seen()->defaultButton, "OK");
  EXPECT_TRUE(answer->seen()->overTheWindow);
  EXPECT_TRUE(stillBusy);
  EXPECT_TRUE(marksAreSeen) << "what the message speaks of shows behind it";

  EXPECT_TRUE(world.hasLayer(kMarksLayer));
  EXPECT_TRUE(window.isWindowModified());
  EXPECT_EQ(tabTitle(window), "full-bleed-poster.svg*");
  EXPECT_THAT(world.menuTree(), HasSubstr("Undo Add brevia Register Marks, Redo (off), "));

  world.press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(world.hasLayer(kMarksLayer));
  EXPECT_FALSE(window.isWindowModified());
  world.press(Qt::Key_1, Qt::AltModifier);  // the command has chosen a tool
  EXPECT_TRUE(window.grab().toImage() == before) << "the picture is the former one again";
  world.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(world.hasLayer(kMarksLayer));
  EXPECT_TRUE(window.isWindowModified());
}

TEST_F(WindowTest, AlertsSayTheirKindAndTextWhateverIsInIt) {
  const std::string text = "<b>2 < 3</b> & more";
  for (const auto& [kind, icon] : {std::pair(AlertKind::Message, QMessageBox::Information),
                                   std::pair(AlertKind::Error, QMessageBox::Critical)}) {
    const BoxAnswer answer(Qt::Key_Escape);
    world.host.alert(kind, text);
    ASSERT_TRUE(answer.seen());
    EXPECT_EQ(answer.seen()->text, text);
    EXPECT_EQ(answer.seen()->icon, icon);
  }
  std::string endless = "No.";
  while (endless.size() < 9000) endless += "\n\nThat neither.";
  const BoxAnswer answer([&](QDialog& box) {
    EXPECT_LE(box.height(), box.screen()->availableGeometry().height());
    EXPECT_TRUE(qobject_cast<QMessageBox*>(&box)->detailedText().toStdString() == endless);
    QTest::keyClick(&box, Qt::Key_Return);
  });
  world.host.alert(AlertKind::Error, endless);
  ASSERT_TRUE(answer.seen());
  EXPECT_THAT(answer.seen()->text, StartsWith(endless.substr(0, 30)));
}

TEST_F(WindowTest, SavingKeepsTheFileAndSaveAsMakesAnother) {
  const std::string file = scratch.write("sheet.svg", readText(kStickers));
  window.openFiles({file});
  world.press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(readText(file) == readText(kStickers)) << "an unchanged drawing is saved as it was";
  world.addMarks();
  world.press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_FALSE(window.isWindowModified());
  EXPECT_THAT(readText(file), HasSubstr("inkscape:label=\"Regmark\""));
  world.press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(window.isWindowModified()) << "undone is not what the file holds";

  world.press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(world.proposedFile, file);
  EXPECT_EQ(scratch.count(), 1U) << "the dialog was left without a name";
  world.fileToSave = scratch.file("copy & more.svg");
  world.press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(readText(world.fileToSave) == readText(kStickers));
  EXPECT_EQ(tabTitle(window), "copy & more.svg");
  EXPECT_EQ(world.host.documents().current()->file, world.fileToSave);
}

TEST_F(WindowTest, WhatCannotBeOpenedIsToldInOneBox) {
  const std::string broken = scratch.write("broken.svg", "<svg");
  world.filesToOpen = {scratch.file("none.svg"), kStickers, broken};
  const BoxAnswer answer(Qt::Key_Return);
  world.press(Qt::Key_O, Qt::ControlModifier);
  ASSERT_TRUE(answer.seen());
  EXPECT_THAT(answer.seen()->text,
              StartsWith("Cannot open " + scratch.file("none.svg") + ": there is no such file\n"));
  EXPECT_THAT(answer.seen()->text, HasSubstr("\n\nCannot open " + broken + ": line 1"));
  EXPECT_EQ(answer.seen()->icon, QMessageBox::Critical);
  EXPECT_EQ(world.host.documents().all().size(), 1U);
}

TEST_F(WindowTest, AFileOpensOnceAndTabsChooseTheCurrentDocument) {
  const std::string sheet = scratch.write("sheet.svg", readText(kStickers));
  std::filesystem::create_symlink(sheet, scratch.file("link.svg"));
  window.openFiles({sheet, kPoster});
  EXPECT_EQ(world.host.documents().current()->title, "full-bleed-poster.svg");
  EXPECT_THAT(window.openFiles({scratch.file("link.svg")}), IsEmpty());
  EXPECT_EQ(tabsOf(window).count(), 2);
  EXPECT_EQ(world.host.documents().current()->title, "sheet.svg");
  EXPECT_EQ(tabTitle(window), "sheet.svg");
  tabsOf(window).setCurrentIndex(1);
  EXPECT_EQ(world.host.documents().current()->title, "full-bleed-poster.svg");
  world.press(Qt::Key_W, Qt::ControlModifier);
  EXPECT_EQ(world.host.documents().current()->title, "sheet.svg");
  world.press(Qt::Key_W, Qt::ControlModifier);
  EXPECT_EQ(world.host.documents().current(), nullptr);
  EXPECT_EQ(window.windowTitle(), "corvane-host");
}

TEST_F(WindowTest, FilesAreOpenedByDroppingThem) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QString::fromStdString(kPoster)), QUrl("https://example.org/a.svg"),
                QUrl::fromLocalFile(QString::fromStdString(kStickers))});
  QDragEnterEvent enter({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&window, &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&window, &drop);
  EXPECT_EQ(world.host.documents().all().size(), 2U);

  QMimeData text;
  text.setText("no file");
  QDragEnterEvent other({50, 50}, Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
  other.ignore();
  QApplication::sendEvent(&window, &other);
  EXPECT_FALSE(other.isAccepted());
}

TEST_F(WindowTest, ThePictureFitsTheViewOnItsPasteboard) {
  window.openFiles({scratch.write("red.svg",
                                  "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"300\" height=\"150\">"
                                  "<rect width=\"150\" height=\"150\" fill=\"#ff0000\"/></svg>")});
  for (const QSize& size : {QSize(900, 500), QSize(400, 700)}) {
    window.resize(size);
    QWidget& shown = world.view();
    const QImage image = shown.grab().toImage();
    const View& view = world.host.documents().current()->view;
    EXPECT_EQ(view.width(), shown.width());
    const auto colourAt = [&](double x, double y) {
      const AIRealPoint at = view.toPixels({x, y});
      return image.pixelColor(static_cast<int>(at.x), static_cast<int>(at.y)).name().toStdString();
    };
    EXPECT_EQ(colourAt(50, 50), "#ff0000");
    EXPECT_EQ(colourAt(150, 50), "#ffffff") << "the sheet is white";
    EXPECT_EQ(image.pixelColor(2, 2), image.pixelColor(image.width() - 3, image.height() - 3));
    EXPECT_NE(image.pixelColor(2, 2), QColor(Qt::white)) << "round it is the pasteboard";
    EXPECT_EQ(colourAt(2, 2), "#ff0000") << "the whole sheet shows";
    EXPECT_EQ(colourAt(223, 110), "#ffffff");
  }
}

TEST_F(WindowTest, QtSpeaksThePreferredLanguage) {
  setenv("LANGUAGE", "xx:pt_BR:de", 1);
  speakPreferredLanguage(*QCoreApplication::instance());
  window.openFiles({kStickers});
  world.addMarks();
  const BoxAnswer answer(Qt::Key_Escape);
  window.close();
  ASSERT_TRUE(answer.seen());
  EXPECT_EQ(answer.seen()->defaultButton, "Salvar");
  setenv("LANGUAGE", "C", 1);
  qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
}

}  // namespace
}  // namespace host
