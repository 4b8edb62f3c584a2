// Message dialogs: what they show, where it stands, and what the answer is.
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "DialogWorld.h"
#include "Pictures.h"
#include "RVADM_CriticalMessageDialog.h"
#include "RVADM_PictureLabel.h"

namespace qRVADM {
namespace {

const std::string kLongText = "Long" + QString(" and longer").repeated(120).toStdString();

class ThreeButtons : public RVADM_MessageDialog {
 public:
  ThreeButtons() {
    buttonTexts[2] = "Don't Save";
    buttonTips[2] = "All is lost.";
    Ask("Save?", false, "Now.", false, "Save", "Cancel", true);
  }
};

class MessageDialogTest : public DialogTest {
 protected:
  MessageDialogTest() {
    plugin.RequestSuite("SP Basic Suite");
    plugin.RequestSuite("SP Plug-ins Suite");
    plugin.RequestSuite("AI File Path Suite");
    plugin.RequestSuite("AI Unicode String Suite");
    for (const int id : {16101, 16102}) {
      bundle.Write("png/p" + std::to_string(id) + ".png", PNGPicture(32, 32, Qt::red));
    }
  }
  // Looks at the next dialog and presses a key in it.
  void Answer(Qt::Key key, const std::function<void(QDialog&)>& look = nullptr) {
    QTimer::singleShot(0, &timers, [key, look] {
      auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
      if (look) look(*dialog);
      if (dialog->isVisible()) QTest::keyClick(dialog, key);
    });
  }
  static QPushButton& Button(const QDialog& dialog, const char* text) {
    for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
      if (button->text() == text) return *button;
    }
    throw std::runtime_error(std::string("no button ") + text);
  }

  QObject timers;
};

TEST_F(MessageDialogTest, AnswersWithTheIndexOfItsButton) {
  struct Row {
    const char *first, *second;
    bool firstIsDefault;
    Qt::Key key;
    int result;
  };
  const Row rows[] = {
      {nullptr, "OK", true, Qt::Key_Return, 1},  {nullptr, "OK", true, Qt::Key_Escape, 1},
      {"Yes", "No", true, Qt::Key_Return, 0},    {"Yes", "No", false, Qt::Key_Return, 1},
      {"Yes", "No", true, Qt::Key_Escape, 1},    {"Yes", nullptr, true, Qt::Key_Escape, 0},
      {"Yes", nullptr, true, Qt::Key_Return, 0},
  };
  for (const bool allowed : {true, false}) {
    host.interactionAllowed = allowed;
    for (const Row& row : rows) {
      if (allowed) Answer(row.key);
      const RVADM_CriticalMessageDialog dialog("", false, "Text", false, row.first, row.second,
                                               row.firstIsDefault);
      const int cancel = row.second != nullptr ? 1 : 0;
      EXPECT_EQ(dialog.GetResult(), allowed ? row.result : cancel) << &row - rows;
      EXPECT_EQ(dialog.findChildren<QWidget*>().isEmpty(), !allowed);
    }
  }
}

TEST_F(MessageDialogTest, ShowsHeadingAndBodyWhereTheyBelong) {
  struct Row {
    const char *heading, *body;
    std::vector<std::string> texts;
    std::vector<int> sizes;  // of the fonts, pixels
    bool openLinks;
  };
  const std::string link = "<a href=\"https://example.org\">here</a>";
  const Row rows[] = {
      {"Heading", "Body", {"Heading", "Body"}, {12, 10}, false},
      {"", "Body", {"Body"}, {12}, false},
      {nullptr, link.c_str(), {link}, {12}, true},
      {"Heading", nullptr, {"Heading"}, {12}, false},
      {kLongText.c_str(), kLongText.c_str(), {kLongText, kLongText}, {12, 10}, false},
  };
  for (const Row& row : rows) {
    Answer(Qt::Key_Escape, [&](QDialog& dialog) {
      EXPECT_EQ(dialog.windowTitle(), " ");
      EXPECT_EQ(dialog.width(), 494);
      const QList<QLabel*> labels = dialog.findChildren<QLabel*>();
      ASSERT_EQ(static_cast<std::size_t>(labels.size()), row.texts.size());
      QRect above(15, 11, 1, 1);
      for (int i = 0; i < labels.size(); ++i) {
        const auto at = static_cast<std::size_t>(i);
        EXPECT_EQ(labels[i]->text().toStdString(), row.texts[at]);
        EXPECT_EQ(labels[i]->font().pixelSize(), row.sizes[at]);
        EXPECT_EQ(labels[i]->font().bold(), labels.size() == 2 && i == 0);
        EXPECT_EQ(labels[i]->openExternalLinks(), row.openLinks);
        EXPECT_EQ(labels[i]->geometry().topLeft(), QPoint(70, above.bottom() + 4));
        EXPECT_EQ(labels[i]->geometry().right() + 1, 494 - 15);
        EXPECT_GE(labels[i]->height(), labels[i]->heightForWidth(labels[i]->width()));
        above = labels[i]->geometry();
      }
      const QRect icon = dynamic_cast<QWidget*>(dialog.findChild<RVADM_PictureLabel*>())->geometry();
      EXPECT_EQ(icon, QRect(18, 15, 32, 32));
      const QRect button = Button(dialog, "OK").geometry();
      EXPECT_EQ(button.top(), std::max(above.bottom(), icon.bottom()) + 1 + 15);
      EXPECT_EQ(dialog.rect().bottomRight() - button.bottomRight(), QPoint(15, 15));
    });
    const RVADM_MessageDialog dialog(row.heading, false, row.body, false, "OK", nullptr, true);
  }
}

TEST_F(MessageDialogTest, ThirdButtonStandsAtTheLeftEdgeOfTheText) {
  Answer(Qt::Key_Escape, [](QDialog& dialog) {
    const QRect save = Button(dialog, "Save").geometry();
    const QRect cancel = Button(dialog, "Cancel").geometry();
    const QRect other = Button(dialog, "Don't Save").geometry();
    EXPECT_EQ(cancel.right() + 1 + 7, save.left());
    EXPECT_EQ(other.left(), 70);
    EXPECT_EQ(other.center().y(), save.center().y());
    EXPECT_EQ(Button(dialog, "Don't Save").toolTip(), "All is lost.");
    EXPECT_TRUE(Button(dialog, "Save").isDefault() && Button(dialog, "Save").hasFocus());
    QTest::mouseClick(&Button(dialog, "Don't Save"), Qt::LeftButton);
  });
  EXPECT_EQ(ThreeButtons().GetResult(), 2);
}

}  // namespace
}  // namespace qRVADM
