#include "LoadPixmap.h"

#include <QPixmapCache>
#include <limits>

#include "Pictures.h"
#include "ToolkitTest.h"

namespace {

using host::Theme;
using qRVADM::LoadPixmap;

enum Version : int {
  kPlain = 0,
  kLight = 1000,
  kDark = 2000,
  kPlain2x = 4000,
  kLight2x = 5000,
  kDark2x = 6000
};

constexpr Version kVersions[] = {kPlain, kLight, kDark, kPlain2x, kLight2x, kDark2x};

QColor ColorOf(Version version) {
  return QColor::fromHsv(version / 1000 * 40, 255, 255);
}

class LoadPixmapTest : public ToolkitTest {
 protected:
  void WritePNG(int id, Version version, int width = 20, int height = 20) const {
    const int single = version >= kPlain2x ? version - 4000 : version;
    const std::string name = "png/p" + std::to_string(id + single);
    bundle.Write(name + (version >= kPlain2x ? "@2x.png" : ".png"),
                 PNGPicture(width, height, ColorOf(version)));
  }
  void WriteSVG(int id, int width, int height, const QColor& color = Qt::red) const {
    bundle.Write(
        "svg/s" + std::to_string(id) + ".svg",
        SVGPicture("viewBox=\"0 0 " + std::to_string(width) + " " + std::to_string(height) + "\"", color));
  }
  // Suite calls that it takes to get the picture.
  std::uint64_t CallsFor(int id, double ratio = 1) {
    const std::uint64_t before = SuiteCalls();
    EXPECT_FALSE(LoadPixmap(id, 2, ratio).isNull()) << id;
    return SuiteCalls() - before;
  }
};

TEST_F(LoadPixmapTest, PicksVersionAndResolution) {
  const struct {
    std::vector<Version> files;
    Theme host;
    int mode;
    double ratio;
    int expected;  // a Version; -1: none
    double expectedRatio;
  } cases[] = {
      {{kPlain, kLight, kDark}, Theme::Light, 0, 1, kLight, 1},
      {{kPlain, kLight, kDark}, Theme::Dark, 0, 1, kDark, 1},
      {{kPlain, kLight, kDark}, Theme::Light, 1, 1, kDark, 1},
      {{kPlain, kLight, kDark}, Theme::Dark, 1, 1, kLight, 1},
      {{kPlain, kLight, kDark}, Theme::Dark, 2, 1, kLight, 1},
      {{kPlain, kLight, kDark}, Theme::Light, 2, 1, kLight, 1},
      {{kPlain, kLight, kDark}, Theme::Light, 3, 1, kDark, 1},
      {{kPlain, kLight, kDark}, Theme::Dark, 3, 1, kDark, 1},
      {{kPlain, kLight, kDark}, Theme::Dark, 4, 1, kDark, 1},
      {{kPlain, kLight, kDark, kPlain2x, kLight2x, kDark2x}, Theme::Dark, 0, 2, kDark2x, 2},
      {{kPlain, kLight, kDark, kPlain2x, kLight2x, kDark2x}, Theme::Light, 0, 1.5, kLight2x, 1.5},
      {{kPlain, kLight, kDark, kPlain2x, kLight2x, kDark2x}, Theme::Light, 0, 0.5, kLight, 0.5},
      {{kPlain, kLight, kDark, kPlain2x, kLight2x}, Theme::Dark, 0, 2, kPlain2x, 2},
      {{kPlain, kLight, kDark}, Theme::Dark, 0, 2, kPlain, 1},
      {{kPlain, kLight}, Theme::Dark, 0, 1, kPlain, 1},
      {{kPlain}, Theme::Dark, 0, 0.5, kPlain, 1},
      {{kLight, kLight2x}, Theme::Dark, 0, 2, -1, 0},
      {{kDark}, Theme::Dark, 0, 2, -1, 0},
      {{}, Theme::Light, 0, 1, -1, 0},
  };
  int id = 16200;
  for (const auto& c : cases) {
    SCOPED_TRACE(id - 16200);
    for (const Version version : c.files) WritePNG(id, version);
    host::setTheme(c.host);
    for (int time = 0; time < 2; ++time) {
      const QPixmap pixmap = LoadPixmap(id, c.mode, c.ratio);
      ASSERT_EQ(pixmap.isNull(), c.expected < 0);
      if (pixmap.isNull()) continue;
      EXPECT_EQ(pixmap.toImage().pixelColor(5, 5).name(), ColorOf(static_cast<Version>(c.expected)).name());
      EXPECT_EQ(pixmap.devicePixelRatio(), c.expectedRatio);
    }
    ++id;
  }
}

TEST_F(LoadPixmapTest, PicturesWithoutVersions) {
  for (const Version version : kVersions) WritePNG(17400, version);
  WritePNG(19410, kPlain2x);
  WritePNG(19411, kPlain);
  host::setTheme(Theme::Dark);
  EXPECT_EQ(LoadPixmap(17400, 0, 1).toImage().pixelColor(0, 0).name(), ColorOf(kPlain).name());
  EXPECT_EQ(LoadPixmap(17400, 3, 2).toImage().pixelColor(0, 0).name(), ColorOf(kPlain2x).name());
  EXPECT_TRUE(LoadPixmap(19410, 0, 1).isNull());
  EXPECT_EQ(LoadPixmap(19410, 0, 2).devicePixelRatio(), 2);
  EXPECT_EQ(LoadPixmap(19411, 0, 2).devicePixelRatio(), 1);
}

TEST_F(LoadPixmapTest, SVGIsDrawnInEveryRatio) {
  WriteSVG(25500, 33, 17);
  const struct {
    double ratio;
    QSize size;
  } cases[] = {{1, {16, 8}}, {1.25, {20, 10}}, {1.5, {24, 12}}, {2, {33, 17}}, {3, {49, 25}}};
  for (const auto& c : cases) {
    const QPixmap pixmap = LoadPixmap(25500, 0, c.ratio);
    EXPECT_EQ(pixmap.size(), c.size) << c.ratio;
    EXPECT_EQ(pixmap.devicePixelRatio(), c.ratio);
    EXPECT_EQ(pixmap.toImage().pixelColor(3, 3), QColor(Qt::red));
  }
}

TEST_F(LoadPixmapTest, SVGVersions) {
  WriteSVG(25001, 40, 40, Qt::green);
  WriteSVG(26001, 40, 40, Qt::blue);
  WriteSVG(24001, 40, 40, Qt::red);
  WriteSVG(24002, 40, 40, Qt::red);
  const auto colorOf = [](int id, int mode) { return LoadPixmap(id, mode, 1).toImage().pixelColor(2, 2); };
  EXPECT_EQ(colorOf(24001, 0), QColor(Qt::green));
  EXPECT_EQ(colorOf(24001, 1), QColor(Qt::blue));
  host::setTheme(Theme::Dark);
  EXPECT_EQ(colorOf(24001, 0), QColor(Qt::blue));
  EXPECT_EQ(colorOf(24002, 0), QColor(Qt::red)) << "for want of a dark one";
  EXPECT_EQ(colorOf(25001, 0), QColor(Qt::green)) << "an id of its own";
  EXPECT_TRUE(LoadPixmap(24003, 0, 1).isNull());
}

TEST_F(LoadPixmapTest, PicturesAreTransparentWhereNothingIsDrawn) {
  bundle.Write("svg/s25510.svg",
               "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 40 40\">"
               "<rect width=\"20\" height=\"40\"/></svg>");
  const QImage image = LoadPixmap(25510, 0, 1).toImage();
  EXPECT_EQ(image.pixelColor(2, 2).alpha(), 255);
  EXPECT_EQ(image.pixelColor(17, 2).alpha(), 0);
}

TEST_F(LoadPixmapTest, SmallPicturesAreKept) {
  const struct {
    int id;
    int width, height;
    bool kept;
  } cases[] = {{16500, 20, 20, true},
               {16501, 128, 128, true},
               {16502, 16384, 1, true},
               {16503, 129, 128, false},
               {16504, 200, 200, false}};
  for (const auto& c : cases) {
    WritePNG(c.id, kLight, c.width, c.height);
    EXPECT_GT(CallsFor(c.id), 0U);
    EXPECT_EQ(CallsFor(c.id) == 0, c.kept) << c.id;
  }
  WriteSVG(25520, 40, 40);
  EXPECT_GT(CallsFor(25520), 0U);
  EXPECT_EQ(CallsFor(25520), 0U);
  EXPECT_GT(CallsFor(25520, 2), 0U) << "another ratio is another picture";
  EXPECT_EQ(CallsFor(25520, 2), 0U);
  EXPECT_EQ(CallsFor(25520), 0U);
}

TEST_F(LoadPixmapTest, DroppedPicturesComeBack) {
  WritePNG(16510, kLight);
  WriteSVG(25530, 40, 40);
  for (const int id : {16510, 25530}) {
    CallsFor(id);
    QPixmapCache::clear();
    EXPECT_GT(CallsFor(id), 0U);
    EXPECT_EQ(CallsFor(id), 0U);
  }
}

// What Qt has no room for is not missing.
TEST_F(LoadPixmapTest, PicturesComeWithoutAnyCache) {
  WritePNG(16520, kLight, 100, 100);
  const int limit = QPixmapCache::cacheLimit();
  QPixmapCache::setCacheLimit(1);
  EXPECT_GT(CallsFor(16520), 0U);
  EXPECT_GT(CallsFor(16520), 0U);
  QPixmapCache::setCacheLimit(limit);
  EXPECT_GT(CallsFor(16520), 0U);
  EXPECT_EQ(CallsFor(16520), 0U);
}

TEST_F(LoadPixmapTest, MissingPicturesAreSoughtOnce) {
  for (const int id : {16530, 19530, 24930, 25540}) {
    EXPECT_TRUE(LoadPixmap(id, 2, 2).isNull()) << id;
    const std::uint64_t before = SuiteCalls();
    EXPECT_TRUE(LoadPixmap(id, 2, 2).isNull()) << id;
    EXPECT_EQ(SuiteCalls(), before) << id;
  }
  WritePNG(16530, kLight2x);
  EXPECT_TRUE(LoadPixmap(16530, 2, 2).isNull()) << "known to be missing";
  WritePNG(16530, kLight);
  EXPECT_FALSE(LoadPixmap(16530, 2, 1).isNull()) << "a version of its own, not sought before";
}

TEST_F(LoadPixmapTest, RatiosThatAreNone) {
  WritePNG(16540, kLight);
  WriteSVG(25550, 40, 40);
  for (const double ratio :
       {0.0, -1.0, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    EXPECT_TRUE(LoadPixmap(16540, 2, ratio).isNull()) << ratio;
    EXPECT_TRUE(LoadPixmap(25550, 2, ratio).isNull()) << ratio;
  }
  EXPECT_TRUE(LoadPixmap(25550, 2, 1e9).isNull());
  EXPECT_TRUE(LoadPixmap(25550, 2, 1e-9).isNull());
  EXPECT_FALSE(LoadPixmap(16540, 2, 1).isNull());
  EXPECT_FALSE(LoadPixmap(25550, 2, 1).isNull());
}

TEST_F(LoadPixmapTest, NothingWithoutAPlugin) {
  WritePNG(16550, kLight);
  qRVADM::SetIconPlugin(nullptr);
  EXPECT_TRUE(LoadPixmap(16550, 2, 1).isNull());
}

}  // namespace
