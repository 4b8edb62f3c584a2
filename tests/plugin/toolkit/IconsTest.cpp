#include "Icons.h"

#include "BrightnessMode.h"
#include "Pictures.h"
#include "ToolkitTest.h"

namespace {

struct FineDisplay {
  FineDisplay() { setenv("QT_SCALE_FACTOR", "2", 1); }
  ~FineDisplay() { unsetenv("QT_SCALE_FACTOR"); }
};

class IconsTest : FineDisplay, public ToolkitTest {
 protected:
  static void Write(const std::string& name, const QColor& color, int side = 16) {
    bundle.Write("png/p" + name + ".png", PNGPicture(side, side, color));
  }
  static QColor ColorOf(int id) {
    return qRVADM::GetIcon(id).pixmap(QSize(16, 16)).toImage().pixelColor(4, 4);
  }
};

TEST_F(IconsTest, HaveBothResolutionsAndNeedTheSingleOne) {
  Write("17710", Qt::green);
  Write("17710@2x", Qt::blue, 32);
  EXPECT_EQ(qRVADM::GetIcon(16710).availableSizes(), (QList<QSize>{{16, 16}, {32, 32}}));
  Write("17711@2x", Qt::blue, 32);
  QIcon icon;
  EXPECT_FALSE(qRVADM::AddIconPixmaps(icon, 16711, qRVADM::kLightBrightness, QIcon::Normal, QIcon::Off));
  EXPECT_FALSE(icon.isNull()) << "what there is is added all the same";
  for (const int id : {16712, 0, -1}) EXPECT_TRUE(qRVADM::GetIcon(id).isNull()) << id;
}

// 16041 is one that the manager library has for all plug-ins; it has no 16042.
TEST_F(IconsTest, AreSharedPicturesBeforeThePluginsOwn) {
  for (const int id : {16041, 16042}) {
    Write(std::to_string(id + 1000), QColor(1, 2, 3));
    EXPECT_EQ(ColorOf(id) == QColor(1, 2, 3), id == 16042) << id;
  }
}

}  // namespace
