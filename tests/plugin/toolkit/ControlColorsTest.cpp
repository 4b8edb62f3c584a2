#include "ControlColors.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTextEdit>
#include <cstring>

#include "PaletteRoles.h"
#include "QtManager.h"
#include "ToolkitTest.h"

namespace {

using qRVADM::ColorOfCode;

// Draws by other means than the rest; told by its name alone.
class GLWidget : public QWidget {
 public:
  void* qt_metacast(const char* name) override {
    return std::strcmp(name, "QGLWidget") == 0 ? this : QWidget::qt_metacast(name);
  }
};

class ControlColorsTest : public ToolkitTest {
 protected:
  // A palette in which no two colours are alike.
  static QPalette Motley() {
    QPalette palette;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
      for (int role = 0; role < QPalette::NColorRoles; ++role) {
        palette.setColor(group, static_cast<QPalette::ColorRole>(role),
                         QColor(40 * group + 100, role * 5, 7));
      }
    }
    return palette;
  }
  static QColor Of(const QWidget& widget, std::uint32_t code) { return ColorOfCode(widget, code, Qt::cyan); }
};

TEST_F(ControlColorsTest, CodesOfThePalette) {
  const struct {
    std::uint32_t code;
    QPalette::ColorRole role;
  } cases[] = {
      {0, QPalette::WindowText},      {1, QPalette::Window}, {2, QPalette::Highlight},
      {3, QPalette::HighlightedText}, {4, QPalette::Light},  {5, QPalette::Window},
      {13, QPalette::Window},         {6, QPalette::Shadow}, {14, QPalette::WindowText},
      {15, QPalette::WindowText},     {111, QPalette::Link},
  };
  QWidget widget;
  const QPalette palette = Motley();
  widget.setPalette(palette);
  for (const bool enabled : {true, false}) {
    widget.setEnabled(enabled);
    for (const auto& c : cases) {
      EXPECT_EQ(Of(widget, c.code), palette.color(enabled ? QPalette::Active : QPalette::Disabled, c.role))
          << c.code << enabled;
    }
    EXPECT_EQ(Of(widget, 7), palette.color(QPalette::Disabled, QPalette::WindowText)) << enabled;
    EXPECT_EQ(Of(widget, 112), RVADMQtManager::QtManager::GetControlColor(
                                   &widget, RVADMQtManager::kControlBackground, enabled))
        << enabled;
  }
}

TEST_F(ControlColorsTest, TextAndBackgroundFollowTheWidgetsRoles) {
  QPushButton button;
  QLabel label;
  label.setForegroundRole(QPalette::Link);
  label.setBackgroundRole(QPalette::Base);
  for (QWidget* widget : {static_cast<QWidget*>(&button), static_cast<QWidget*>(&label)}) {
    widget->setPalette(Motley());
    EXPECT_EQ(Of(*widget, 0), Motley().color(QPalette::Active, widget->foregroundRole()));
    EXPECT_EQ(Of(*widget, 1), Motley().color(QPalette::Active, widget->backgroundRole()));
  }
}

TEST_F(ControlColorsTest, RolesThatAreLeftOpen) {
  const auto none = QPalette::NoRole;
  const struct {
    QPalette::ColorRole foreground, background;
    bool isField;
    QPalette::ColorRole text, paper;
  } cases[] = {
      {QPalette::Link, none, true, QPalette::Link, QPalette::Base},
      {QPalette::Link, QPalette::Base, false, QPalette::Link, QPalette::Base},
      {none, QPalette::Base, false, QPalette::Text, QPalette::Base},
      {none, QPalette::Base, true, QPalette::Text, QPalette::Base},
      {none, none, true, QPalette::Text, QPalette::Base},
      {none, none, false, QPalette::WindowText, QPalette::Window},
      {none, QPalette::Window, true, QPalette::WindowText, QPalette::Window},
      {none, QPalette::Button, false, QPalette::WindowText, QPalette::Button},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(qRVADM::TextRole(c.foreground, c.background, c.isField), c.text);
    EXPECT_EQ(qRVADM::BackgroundRole(c.background, c.isField), c.paper);
  }
}

TEST_F(ControlColorsTest, Fields) {
  EXPECT_TRUE(qRVADM::IsField(QLineEdit()));
  EXPECT_TRUE(qRVADM::IsField(QTextEdit()));
  EXPECT_TRUE(qRVADM::IsField(QPlainTextEdit()));
  EXPECT_TRUE(qRVADM::IsField(QDoubleSpinBox()));
  EXPECT_TRUE(qRVADM::IsField(QListView()));
  EXPECT_FALSE(qRVADM::IsField(QComboBox()));
  EXPECT_FALSE(qRVADM::IsField(QLabel()));
  EXPECT_FALSE(qRVADM::IsField(QWidget()));
}

TEST_F(ControlColorsTest, WarningsAreRedOnLightAndDark) {
  const struct {
    QColor text, warning;
  } cases[] = {
      {QColor(0, 0, 0), QColor::fromRgbF(0.5, 0, 0)},
      {QColor(255, 255, 255), QColor::fromRgbF(1, 0.5, 0.5)},
      {QColor(0, 0, 255), QColor::fromRgbF(1, 0, 0)},
      {QColor(51, 51, 51), QColor::fromRgbF(0.7, 0, 0)},
      {QColor(204, 204, 204, 10), QColor::fromRgbF(1, 0.3, 0.3)},
  };
  for (const auto& c : cases) {
    QWidget widget;
    QPalette palette;
    palette.setColor(QPalette::WindowText, c.text);
    widget.setPalette(palette);
    EXPECT_EQ(Of(widget, 16).rgba(), c.warning.rgba()) << c.text.name().toStdString();
  }
}

TEST_F(ControlColorsTest, OtherCodesAreColoursThemselves) {
  const QWidget widget;
  const struct {
    std::uint32_t code;
    QColor color;
  } cases[] = {
      {0x636363FF, QColor(0x63, 0x63, 0x63)},
      {0xFFFFFFFF, Qt::white},
      {0x12345600, QColor(0x12, 0x34, 0x56)},
      {0xFF000000, Qt::red},
      {8, Qt::black},
      {12, Qt::black},
      {17, Qt::black},
      {110, Qt::black},
      {113, Qt::black},
      {253, Qt::black},
      {255, Qt::black},
      {256, QColor(0, 0, 1)},
  };
  for (const auto& c : cases) EXPECT_EQ(Of(widget, c.code), c.color) << c.code;
  EXPECT_EQ(Of(widget, 254), QColor(Qt::cyan));
}

TEST_F(ControlColorsTest, WidgetsOfTheGraphicsCardAreOpaque) {
  const QColor glass(1, 2, 3, 100);
  QPalette palette;
  palette.setColor(QPalette::WindowText, glass);
  QWidget widget;
  GLWidget gl;
  widget.setPalette(palette);
  gl.setPalette(palette);
  EXPECT_EQ(Of(widget, 15), glass);
  EXPECT_EQ(Of(gl, 15), QColor(1, 2, 3));
  EXPECT_EQ(ColorOfCode(widget, 254, glass), glass);
  EXPECT_EQ(ColorOfCode(gl, 254, glass), QColor(1, 2, 3));
}

}  // namespace
