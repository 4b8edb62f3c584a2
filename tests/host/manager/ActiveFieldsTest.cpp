// The look of a field while it has the keyboard.
#include <QDoubleSpinBox>
#include <QIcon>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include "Application.h"
#include "ThemePalette.h"

namespace {

using host::Theme;

QIcon iconOf(const QColor& colour) {
  QPixmap pixmap(8, 8);
  pixmap.fill(colour);
  return pixmap;
}

class ActiveFields : public WidgetTest {
 protected:
  ActiveFields() {
    host::setTheme(Theme::Dark);
    auto* rows = new QVBoxLayout(&window_);
    for (QWidget* field :
         {static_cast<QWidget*>(&edit_), static_cast<QWidget*>(&spin_), static_cast<QWidget*>(&other_)}) {
      rows->addWidget(field);
    }
    window_.show();
    window_.activateWindow();
    other_.setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
  }

  static QColor groundOf(const QWidget& field) { return field.palette().color(QPalette::Base); }

  QWidget window_;
  QLineEdit edit_, other_;
  QDoubleSpinBox spin_;
  const QColor dark_ = host::themePalette(Theme::Dark).color(QPalette::Base);
};

TEST_F(ActiveFields, AreLightAndGoBack) {
  for (QWidget* field : {static_cast<QWidget*>(&edit_), static_cast<QWidget*>(&spin_)}) {
    EXPECT_EQ(groundOf(*field), dark_);
    QTest::mouseClick(field, Qt::LeftButton);
    EXPECT_GT(groundOf(*field).lightness(), 200);
    QTest::mouseClick(&other_, Qt::LeftButton);
    EXPECT_EQ(groundOf(*field), dark_);
  }
  edit_.setReadOnly(true);
  QTest::mouseClick(&edit_, Qt::LeftButton);
  EXPECT_EQ(groundOf(edit_), dark_);
}

TEST_F(ActiveFields, ThatChangeThemeMeanwhileEndInTheNewOne) {
  QTest::mouseClick(&edit_, Qt::LeftButton);
  host::setTheme(Theme::Light);
  QTest::mouseClick(&other_, Qt::LeftButton);
  EXPECT_EQ(groundOf(edit_), host::themePalette(Theme::Light).color(QPalette::Base));
}

TEST_F(ActiveFields, KeepColoursOfTheirOwn) {
  QPalette own = edit_.palette();
  own.setColor(QPalette::Base, Qt::red);
  edit_.setPalette(own);
  QTest::mouseClick(&edit_, Qt::LeftButton);
  EXPECT_EQ(groundOf(edit_), QColor(Qt::red));
  QTest::mouseClick(&other_, Qt::LeftButton);
  EXPECT_EQ(groundOf(edit_), QColor(Qt::red));
}

TEST_F(ActiveFields, SwapTheIconsOfPicturesInThem) {
  QToolButton picture(&edit_), plain(&edit_);
  const QIcon idle = iconOf(Qt::white);
  const QIcon active = iconOf(Qt::black);
  picture.setIcon(idle);
  plain.setIcon(idle);
  picture.setProperty("_rvadm_activeinputicon", active);
  const auto shown = [](const QToolButton& button) {
    return button.icon().pixmap(8, 8).toImage().pixelColor(4, 4);
  };
  const auto goBackTo = [&] { return picture.property("_rvadm_inactiveinputicon"); };

  QTest::mouseClick(&edit_, Qt::LeftButton);
  EXPECT_EQ(shown(picture), QColor(Qt::black));
  EXPECT_EQ(shown(plain), QColor(Qt::white));
  ASSERT_EQ(goBackTo().userType(), static_cast<int>(QMetaType::QIcon));

  // A picture that changes while its field is active stores what to go back to.
  picture.setProperty("_rvadm_inactiveinputicon", iconOf(Qt::green));
  QFocusEvent menuUp(QEvent::FocusOut, Qt::PopupFocusReason), menuGone(QEvent::FocusIn, Qt::PopupFocusReason);
  QApplication::sendEvent(&edit_, &menuUp);
  EXPECT_EQ(shown(picture), QColor(Qt::black));
  QApplication::sendEvent(&edit_, &menuGone);
  QTest::mouseClick(&other_, Qt::LeftButton);
  EXPECT_EQ(shown(picture), QColor(Qt::green));
  EXPECT_FALSE(goBackTo().isValid());
}

TEST_F(ActiveFields, ReachPicturesInSpinBoxes) {
  QToolButton picture(spin_.findChild<QLineEdit*>());
  picture.setProperty("_rvadm_activeinputicon", iconOf(Qt::black));
  QTest::mouseClick(&spin_, Qt::LeftButton);
  EXPECT_FALSE(picture.icon().isNull());
  QTest::mouseClick(&other_, Qt::LeftButton);
  EXPECT_TRUE(picture.icon().isNull());
}

}  // namespace
