#include "ControlColors.h"

#include <QLabel>
#include <QSpinBox>
#include <cstring>

#include "PaletteRoles.h"
#include "QtManager.h"
#include "ToolkitTest.h"

namespace {

using P = QPalette;

// Draws by other means than the rest; told by its name alone.
class GLWidget : public QWidget {
 public:
  void* qt_metacast(const char* name) override {
    return std::strcmp(name, "QGLWidget") == 0 ? this : QWidget::qt_metacast(name);
  }
};

using ControlColorsTest = ToolkitTest;

QColor Of(const QWidget& widget, unsigned code) {
  return qRVADM::ColorOfCode(widget, code, QColor(1, 2, 3, 100));
}

TEST_F(ControlColorsTest, CodesOfThePalette) {
  QPalette motley;  // no two colours alike
  for (int i = 0; i < 3 * P::NColorRoles; ++i) {
    motley.setColor(static_cast<P::ColorGroup>(i % 3), static_cast<P::ColorRole>(i / 3), QColor(i, 5, 7));
  }
  const std::pair<unsigned, P::ColorRole> cases[] = {{0, P::Link},   {1, P::Base},    {2, P::Highlight},
                                                     {4, P::Light},  {5, P::Window},  {3, P::HighlightedText},
                                                     {6, P::Shadow}, {13, P::Window}, {15, P::WindowText},
                                                     {111, P::Link}};
  QLabel label;
  label.setForegroundRole(P::Link);
  label.setBackgroundRole(P::Base);
  label.setPalette(motley);
  for (const bool on : {true, false}) {
    label.setEnabled(on);
    for (const auto& [code, role] : cases) {
      EXPECT_EQ(Of(label, code), motley.color(on ? P::Active : P::Disabled, role)) << code << on;
    }
    EXPECT_EQ(Of(label, 7), motley.color(P::Disabled, P::WindowText)) << on;
    EXPECT_EQ(Of(label, 112),
              RVADMQtManager::QtManager::GetControlColor(&label, RVADMQtManager::kControlBackground, on));
  }
}

TEST_F(ControlColorsTest, WarningsAreRedOnLightAndDark) {
  const std::pair<QColor, QColor> cases[] = {{QColor(0, 0, 0), QColor::fromRgbF(0.5, 0, 0)},
                                             {QColor(204, 204, 204, 10), QColor::fromRgbF(1, 0.3, 0.3)}};
  for (const auto& [text, warning] : cases) {
    QWidget widget;
    QPalette palette;
    palette.setColor(P::WindowText, text);
    widget.setPalette(palette);
    EXPECT_EQ(Of(widget, 16).rgba(), warning.rgba()) << text.name().toStdString();
  }
}

TEST_F(ControlColorsTest, OtherCodesAreColoursThemselves) {
  const std::pair<unsigned, QColor> cases[] = {{8, Qt::black},
                                               {113, Qt::black},
                                               {0xFFFFFFFF, Qt::white},
                                               {256, QColor(0, 0, 1)},
                                               {0x12345600, QColor(0x12, 0x34, 0x56)},
                                               {254, QColor(1, 2, 3, 100)}};
  for (const auto& [code, color] : cases) EXPECT_EQ(Of(QWidget(), code), color) << code;
  EXPECT_EQ(Of(GLWidget(), 254), QColor(1, 2, 3)) << "the graphics card's are opaque";
}

}  // namespace
