#include "Icons.h"

#include "BrightnessMode.h"
#include "Pictures.h"
#include "QtManager.h"
#include "ToolkitTest.h"

namespace {

using qRVADM::AddIconPixmaps;
using qRVADM::GetIcon;

class IconsTest : public ToolkitTest {
 protected:
  using ToolkitTest::ToolkitTest;

  void Write(const std::string& name, const QColor& color, int side = 16) const {
    bundle.Write("png/p" + name + ".png", PNGPicture(side, side, color));
  }
};

class FineDisplayIconsTest : public IconsTest {
 protected:
  FineDisplayIconsTest() : IconsTest("2") {}
};

QColor ColorOf(const QIcon& icon, QIcon::Mode mode = QIcon::Normal, QIcon::State state = QIcon::Off) {
  return icon.pixmap(QSize(16, 16), mode, state).toImage().pixelColor(4, 4);
}

TEST_F(IconsTest, IconsFollowTheHostsBrightness) {
  Write("17700", Qt::green);
  Write("18700", Qt::blue);
  EXPECT_EQ(ColorOf(GetIcon(16700)), QColor(Qt::green));
  host::setTheme(host::Theme::Dark);
  EXPECT_EQ(ColorOf(GetIcon(16700)), QColor(Qt::blue));
  host::setTheme(host::Theme::Light);
  EXPECT_EQ(ColorOf(GetIcon(16700)), QColor(Qt::green));
}

TEST_F(IconsTest, MissingIconsAreNull) {
  EXPECT_TRUE(GetIcon(16701).isNull());
  EXPECT_TRUE(GetIcon(0).isNull());
  EXPECT_TRUE(GetIcon(-1).isNull());
  QIcon icon;
  EXPECT_FALSE(AddIconPixmaps(icon, 16701, qRVADM::kHostBrightness, QIcon::Normal, QIcon::Off));
  EXPECT_TRUE(icon.isNull());
}

TEST_F(IconsTest, ModesAndStatesStayApart) {
  Write("17702", Qt::green);
  Write("18702", Qt::blue);
  QIcon icon;
  EXPECT_TRUE(AddIconPixmaps(icon, 16702, qRVADM::kLightBrightness, QIcon::Normal, QIcon::Off));
  EXPECT_TRUE(AddIconPixmaps(icon, 16702, qRVADM::kDarkBrightness, QIcon::Normal, QIcon::On));
  EXPECT_EQ(ColorOf(icon, QIcon::Normal, QIcon::Off), QColor(Qt::green));
  EXPECT_EQ(ColorOf(icon, QIcon::Normal, QIcon::On), QColor(Qt::blue));
  EXPECT_EQ(icon.availableSizes().size(), 1);
}

TEST_F(FineDisplayIconsTest, BothResolutionsAreAdded) {
  Write("17710", Qt::green);
  Write("17710@2x", Qt::blue, 32);
  ASSERT_EQ(qApp->devicePixelRatio(), 2);
  const QIcon icon = GetIcon(16710);
  EXPECT_EQ(icon.availableSizes(), (QList<QSize>{{16, 16}, {32, 32}}));
}

TEST_F(FineDisplayIconsTest, SingleResolutionDecides) {
  Write("17711@2x", Qt::blue, 32);
  QIcon icon;
  EXPECT_FALSE(AddIconPixmaps(icon, 16711, qRVADM::kLightBrightness, QIcon::Normal, QIcon::Off));
  EXPECT_FALSE(icon.isNull()) << "what there is is added all the same";
}

// Pictures that the manager library has come before the plug-in's own.
TEST_F(IconsTest, SharedPicturesComeFirst) {
  int shared = 0;
  for (const int first : {16000, 16800}) {
    for (int id = first; id < first + 100; ++id) {
      int variant = 0;
      char* data = nullptr;
      const bool has = RVADMQtManager::SharedResources::GetBuiltinResource(id, variant, data) > 0;
      std::free(data);
      Write(std::to_string(id + 1000), QColor(1, 2, 3));
      EXPECT_NE(ColorOf(GetIcon(id)) == QColor(1, 2, 3), has) << id;
      shared += has ? 1 : 0;
    }
  }
  RecordProperty("shared", shared);
}

}  // namespace
