// Picture files for tests.
#pragma once

#include <QBuffer>
#include <QColor>
#include <QImage>
#include <string>

// The bytes of a PNG file in one colour.
inline std::string PNGPicture(int width, int height, const QColor& color) {
  QImage image(width, height, QImage::Format_ARGB32);
  image.fill(color);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return buffer.data().toStdString();
}

// An SVG file with the text as its root element's attributes, and a rectangle in one colour all over it.
inline std::string SVGPicture(const std::string& attributes, const QColor& color = Qt::red) {
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" " + attributes +
         "><rect x=\"-1000\" y=\"-1000\" width=\"9000\" height=\"9000\" fill=\"" +
         color.name().toStdString() + "\"/></svg>";
}
