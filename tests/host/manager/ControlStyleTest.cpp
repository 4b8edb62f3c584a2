// What controls look like, from what they paint and measure.
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyleOption>
#include <QTest>
#include <QVBoxLayout>
#include <climits>
#include <functional>

#include "Application.h"
#include "QtManager.h"
#include "ThemePalette.h"

namespace {

using host::Theme;
using RVADMQtManager::QtManager;

class ControlStyle : public WidgetTest {
 protected:
  static QColor colour(QPalette::ColorRole role, QPalette::ColorGroup group = QPalette::Active) {
    return host::themePalette(host::theme()).color(group, role);
  }
  // Beside the text, in the middle of the height.
  static QColor faceOf(QWidget& widget) {
    const QImage image = widget.grab().toImage();
    return image.pixelColor(5, image.height() / 2);
  }
  static QFont fontOf(int pixels) {
    QFont font = QApplication::font();
    font.setPixelSize(pixels);
    return font;
  }
};

TEST_F(ControlStyle, ButtonsSayWhetherTheyAreTheDefault) {
  const QVariant unsaid;
  const struct {
    const char* what;
    QVariant isDefault, isModal;
    bool qtDefault, enabled;
    QPalette::ColorRole face;
  } rows[] = {
      {"plain", unsaid, unsaid, false, true, QPalette::Button},
      {"told to be", true, true, false, true, QPalette::Highlight},
      {"told to be, disabled", true, true, false, false, QPalette::Highlight},
      {"told not to be", false, unsaid, true, true, QPalette::Button},
      {"closes the dialog, focused", unsaid, true, true, true, QPalette::Button},
      {"in a dialog of Qt's", unsaid, unsaid, true, true, QPalette::Highlight},
  };
  for (const Theme theme : {Theme::Light, Theme::Dark}) {
    host::setTheme(theme);
    for (const auto& row : rows) {
      QPushButton button(QStringLiteral("OK"));
      button.setProperty("_rvadm_isdefault", row.isDefault);
      button.setProperty("_rvadm_ismodalbutton", row.isModal);
      button.setDefault(row.qtDefault);
      button.setEnabled(row.enabled);
      EXPECT_EQ(faceOf(button).name(),
                colour(row.face, row.enabled ? QPalette::Active : QPalette::Disabled).name())
          << row.what;
      button.setDown(true);
      EXPECT_EQ(faceOf(button) != colour(row.face), row.enabled || row.face == QPalette::Highlight)
          << row.what;
    }
  }
}

TEST_F(ControlStyle, ButtonsOfModalDialogsShareALeastWidth) {
  QPushButton no(QStringLiteral("No")), yes(QStringLiteral("Yes")),
      longOne(QStringLiteral("Convert to process"));
  const int narrow = no.sizeHint().width();
  for (QPushButton* button : {&no, &yes, &longOne}) button->setProperty("_rvadm_ismodalbutton", true);
  EXPECT_GT(no.sizeHint().width(), narrow);
  EXPECT_EQ(no.sizeHint(), yes.sizeHint());
  EXPECT_GT(longOne.sizeHint().width(), no.sizeHint().width());
  EXPECT_EQ(longOne.sizeHint().height(), no.sizeHint().height());
}

TEST_F(ControlStyle, ShowsWhereTheKeyboardIsToWhoUsesIt) {
  QDialog dialog;
  QVBoxLayout rows(&dialog);
  QPushButton first(QStringLiteral("First")), second(QStringLiteral("Second"));
  rows.addWidget(&first);
  rows.addWidget(&second);
  for (QPushButton* button : {&first, &second}) button->setProperty("_rvadm_isdefault", false);
  dialog.show();
  dialog.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  const auto edge = [](QWidget& button) {
    return button.grab().toImage().pixelColor(button.width() / 2, 0).name();
  };
  QTest::mouseClick(&first, Qt::LeftButton);
  ASSERT_TRUE(first.hasFocus());
  EXPECT_EQ(edge(first), colour(QPalette::Mid).name());
  QTest::keyClick(&first, Qt::Key_Tab);
  ASSERT_TRUE(second.hasFocus());
  EXPECT_EQ(edge(second), colour(QPalette::Link).name());
  EXPECT_EQ(edge(first), colour(QPalette::Mid).name());
}

TEST_F(ControlStyle, LinesStayWholePixelsAtTwiceTheResolution) {
  QPushButton button(QStringLiteral("OK"));
  button.resize(button.sizeHint());
  QImage image(button.size() * 2, QImage::Format_RGB32);
  image.setDevicePixelRatio(2);
  button.render(&image);
  const int middle = image.width() / 2;
  EXPECT_EQ(image.pixelColor(middle, 0).name(), colour(QPalette::Mid).name());
  EXPECT_EQ(image.pixelColor(middle, 1).name(), colour(QPalette::Mid).name());
  EXPECT_EQ(image.pixelColor(middle, 2).name(), colour(QPalette::Button).name());
}

QRect part(QWidget& widget, QStyle::SubElement element) {
  QStyleOptionButton option;
  option.initFrom(&widget);
  option.rect = QRect(QPoint(), widget.sizeHint());
  return widget.style()->subElementRect(element, &option, &widget);
}

TEST_F(ControlStyle, TextsFitInEveryFont) {
  const QString text = QStringLiteral("Schnittlinien ergänzen, größer");
  for (const int pixels : {8, 10, 12, 19, 32}) {
    SCOPED_TRACE(pixels);
    const QFont font = fontOf(pixels);
    const QSize needed = QFontMetrics(font).size(Qt::TextShowMnemonic, text);
    QPushButton push(text);
    QCheckBox check(text);
    QRadioButton radio(text);
    QComboBox combo;
    combo.addItem(text);
    QSpinBox spin;
    spin.setSuffix(text);
    QLineEdit edit(text);
    for (QWidget* widget : std::initializer_list<QWidget*>{&push, &check, &radio, &combo, &spin, &edit}) {
      widget->setFont(font);
      widget->ensurePolished();
      EXPECT_GE(widget->sizeHint().height(), needed.height()) << widget->metaObject()->className();
    }
    EXPECT_GE(part(push, QStyle::SE_PushButtonContents).width(), needed.width());
    EXPECT_GE(part(check, QStyle::SE_CheckBoxContents).width(), needed.width());
    EXPECT_GE(part(radio, QStyle::SE_RadioButtonContents).width(), needed.width());
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.rect = QRect(QPoint(), combo.sizeHint());
    EXPECT_GE(combo.style()
                  ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo)
                  .width(),
              needed.width() + 2);
    spin.resize(spin.sizeHint());
    spin.show();
    const auto* inner = spin.findChild<QLineEdit*>();
    EXPECT_GE(inner->width(), QFontMetrics(font).horizontalAdvance(inner->text()) + 4);
    EXPECT_GE(inner->height(), needed.height());
  }
}

TEST_F(ControlStyle, ControlsOfOneFontAreOfOneHeight) {
  for (const int pixels : {10, 12}) {
    QPushButton push(QStringLiteral("OK"));
    QComboBox combo;
    QLineEdit edit;
    QSpinBox spin;
    for (QWidget* widget : std::initializer_list<QWidget*>{&push, &combo, &edit, &spin}) {
      widget->setFont(fontOf(pixels));
      EXPECT_EQ(widget->sizeHint().height(), push.sizeHint().height()) << widget->metaObject()->className();
    }
  }
}

TEST_F(ControlStyle, GroupsLeaveTheTitleToDialogsThatLayOutThemselves) {
  QDialog own, plugIns;
  QtManager::MakeDVAStyleAware(&plugIns, true);
  QGroupBox inOwn(QStringLiteral("Placement"), &own), inPlugIns(QStringLiteral("Placement"), &plugIns);
  for (QGroupBox* group : {&inOwn, &inPlugIns}) group->resize(200, 100);
  EXPECT_EQ(inPlugIns.contentsRect(), inPlugIns.rect());
  EXPECT_GE(inOwn.contentsRect().top(), inOwn.fontMetrics().height());
}

TEST_F(ControlStyle, ScrollThumbStaysInItsBar) {
  const struct {
    int minimum, maximum, page, value, top, height;
  } rows[] = {
      {0, 100, 100, 0, 0, 100},   {0, 100, 100, 100, 100, 100},     {0, 0, 10, 0, 0, 200},
      {-50, 50, 100, 0, 50, 100}, {0, INT_MAX, 1, INT_MAX, -1, -1}, {INT_MIN, INT_MAX, INT_MAX, 0, -1, -1},
  };
  for (const auto& row : rows) {
    QStyleOptionSlider bar;
    bar.rect = QRect(0, 0, 12, 200);
    bar.orientation = Qt::Vertical;
    bar.minimum = row.minimum;
    bar.maximum = row.maximum;
    bar.pageStep = row.page;
    bar.sliderPosition = row.value;
    const QRect thumb = QApplication::style()->subControlRect(QStyle::CC_ScrollBar, &bar,
                                                              QStyle::SC_ScrollBarSlider, nullptr);
    EXPECT_TRUE(bar.rect.contains(thumb)) << row.maximum;
    EXPECT_GE(thumb.height(), 16);
    if (row.top < 0) continue;
    EXPECT_NEAR(thumb.top(), row.top, 1);
    EXPECT_NEAR(thumb.height(), row.height, 1);
  }
}

TEST_F(ControlStyle, SelectedRowsAreInTheAccent) {
  QListWidget list;
  list.addItems({QStringLiteral("a"), QStringLiteral("b")});
  list.setCurrentRow(1);
  list.resize(200, 100);
  list.show();
  const QImage image = list.viewport()->grab().toImage();
  const QRect second = list.visualItemRect(list.item(1));
  EXPECT_EQ(image.pixelColor(second.right() - 3, second.center().y()).name(),
            colour(QPalette::Highlight).name());
  const QRect first = list.visualItemRect(list.item(0));
  EXPECT_EQ(image.pixelColor(first.right() - 3, first.center().y()).name(), colour(QPalette::Base).name());
}

TEST_F(ControlStyle, SurvivesBeingReplaced) {
  QLineEdit edit;
  edit.show();
  QApplication::setStyle(QStringLiteral("Fusion"));
  host::setTheme(Theme::Dark);
  QPushButton button(QStringLiteral("OK"));
  EXPECT_EQ(faceOf(button).name(), colour(QPalette::Button).name());
}

}  // namespace
