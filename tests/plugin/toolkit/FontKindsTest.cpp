#include "FontKinds.h"

#include <QFontInfo>
#include <limits>

#include "ToolkitTest.h"

namespace {

using qRVADM::FontOfKind;

class FontKindsTest : public ToolkitTest {};

TEST_F(FontKindsTest, SizeWeightAndSlant) {
  const struct {
    int kind, pixelSize, weight;
    bool italic, fixed;
  } cases[] = {
      {1, 12, 50, false, false},  {2, 10, 50, false, false}, {3, 12, 50, true, false},
      {4, 10, 50, true, false},   {5, 12, 75, false, false}, {6, 10, 75, false, false},
      {7, 12, 75, true, false},   {8, 10, 75, true, false},  {9, 12, 50, false, true},
      {10, 12, 50, true, true},   {11, 12, 75, false, true}, {12, 12, 75, true, true},
      {13, 11, 50, false, false},
  };
  QFont widgets(QStringLiteral("DejaVu Serif"));
  widgets.setPointSize(30);
  widgets.setUnderline(true);
  for (const bool italic : {false, true}) {
    widgets.setItalic(italic);
    widgets.setWeight(italic ? QFont::Black : QFont::Thin);
    for (const auto& c : cases) {
      const QFont font = FontOfKind(widgets, c.kind);
      EXPECT_EQ(font.pixelSize(), c.pixelSize) << c.kind;
      EXPECT_EQ(font.weight(), c.weight) << c.kind;
      EXPECT_EQ(font.italic(), c.italic) << c.kind;
      EXPECT_EQ(font.family(), QString(c.fixed ? "Menlo,Monaco" : "DejaVu Serif")) << c.kind;
      EXPECT_TRUE(font.underline()) << c.kind;
      EXPECT_EQ(QFontInfo(font).fixedPitch(), c.fixed) << c.kind << QFontInfo(font).family().toStdString();
    }
  }
}

TEST_F(FontKindsTest, OtherKindsAreTheApplicationsFont) {
  const QFont widgets(QStringLiteral("DejaVu Serif"), 30);
  for (const int kind : {0, 14, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    EXPECT_EQ(FontOfKind(widgets, kind), QApplication::font()) << kind;
  }
}

}  // namespace
