#include "FontKinds.h"

#include <limits>

#include "ToolkitTest.h"

namespace {

using FontKindsTest = ToolkitTest;

TEST_F(FontKindsTest, SetSizeWeightAndSlantAndOtherwiseKeepTheFont) {
  QFont font(QStringLiteral("Serif"), 30, QFont::Black, true);
  font.setUnderline(true);
  // Family, size in points and in pixels, hint (7: all letters of one width), weight, slant, underline, ...
  const std::pair<int, const char*> cases[] = {{8, "Serif,-1,10,5,75,1,1,0,0,0"},
                                               {9, "Menlo,Monaco,-1,12,7,50,0,1,0,0,0"},
                                               {13, "Serif,-1,11,5,50,0,1,0,0,0"}};
  for (const auto& [kind, expected] : cases) {
    EXPECT_EQ(qRVADM::FontOfKind(font, kind).toString(), QString(expected)) << kind;
  }
  for (const int kind : {0, 14, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    EXPECT_EQ(qRVADM::FontOfKind(font, kind), QApplication::font()) << kind;
  }
}

}  // namespace
