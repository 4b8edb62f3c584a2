// The look of a field while it has the keyboard.
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include "Application.h"
#include "ThemePalette.h"

namespace {

using host::Theme;

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

}  // namespace
