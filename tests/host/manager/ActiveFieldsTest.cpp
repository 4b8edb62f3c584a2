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
    rows->addWidget(&edit_);
    rows->addWidget(&spin_);
    rows->addWidget(&other_);
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

TEST_F(ActiveFields, AreLightAndGoBackUnlessTheyCantBeWrittenOrHaveAColourOfTheirOwn) {
  for (QWidget* field : std::initializer_list<QWidget*>{&edit_, &spin_}) {
    EXPECT_EQ(groundOf(*field), dark_);
    QTest::mouseClick(field, Qt::LeftButton);
    EXPECT_GT(groundOf(*field).lightness(), 200);
    QTest::mouseClick(&other_, Qt::LeftButton);
    EXPECT_EQ(groundOf(*field), dark_);
  }
  edit_.setReadOnly(true);
  spin_.setPalette(QPalette(Qt::black, Qt::red, Qt::red, Qt::red, Qt::red, Qt::black, Qt::red));
  QTest::mouseClick(&edit_, Qt::LeftButton);
  EXPECT_EQ(groundOf(edit_), dark_);
  QTest::mouseClick(&spin_, Qt::LeftButton);
  EXPECT_EQ(groundOf(spin_), QColor(Qt::red));
  edit_.setReadOnly(false);
  QTest::mouseClick(&edit_, Qt::LeftButton);
  host::setTheme(Theme::Light);
  QTest::mouseClick(&other_, Qt::LeftButton);
  EXPECT_EQ(groundOf(edit_), host::themePalette(Theme::Light).color(QPalette::Base));
}

TEST_F(ActiveFields, SwapTheIconsOfPicturesInThem) {
  QToolButton picture(&edit_);
  picture.setIcon(iconOf(Qt::white));
  picture.setProperty("_rvadm_activeinputicon", iconOf(Qt::black));
  const auto shown = [&] { return picture.icon().pixmap(8, 8).toImage().pixelColor(4, 4); };
  QTest::mouseClick(&edit_, Qt::LeftButton);
  EXPECT_EQ(shown(), QColor(Qt::black));
  // A picture that changes while its field is active stores what to go back to.
  picture.setProperty("_rvadm_inactiveinputicon", iconOf(Qt::green));
  QFocusEvent menuUp(QEvent::FocusOut, Qt::PopupFocusReason), menuGone(QEvent::FocusIn, Qt::PopupFocusReason);
  QApplication::sendEvent(&edit_, &menuUp);
  EXPECT_EQ(shown(), QColor(Qt::black));
  QApplication::sendEvent(&edit_, &menuGone);
  QTest::mouseClick(&other_, Qt::LeftButton);
  EXPECT_EQ(shown(), QColor(Qt::green));
  EXPECT_FALSE(picture.property("_rvadm_inactiveinputicon").isValid());
}

}  // namespace
