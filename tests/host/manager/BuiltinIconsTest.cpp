// The pictures that plug-ins share.
#include <QImage>
#include <cstdlib>
#include <memory>
#include <string>

#include "Application.h"
#include "QtManager.h"
#include "ThemePalette.h"

namespace {

using RVADMQtManager::SharedResources;

struct Found {
  int size;
  int variant;
  QImage image;
};

Found builtin(int id, int variant) {
  char* data = nullptr;
  const int size = SharedResources::GetBuiltinResource(id, variant, data);
  const std::unique_ptr<char, void (*)(void*)> owned(data, std::free);
  return {size, variant, QImage::fromData(reinterpret_cast<const uchar*>(data), size, "PNG")};
}

// How much of the picture is inked, and whether everything inked strongly has the colour.
double inkedShare(const QImage& image, const QColor& ink) {
  int inked = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor pixel = image.pixelColor(x, y);
      if (pixel.alpha() < 200) continue;
      ++inked;
      EXPECT_LE(std::abs(pixel.red() - ink.red()), 3);
    }
  }
  return static_cast<double>(inked) / (image.width() * image.height());
}

TEST(BuiltinIcons, ComeInBothInksAndSizes) {
  for (const int id : {16041, 16055}) {
    for (int variant = 0; variant < 4; ++variant) {
      SCOPED_TRACE(std::to_string(id) + " " + std::to_string(variant));
      const Found found = builtin(id, variant);
      ASSERT_GT(found.size, 0);
      EXPECT_EQ(found.variant, variant);
      const int side = (variant & 2) != 0 ? 32 : 16;
      EXPECT_EQ(found.image.size(), QSize(side, side));
      const double share =
          inkedShare(found.image, host::iconInk((variant & 1) != 0 ? host::Theme::Dark : host::Theme::Light));
      EXPECT_GT(share, 0.15);  // the strokes lie on whole pixels, so that they stay crisp
      EXPECT_LT(share, 0.6);
    }
  }
  EXPECT_NE(builtin(16041, 0).image, builtin(16055, 0).image);
}

TEST(BuiltinIcons, AreMissingWithoutHarm) {
  for (const int id : {16000, 16042, 0, -1, 16899}) {
    char other = 'x';
    char* data = &other;
    int variant = 3;
    EXPECT_EQ(SharedResources::GetBuiltinResource(id, variant, data), 0) << id;
    EXPECT_EQ(data, nullptr);
    EXPECT_EQ(variant, 3);
  }
}

}  // namespace
