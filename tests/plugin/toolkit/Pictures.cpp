#include "Pictures.h"

#include <QBuffer>
#include <QImage>

namespace {

std::string BigEndian(std::uint32_t number) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>((number >> shift) & 0xFF);
  return bytes;
}

std::string Chunk(const std::string& type, const std::string& data) {
  return BigEndian(static_cast<std::uint32_t>(data.size())) + type + data + BigEndian(CRC32(type + data));
}

}  // namespace

std::uint32_t CRC32(const std::string& bytes) {
  std::uint32_t crc = ~0U;
  for (const char byte : bytes) {
    crc ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320U : 0U);
  }
  return ~crc;
}

std::string LittleEndian(std::uint32_t number) {
  const std::string bytes = BigEndian(number);
  return {bytes.rbegin(), bytes.rend()};
}

std::string PNGPicture(int width, int height, const QColor& color) {
  QImage image(width, height, QImage::Format_ARGB32);
  image.fill(color);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return buffer.data().toStdString();
}

std::string PNGOfStatedSize(std::uint32_t width, std::uint32_t height) {
  const std::string header = BigEndian(width) + BigEndian(height) + std::string("\x08\x06\0\0\0", 5);
  const QByteArray pixels = qCompress(QByteArray(1000, '\0')).mid(4);
  return "\x89PNG\r\n\x1A\n" + Chunk("IHDR", header) + Chunk("IDAT", pixels.toStdString()) +
         Chunk("IEND", "");
}

std::string SVGPicture(const std::string& attributes, const QColor& color) {
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" " + attributes +
         "><rect x=\"-1000\" y=\"-1000\" width=\"9000\" height=\"9000\" fill=\"" +
         color.name().toStdString() + "\"/></svg>";
}
