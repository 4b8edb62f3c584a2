// The palette of line types in the real window, used with the mouse.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTextEdit>
#include <QtTest/QTest>
#include <algorithm>

#include "WindowWorld.h"

namespace host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr char kPaletteKey[] = "Create Line Type Layers";
constexpr char kNotConverted[] = "One or more objects could not be converted.";
constexpr char kBlocked[] =
    "Could not move selection because one or more line type layers are locked or hidden.";
constexpr char kNotMoved[] = "One or more objects could not be moved to a Line Type Layer.";

// Two paths, the lower one filled, and a text; a reserved layer that is not on top.
constexpr char kDrawing[] =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" "
    "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\" width=\"400pt\" height=\"400pt\" "
    "viewBox=\"0 0 400 400\">\n"
    "  <g inkscape:groupmode=\"layer\" inkscape:label=\"Lumenfold\"><rect id=\"kept\" x=\"1\" y=\"1\" "
    "width=\"9\" height=\"9\"/></g>\n"
    "  <g inkscape:groupmode=\"layer\" inkscape:label=\"Art\">\n"
    "    <rect inkscape:label=\"low\" x=\"20\" y=\"20\" width=\"90\" height=\"90\" fill=\"#00f\"/>\n"
    "    <path inkscape:label=\"high\" d=\"M 200,20 H 300\" stroke=\"#000\"/>\n"
    "    <text inkscape:label=\"text\" x=\"20\" y=\"200\">Cut here</text>\n"
    "  </g>\n"
    "</svg>\n";

class PaletteTest : public WindowTest {
 protected:
  PaletteTest() {
    scratch.write("drawing.svg", kDrawing);
    EXPECT_THAT(window.openFiles({file}), IsEmpty());
  }

  void showPalette() {
    EXPECT_TRUE(world.session.chooseMenuItem(kPaletteKey));
    QCoreApplication::processEvents();
  }
  QDockWidget& dock() { return *window.findChild<QDockWidget*>(kPaletteKey); }
  QListWidget& list() { return *dock().findChild<QListWidget*>(); }
  static QString nameOf(const QListWidgetItem* row) { return row->data(Qt::AccessibleTextRole).toString(); }
  QListWidgetItem* row(const QString& name) {
    for (int i = 0; i < list().count(); ++i) {
      if (nameOf(list().item(i)) == name) return list().item(i);
    }
    ADD_FAILURE() << "no row " << name.toStdString();
    return list().item(0);
  }
  void clickRow(const QString& name, Qt::KeyboardModifiers modifiers = {}) {
    const QRect place = list().visualItemRect(row(name));
    QTest::mouseClick(list().viewport(), Qt::LeftButton, modifiers, place.center());
    QCoreApplication::processEvents();
  }
  // The text of the palette's button, with "(off)" behind it if it is disabled.
  std::string button() {
    std::string shown;
    for (const QPushButton* candidate : dock().widget()->findChildren<QPushButton*>()) {
      if (candidate->isHidden()) continue;
      shown += shownText(candidate->text()) + (candidate->isEnabled() ? "" : " (off)");
    }
    return shown;
  }
  void press() {
    for (QPushButton* candidate : dock().widget()->findChildren<QPushButton*>()) {
      if (!candidate->isHidden()) QTest::mouseClick(candidate, Qt::LeftButton);
    }
    QCoreApplication::processEvents();
  }

  ArtId art(const std::string& name) {
    for (ArtId id = 1; id <= world.document().artSlots(); ++id) {
      const Art* found = world.document().art(id);
      if (found != nullptr && found->name == name) return id;
    }
    ADD_FAILURE() << "no art " << name;
    return 0;
  }
  void select(const std::vector<std::string>& names) {
    for (const ArtId id : world.document().selection()) world.document().setSelected(id, false);
    for (const std::string& name : names) world.document().setSelected(art(name), true);
    window.refresh();
    QCoreApplication::processEvents();
  }
  std::string strokeOf(const std::string& name) {
    const AIPathStyle& style = *world.document().styleOf(art(name));
    if (style.stroke.color.kind != kCustomColor) return "no custom colour";
    const ObjectId id =
        idOfHandle(style.stroke.color.c.c.color, HandleKind::CustomColor, world.document().serial());
    return world.document().customColor(id)->name + (style.stroke.overprint != 0 ? " over" : "") +
           (style.fillPaint != 0 ? " filled" : "") + " " + std::to_string(style.stroke.width).substr(0, 3);
  }
  std::string layerOf(const std::string& name) {
    return world.document().layer(world.document().layerOfArt(art(name)))->title;
  }
  std::vector<std::string> layers() {
    std::vector<std::string> titles;
    for (const LayerId id : world.document().state().layers) {
      titles.push_back(world.document().layer(id)->title);
    }
    return titles;
  }
  Layer& layer(const std::string& title) {
    const auto& all = world.document().state().layers;
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](LayerId id) { return world.document().layer(id)->title == title; });
    return world.document().editLayer(*found);
  }
  // What the message boxes say that come up meanwhile; each is answered.
  std::vector<std::string> textsDuring(const std::function<void()>& act) {
    std::vector<std::string> texts;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&texts] {
      auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (box == nullptr || !box->isVisible()) return;
      for (const QLabel* label : box->findChildren<QLabel*>()) {
        if (!label->text().isEmpty()) texts.push_back(label->text().toStdString());
      }
      QTest::keyClick(box, Qt::Key_Return);
    });
    timer.start(5);
    act();
    QCoreApplication::processEvents();
    return texts;
  }

  const std::string file = scratch.file("drawing.svg");
};

TEST_F(PaletteTest, TellsWhatItCouldNotDo) {
  showPalette();
  select({"low", "text"});
  EXPECT_THAT(textsDuring([&] { clickRow("Kiss Cut"); }), ElementsAre(kNotConverted));
  EXPECT_EQ(strokeOf("low"), "Kiss Cut over 1.0");
  EXPECT_THAT(textsDuring([&] { press(); }), ElementsAre(kNotMoved)) << "the text stays";
  EXPECT_EQ(layerOf("low"), "Kiss Cut");

  layer("Kiss Cut").editable = false;
  EXPECT_THAT(textsDuring([&] { clickRow("Crease"); }), ElementsAre(kNotConverted)) << "it is locked";
  select({"high"});
  clickRow("Kiss Cut");
  EXPECT_EQ(strokeOf("high"), "Kiss Cut over 1.0");
  EXPECT_THAT(textsDuring([&] { press(); }), ElementsAre(kBlocked));
  EXPECT_EQ(layerOf("high"), "Art");
  layer("Kiss Cut").editable = true;
  layer("Kiss Cut").visible = false;
  select({"high", "text"});
  EXPECT_THAT(textsDuring([&] { press(); }), ElementsAre(kBlocked, kNotMoved));
}

TEST_F(PaletteTest, TakesNoticeWhileItIsShownAndADocumentIsOpen) {
  showPalette();
  EXPECT_TRUE(list().isEnabled());
  showPalette();
  EXPECT_TRUE(dock().isHidden());
  select({"low"});
  showPalette();
  clickRow("Kiss Cut");
  showPalette();
  select({});
  EXPECT_EQ(button(), "Move Selection to Line Type Layers") << "hidden, it takes no notice";
  showPalette();
  EXPECT_EQ(button(), "Create Line Type Layer (off)");
  clickRow("Kiss Cut");
  world.choose({"File", "Save"});
  world.choose({"File", "Close"});
  QCoreApplication::processEvents();
  EXPECT_FALSE(list().isEnabled());
  EXPECT_THAT(window.openFiles({file}), IsEmpty());
  QCoreApplication::processEvents();
  EXPECT_TRUE(list().isEnabled());
}

TEST_F(PaletteTest, RowsShowTheirColourAndName) {
  showPalette();
  EXPECT_EQ(dock().widget()->width(), 240);
  for (int i = 0; i < 3; ++i) {
    const QListWidgetItem* item = list().item(i);
    const QRect place = list().visualItemRect(item);
    EXPECT_EQ(place.height(), 21);
    const QImage picture = list().viewport()->grab(place).toImage();
    const QColor patch = picture.pixelColor(10, 10);
    EXPECT_GT(patch.hsvSaturation(), 60) << nameOf(item).toStdString();
    int dark = 0;
    for (int x = 20; x < picture.width(); ++x) {
      for (int y = 0; y < 20; ++y) dark += picture.pixelColor(x, y).lightness() < 110 ? 1 : 0;
    }
    EXPECT_GT(dark, 20) << "a name in ink";
  }
}

TEST_F(PaletteTest, SpeaksTheUsersLanguageAndClipsNothing) {
  struct Row {
    const char* language;
    const char* message;
  };
  for (const Row& speech : {Row{"de", "Mindestens ein Objekt konnte nicht umgewandelt werden."},
                            Row{"ja", "変換できなかったオブジェクトがあります。"}, Row{"fr", nullptr},
                            Row{"es", nullptr}, Row{"pt_BR", nullptr}, Row{"C", kNotConverted}}) {
    setenv("LANGUAGE", speech.language, 1);
    EXPECT_THAT(world.session.restart(), IsEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // the former panel
    QCoreApplication::processEvents();
    if (dock().isHidden()) showPalette();
    for (const QPushButton* candidate : dock().widget()->findChildren<QPushButton*>()) {
      EXPECT_LE(candidate->sizeHint().width(), candidate->width()) << candidate->text().toStdString();
    }
    for (int i = 0; i < list().count(); ++i) {
      const QString name = nameOf(list().item(i));
      EXPECT_LE(list().fontMetrics().horizontalAdvance(name), list().viewport()->width() - 20)
          << name.toStdString();
    }
    if (speech.message == nullptr) continue;
    select({"text"});
    const QString first = nameOf(list().item(0));
    EXPECT_THAT(textsDuring([&] { clickRow(first); }), ElementsAre(speech.message));
  }
}

TEST_F(PaletteTest, NoticesComeUpAtTheirAnchorAndGrowWithTheirDialog) {
  QString shown;
  QRect text, ok;
  QSize size;
  const BoxAnswer answer([&](QDialog& dialog) {
    auto& edit = *dialog.findChild<QTextEdit*>();
    dialog.resize(dialog.width() + 100, dialog.height() + 50);
    QCoreApplication::processEvents();
    shown = edit.toPlainText();
    EXPECT_TRUE(edit.isReadOnly());
    text = edit.geometry();
    QPushButton& button = *dialog.findChild<QPushButton*>();
    ok = button.geometry();
    size = dialog.size();
    QTest::mouseClick(&button, Qt::LeftButton);
  });
  world.choose({"Help", world.textOf("Vandrell  "), world.textOf("Legal Notices...")});
  ASSERT_TRUE(answer.seen());
  EXPECT_EQ(answer.seen()->title, "Legal Notices");
  for (const char* name :
       {"Qt", "Boost", "librsvg", "Little CMS", "Expat", "CLI11", "JSON", "DejaVu", "ICU"}) {
    EXPECT_TRUE(shown.contains(name)) << name;
  }
  EXPECT_GE(size.width(), 550);
  EXPECT_EQ(text.right(), ok.right()) << "the view is as wide as the room, the button in its corner";
  EXPECT_LT(text.bottom(), ok.top());
  EXPECT_GT(text.height(), size.height() - 100);
}

}  // namespace
}  // namespace host
