#include "PainterCanvas.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <limits>

namespace host {
namespace {

constexpr int kSide = 20;
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

// How many pixels are painted, and their bounds.
struct Painted {
  int count = 0;
  QRect bounds;
};

Painted painted(const AIRect& rect, double lineWidth, bool fill) {
  QImage image(kSide, kSide, QImage::Format_RGB32);
  image.fill(Qt::white);
  {
    QPainter painter(&image);
    PainterCanvas canvas(painter, image.rect());
    canvas.drawRect(rect, {{65535, 0, 32896}, lineWidth}, fill);
  }
  Painted found;
  for (int y = 0; y < kSide; ++y) {
    for (int x = 0; x < kSide; ++x) {
      if (image.pixel(x, y) != qRgb(255, 0, 128)) continue;
      ++found.count;
      found.bounds |= QRect(x, y, 1, 1);
    }
  }
  return found;
}

TEST(PainterCanvas, PaintsTheVeryPixels) {
  const struct {
    AIRect rect;
    double lineWidth;
    bool fill;
    int count;
    QRect bounds;
  } table[] = {
      {{2, 3, 12, 8}, 1, true, 50, {2, 3, 10, 5}},
      {{2, 3, 12, 8}, 1, false, 26, {2, 3, 10, 5}},
      {{2, 3, 12, 9}, 2, false, 48, {2, 3, 10, 6}},
      {{-10, -10, 5, 5}, 1, false, 9, {0, 0, 5, 5}},
      {{kLeast, kLeast, kMost, kMost}, 1, true, kSide * kSide, {0, 0, kSide, kSide}},
      {{kLeast, 4, kMost, kMost}, 2, false, 2 * kSide, {0, 4, kSide, 2}},
  };
  for (const auto& row : table) {
    SCOPED_TRACE(std::to_string(row.rect.left) + ", " + std::to_string(row.rect.top) + " by " +
                 std::to_string(row.lineWidth));
    const Painted found = painted(row.rect, row.lineWidth, row.fill);
    EXPECT_EQ(found.count, row.count);
    EXPECT_TRUE(found.bounds == row.bounds);
  }
}

}  // namespace
}  // namespace host
