// Dialogs that come up where nobody is.
#include "DialogAnswerer.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>
#include <optional>

#include "Host.h"
#include "OffscreenApplication.h"

namespace host {
namespace {

class PlainDialog : public QDialog {
 public:
  explicit PlainDialog(const QString& title = " ") : rows_(new QVBoxLayout(this)) { setWindowTitle(title); }

  PlainDialog& withButton(bool isDefault, const std::function<void()>& clicked) {
    auto* button = new QPushButton("Go");
    button->setAutoDefault(isDefault);
    button->setDefault(isDefault);
    connect(button, &QPushButton::clicked, this, clicked);
    rows_->addWidget(button);
    return *this;
  }

  std::function<void()> onReturn, onReject;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return && onReturn) return onReturn();
    QDialog::keyPressEvent(event);
  }
  void reject() override { onReject ? onReject() : QDialog::reject(); }

 private:
  QVBoxLayout* rows_;
};

class DialogAnswererTest : public testing::Test {
 protected:
  DialogAnswererTest() {
    ensureApplication();
    answerer.emplace(host);
  }

  std::vector<std::string> said() const {
    std::vector<std::string> texts;
    for (const Alert& alert : host.alerts()) {
      texts.push_back((alert.kind == AlertKind::Error ? "!" : "") + alert.text);
    }
    return texts;
  }

  Host host;
  std::optional<DialogAnswerer> answerer;
};

TEST_F(DialogAnswererTest, TheDefaultButtonElseReturnIsTheAnswer) {
  PlainDialog withButtons;
  withButtons.withButton(false, [&] { withButtons.done(7); }).withButton(true, [&] { withButtons.done(5); });
  EXPECT_EQ(withButtons.exec(), 5);
  PlainDialog withKey;
  withKey.onReturn = [&] { withKey.done(9); };
  EXPECT_EQ(withKey.exec(), 9);
  EXPECT_EQ(withKey.exec(), 9) << "each time it comes up";
  QMessageBox box(QMessageBox::Question, "Sure?", "<b>Really</b> &amp; truly?",
                  QMessageBox::Yes | QMessageBox::No);
  box.setDefaultButton(QMessageBox::No);
  EXPECT_EQ(box.exec(), QMessageBox::No);
  EXPECT_EQ(said(), std::vector<std::string>{"Sure?\nReally & truly?"});
}

TEST_F(DialogAnswererTest, ADialogThatStaysIsCancelledInTheEnd) {
  int answers = 0, refusals = 0;
  PlainDialog open("Stubborn");
  open.withButton(true, [&] { ++answers; });
  EXPECT_EQ(open.exec(), QDialog::Rejected);
  open.onReject = [&] { ++refusals; };
  EXPECT_EQ(open.exec(), QDialog::Rejected);
  EXPECT_EQ(answers, 6);
  EXPECT_EQ(refusals, 3);
  const std::string sentence =
      "!The dialog \"Stubborn\" stayed open when it was answered, and was cancelled.";
  EXPECT_EQ(said(), (std::vector<std::string>{"Stubborn", sentence, "Stubborn", sentence}));
}

}  // namespace
}  // namespace host
