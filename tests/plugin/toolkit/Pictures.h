// Picture files for tests.
#pragma once

#include <QColor>
#include <cstdint>
#include <string>

// The bytes of a PNG file in one colour.
std::string PNGPicture(int width, int height, const QColor& color);

// A PNG file that says it is of this size and holds next to no pixels.
std::string PNGOfStatedSize(std::uint32_t width, std::uint32_t height);

// As PNG and gzip files have it.
std::uint32_t CRC32(const std::string& bytes);
std::string LittleEndian(std::uint32_t number);

// An SVG file with the text as its root element's attributes, and a rectangle in one colour all over it.
std::string SVGPicture(const std::string& attributes, const QColor& color = Qt::red);
