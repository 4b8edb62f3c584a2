// The palette of line types in the real window, used with the mouse.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTextEdit>
#include <QtTest/QTest>

#include "WindowWorld.h"

namespace host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kPaletteKey[] = "Create Line Type Layers";
constexpr char kNotConverted[] = "One or more objects could not be converted.";
constexpr char kBlocked[] =
    "Could not move selection because one or more line type layers are locked or hidden.";
constexpr char kNotMoved[] = "One or more objects could not be moved to a Line Type Layer.";

class PaletteTest : public WindowTest {
 protected:
  PaletteTest() {
    scratch.write("drawing.svg", pathsAndText());
    EXPECT_THAT(window.openFiles({file}), IsEmpty());
  }

  void showPalette() {
    EXPECT_TRUE(world.session.chooseMenuItem(kPaletteKey));
    settle();
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
    settle();
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
    settle();
  }

  ArtId art(const std::string& name) { return artNamed(world.document(), name); }
  void select(const std::vector<std::string>& names) {
    world.document().deselectAll();
    for (const std::string& name : names) world.document().setSelected(art(name), true);
    window.refresh();
    settle();
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
  Layer& layer(const std::string& title) {
    return world.document().editLayer(layerTitled(world.document(), title));
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
    settle();
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
  settle();
  EXPECT_FALSE(list().isEnabled());
  EXPECT_THAT(window.openFiles({file}), IsEmpty());
  settle();
  EXPECT_TRUE(list().isEnabled());
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
    settle();
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
  const BoxAnswer answer([&](QDialog& dialog) {
    const auto& edit = *dialog.findChild<QTextEdit*>();
    QPushButton& ok = *dialog.findChild<QPushButton*>();
    dialog.resize(dialog.width() + 100, dialog.height() + 50);
    settle();
    for (const char* name :
         {"Qt", "Boost", "librsvg", "Little CMS", "Expat", "CLI11", "JSON", "DejaVu", "ICU"}) {
      EXPECT_TRUE(edit.toPlainText().contains(name)) << name;
    }
    EXPECT_TRUE(edit.isReadOnly());
    EXPECT_GE(dialog.width(), 550);
    EXPECT_EQ(edit.geometry().right(), ok.geometry().right()) << "as wide as the room";
    EXPECT_LT(edit.geometry().bottom(), ok.y());
    EXPECT_GT(edit.height(), dialog.height() - 100);
    QTest::mouseClick(&ok, Qt::LeftButton);
  });
  world.choose({"Help", world.textOf("Vandrell  "), world.textOf("Legal Notices...")});
  ASSERT_TRUE(answer.seen());
  EXPECT_EQ(answer.seen()->title, "Legal Notices");
}

}  // namespace
}  // namespace host
