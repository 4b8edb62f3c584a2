#include "Icons.h"

#include "BrightnessMode.h"
#include "ToolkitTest.h"

namespace {

struct FineDisplay {
  FineDisplay() { setenv("QT_SCALE_FACTOR", "2", 1); }
  ~FineDisplay() { unsetenv("QT_SCALE_FACTOR"); }
};

class IconsTest : FineDisplay, public ToolkitTest {
 protected:
  static QColor ColorOf(int id) {
    return qRVADM::GetIcon(id).pixmap(QSize(16, 16)).toImage().pixelColor(4, 4);
  }
};

TEST_F(IconsTest, HaveBothResolutionsAndNeedTheSingleOne) {
  bundle.WritePicture(17710, Qt::green);
  bundle.WritePicture(17710, Qt::blue, 32, 32, true);
  EXPECT_EQ(qRVADM::GetIcon(16710).availableSizes(), (QList<QSize>{{16, 16}, {32, 32}}));
  bundle.WritePicture(17711, Qt::blue, 32, 32, true);
  QIcon icon;
  EXPECT_FALSE(qRVADM::AddIconPixmaps(icon, 16711, qRVADM::kLightBrightness, QIcon::Normal, QIcon::Off));
  EXPECT_FALSE(icon.isNull()) << "what there is is added all the same";
  for (const int id : {16712, 0, -1}) EXPECT_TRUE(qRVADM::GetIcon(id).isNull()) << id;
}

// 16041 is one that the manager library has for all plug-ins; it has no 16042.
TEST_F(IconsTest, AreSharedPicturesBeforeThePluginsOwn) {
  for (const int id : {16041, 16042}) {
    bundle.WritePicture(id + 1000, QColor(1, 2, 3));
    EXPECT_EQ(ColorOf(id) == QColor(1, 2, 3), id == 16042) << id;
  }
}

}  // namespace
