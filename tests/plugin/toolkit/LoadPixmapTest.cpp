#include "LoadPixmap.h"

#include <QPixmapCache>
#include <limits>
#include <vector>

#include "ToolkitTest.h"

namespace {

using host::Theme;
constexpr Theme kLightHost = Theme::Light, kDarkHost = Theme::Dark;
using qRVADM::LoadPixmap;

enum Version { kPlain, kLight, kDark, kPlain2x = 4, kLight2x, kDark2x, kNone = -1 };

QColor ColorOf(Version version) {
  return QColor::fromHsv(version * 40, 255, 255);
}

class LoadPixmapTest : public ToolkitTest {
 protected:
  static void WritePNG(int id, Version version) {
    bundle.WritePicture(id + version % 4 * 1000, ColorOf(version), 20, 20, version >= kPlain2x);
  }
};

TEST_F(LoadPixmapTest, PicksVersionAndResolution) {
  const std::vector<Version> single{kPlain, kLight, kDark}, bothPlain{kPlain, kPlain2x},
      bothLight{kLight, kLight2x}, plain2x{kPlain2x}, all{kPlain, kLight, kDark, kPlain2x, kLight2x, kDark2x};
  const struct {
    int firstId, mode;  // from 17000 on there are no versions
    double ratio, expectedRatio;
    Theme host;
    Version expected;
    std::vector<Version> files;
  } cases[] = {{16200, 0, 1, 1, kLightHost, kLight, single}, {16200, 0, 1, 1, kDarkHost, kDark, single},
               {16200, 1, 1, 1, kLightHost, kDark, single},  {16200, 1, 1, 1, kDarkHost, kLight, single},
               {16200, 2, 1, 1, kDarkHost, kLight, single},  {16200, 3, 1, 1, kLightHost, kDark, single},
               {16200, 0, 2, 2, kDarkHost, kDark2x, all},    {16200, 0, 1.5, 1.5, kLightHost, kLight2x, all},
               {16200, 0, 2, 1, kDarkHost, kPlain, single},  {16200, 0, 2, 2, kDarkHost, kPlain2x, bothPlain},
               {17400, 3, 2, 2, kDarkHost, kPlain2x, all},   {16200, 0, 2, 0, kDarkHost, kNone, bothLight},
               {17400, 0, 2, 1, kLightHost, kPlain, single}, {17400, 0, 1, 0, kLightHost, kNone, plain2x}};
  for (const auto& c : cases) {
    const int id = c.firstId + static_cast<int>(&c - cases);
    for (const Version version : c.files) WritePNG(id, version);
    host::setTheme(c.host);
    for (const bool again : {false, true}) {
      const QPixmap pixmap = LoadPixmap(id, c.mode, c.ratio);
      ASSERT_EQ(pixmap.isNull(), c.expected == kNone) << id << again;
      if (pixmap.isNull()) continue;
      EXPECT_EQ(pixmap.toImage().pixelColor(5, 5).name(), ColorOf(c.expected).name()) << id << again;
      EXPECT_EQ(pixmap.devicePixelRatio(), c.expectedRatio) << id << again;
    }
  }
}

TEST_F(LoadPixmapTest, SVGIsDrawnInEveryRatioOnNothing) {
  bundle.Write("svg/s25500.svg",
               "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 33 17\">"
               "<rect width=\"20\" height=\"17\" fill=\"red\"/></svg>");
  for (const auto& [ratio, size] : {std::pair{1.0, QSize(16, 8)}, {1.5, {24, 12}}, {3, {49, 25}}}) {
    const QPixmap pixmap = LoadPixmap(25500, 0, ratio);
    ASSERT_EQ(pixmap.size(), size) << ratio;
    EXPECT_EQ(pixmap.devicePixelRatio(), ratio);
    EXPECT_EQ(pixmap.toImage().pixelColor(3, 3), QColor(Qt::red));
    EXPECT_EQ(pixmap.toImage().pixelColor(size.width() - 2, 3).alpha(), 0);
  }
}

TEST_F(LoadPixmapTest, NothingComesOfBadRatiosOrWithoutAPlugin) {
  WritePNG(16540, kLight);
  bundle.Write("svg/s25550.svg", SVGPicture("viewBox=\"0 0 40 40\""));
  constexpr double infinity = std::numeric_limits<double>::infinity();
  for (const double ratio : {0.0, -1.0, infinity, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_TRUE(LoadPixmap(16540, 2, ratio).isNull()) << ratio;
    EXPECT_TRUE(LoadPixmap(25550, 2, ratio).isNull()) << ratio;
  }
  EXPECT_TRUE(LoadPixmap(25550, 2, 1e9).isNull());
  qRVADM::SetToolkitPlugin(nullptr);
  EXPECT_TRUE(LoadPixmap(25550, 2, 1).isNull());
}

}  // namespace
