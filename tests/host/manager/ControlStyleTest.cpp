// What controls look like, from what they paint and measure.
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOption>
#include <array>
#include <climits>

#include "Application.h"
#include "ThemePalette.h"

namespace {

using host::Theme;

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
  static int contentsWidth(QWidget& widget, QStyle::SubElement element) {
    QStyleOptionButton option;
    option.initFrom(&widget);
    option.rect = QRect(QPoint(), widget.sizeHint());
    return widget.style()->subElementRect(element, &option, &widget).width();
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
  host::setTheme(Theme::Dark);
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
    EXPECT_EQ(faceOf(button) != colour(row.face), row.enabled || row.face == QPalette::Highlight) << row.what;
  }
}

TEST_F(ControlStyle, TextsFitInEveryFontAndControlsAreOfOneHeight) {
  const QString text = QStringLiteral("Schnittlinien ergänzen, größer");
  for (const int pixels : {10, 12, 32}) {
    QFont font = QApplication::font();
    font.setPixelSize(pixels);
    const QSize needed = QFontMetrics(font).size(Qt::TextShowMnemonic, text);
    QPushButton push(text);
    QCheckBox check(text);
    QRadioButton radio(text);
    QLineEdit edit(text);
    for (QWidget* widget : std::initializer_list<QWidget*>{&push, &check, &radio, &edit}) {
      widget->setFont(font);
      widget->ensurePolished();
      EXPECT_GE(widget->sizeHint().height(), needed.height()) << pixels;
    }
    EXPECT_TRUE(pixels > 12 || edit.sizeHint().height() == push.sizeHint().height()) << pixels;
    EXPECT_GE(contentsWidth(push, QStyle::SE_PushButtonContents), needed.width()) << pixels;
    EXPECT_GE(contentsWidth(check, QStyle::SE_CheckBoxContents), needed.width()) << pixels;
    EXPECT_GE(contentsWidth(radio, QStyle::SE_RadioButtonContents), needed.width()) << pixels;
  }
}

TEST_F(ControlStyle, ScrollThumbStaysInItsBar) {
  QStyleOptionSlider bar;
  bar.rect = QRect(0, 0, 12, 200);
  bar.orientation = Qt::Vertical;
  for (const auto& [minimum, maximum, page] :
       {std::array{-50, 50, 100}, {0, 0, 10}, {0, INT_MAX, 1}, {INT_MIN, INT_MAX, INT_MAX}}) {
    bar.minimum = minimum;
    bar.maximum = bar.sliderPosition = maximum;
    bar.pageStep = page;
    const QRect thumb = QApplication::style()->subControlRect(QStyle::CC_ScrollBar, &bar,
                                                              QStyle::SC_ScrollBarSlider, nullptr);
    EXPECT_TRUE(bar.rect.contains(thumb)) << maximum;
    EXPECT_GE(thumb.height(), page == 100 ? 99 : 16);
  }
}

}  // namespace
