// What a widget shows, read pixel by pixel.
#pragma once

#include <QImage>
#include <QWidget>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

using Legend = std::vector<std::pair<char, QColor>>;

// On a screen with so many device pixels a pixel of the widget.
inline QImage Grab(QWidget& widget, int ratio) {
  QImage image(widget.size() * ratio, QImage::Format_ARGB32);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::transparent);
  widget.render(&image);
  return image;
}

// As far as the eye can tell.
inline bool IsAlike(QRgb a, QRgb b) {
  constexpr int tolerance = 3;
  return std::abs(qRed(a) - qRed(b)) <= tolerance && std::abs(qGreen(a) - qGreen(b)) <= tolerance &&
         std::abs(qBlue(a) - qBlue(b)) <= tolerance;
}

// The letter of the colour that all of the pixel has; '?' if it is another one or not one alone.
inline char PixelOf(const QImage& image, int x, int y, const Legend& legend) {
  const int ratio = qRound(image.devicePixelRatio());
  const QRgb first = image.pixel(x * ratio, y * ratio);
  for (int i = 1; i < ratio * ratio; ++i) {
    if (!IsAlike(image.pixel(x * ratio + i % ratio, y * ratio + i / ratio), first)) return '?';
  }
  for (const auto& [letter, color] : legend) {
    if (IsAlike(color.rgb(), first)) return letter;
  }
  return '?';
}

inline std::string RowOf(const QImage& image, int y, const Legend& legend) {
  std::string row;
  const int ratio = qRound(image.devicePixelRatio());
  for (int x = 0; x < image.width() / ratio; ++x) row += PixelOf(image, x, y, legend);
  return row;
}
