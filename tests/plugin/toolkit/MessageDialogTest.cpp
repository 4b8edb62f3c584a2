// Message dialogs: what they show, where it stands, and what the answer is.
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "DialogWorld.h"
#include "RVADM_CriticalMessageDialog.h"

namespace qRVADM {
namespace {

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
    Request({"SP Basic Suite", "SP Plug-ins Suite", "AI File Path Suite", "AI Unicode String Suite"});
    for (const int id : {16101, 16102}) bundle.WritePicture(id, Qt::red, 32, 32);
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
  const struct {
    const char *first, *second;
    bool firstIsDefault;
    Qt::Key key;
    int result;
  } rows[] = {{nullptr, "OK", true, Qt::Key_Return, 1}, {nullptr, "OK", true, Qt::Key_Escape, 1},
              {"Yes", "No", true, Qt::Key_Return, 0},   {"Yes", "No", false, Qt::Key_Return, 1},
              {"Yes", "No", true, Qt::Key_Escape, 1},   {"Yes", nullptr, true, Qt::Key_Escape, 0}};
  for (const bool allowed : {true, false}) {
    host.interactionAllowed = allowed;
    for (const auto& row : rows) {
      if (allowed) Answer(row.key);
      const RVADM_CriticalMessageDialog dialog("", false, "Text", false, row.first, row.second,
                                               row.firstIsDefault);
      const int cancel = row.second != nullptr ? 1 : 0;
      EXPECT_EQ(dialog.GetResult(), allowed ? row.result : cancel) << &row - rows;
      EXPECT_EQ(dialog.findChildren<QWidget*>().isEmpty(), !allowed);
    }
  }
}

TEST_F(MessageDialogTest, ShowsHeadingAndBodyWhole) {
  const std::string longText = "Long" + QString(" and longer").repeated(120).toStdString();
  for (const char* const heading : {longText.c_str(), "", static_cast<const char*>(nullptr)}) {
    Answer(Qt::Key_Escape, [&](QDialog& dialog) {
      std::vector<std::string> texts;
      int bottom = 0;
      for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        texts.push_back(label->text().toStdString());
        EXPECT_GT(label->y(), bottom) << "below the one before";
        EXPECT_GE(label->height(), label->heightForWidth(label->width()));
        bottom = label->geometry().bottom();
      }
      EXPECT_EQ(texts, std::vector<std::string>(heading != nullptr && *heading != 0 ? 2 : 1, longText));
      EXPECT_GT(Button(dialog, "OK").y(), bottom);
      EXPECT_TRUE(dialog.rect().contains(Button(dialog, "OK").geometry()));
    });
    const RVADM_MessageDialog dialog(heading, false, longText.c_str(), false, "OK", nullptr, true);
  }
}

TEST_F(MessageDialogTest, TheThirdButtonHasAnAnswerOfItsOwn) {
  Answer(Qt::Key_Escape, [](QDialog& dialog) {
    EXPECT_LT(Button(dialog, "Don't Save").x(), Button(dialog, "Cancel").x());
    EXPECT_LT(Button(dialog, "Cancel").x(), Button(dialog, "Save").x());
    EXPECT_EQ(Button(dialog, "Don't Save").toolTip(), "All is lost.");
    EXPECT_TRUE(Button(dialog, "Save").isDefault() && Button(dialog, "Save").hasFocus());
    QTest::mouseClick(&Button(dialog, "Don't Save"), Qt::LeftButton);
  });
  EXPECT_EQ(ThreeButtons().GetResult(), 2);
}

}  // namespace
}  // namespace qRVADM
