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

QImage builtin(int id, int variant) {
  char* data = nullptr;
  const int wanted = variant;
  const int size = SharedResources::GetBuiltinResource(id, variant, data);
  EXPECT_EQ(variant, wanted);
  const std::unique_ptr<char, void (*)(void*)> owned(data, std::free);
  return QImage::fromData(reinterpret_cast<const uchar*>(data), size, "PNG");
}

// Whether everything that is inked strongly has the colour, and something is.
void expectInked(const QImage& image, const QColor& ink) {
  int inked = 0;
  for (int i = 0; i < image.width() * image.height(); ++i) {
    const QColor pixel = image.pixelColor(i % image.width(), i / image.width());
    if (pixel.alpha() < 200) continue;
    ++inked;
    EXPECT_LE(std::abs(pixel.red() - ink.red()), 3);
  }
  EXPECT_GT(inked, image.width() * image.height() / 7);
}

TEST(BuiltinIcons, ComeInBothInksAndSizes) {
  for (const int id : {16041, 16055}) {
    for (int variant = 0; variant < 4; ++variant) {
      SCOPED_TRACE(std::to_string(id) + " " + std::to_string(variant));
      const QImage image = builtin(id, variant);
      ASSERT_EQ(image.width(), (variant & 2) != 0 ? 32 : 16);
      expectInked(image, host::iconInk((variant & 1) != 0 ? host::Theme::Dark : host::Theme::Light));
    }
  }
  EXPECT_NE(builtin(16041, 0), builtin(16055, 0));
}

}  // namespace
