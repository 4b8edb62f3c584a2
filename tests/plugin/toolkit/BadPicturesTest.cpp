// Files that are no pictures, or not ones to be decoded.

#include <fstream>

#include "LoadPixmap.h"
#include "Pictures.h"
#include "ToolkitTest.h"

namespace {

using qRVADM::LoadPixmap;

class BadPicturesTest : public ToolkitTest {};

// The most address space that the process ever had, in KiB.
long PeakMemory() {
  std::ifstream status("/proc/self/status");
  std::string word;
  long peak = 0;
  while (status >> word) {
    if (word == "VmPeak:") status >> peak;
  }
  return peak;
}

std::string Repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

// A good picture as a gzip file, which may unpack to anything.
std::string PackedSVG() {
  const std::string good = SVGPicture("viewBox=\"0 0 40 40\"");
  const QByteArray zlib = qCompress(QByteArray::fromStdString(good)).mid(4);
  return std::string("\x1F\x8B\x08\0\0\0\0\0\0\x03", 10) + zlib.mid(2, zlib.size() - 6).toStdString() +
         LittleEndian(CRC32(good)) + LittleEndian(static_cast<std::uint32_t>(good.size()));
}

TEST_F(BadPicturesTest, PNG) {
  const std::string good = PNGPicture(40, 40, Qt::red);
  const std::string noise = "\x89PNG\r\n\x1A\n" + Repeated("\x01\xFE\x80 ", 300);
  const std::string files[] = {
      "x",
      noise,
      good.substr(0, 8),
      good.substr(0, 30),
      good.substr(0, good.size() / 2),
      "GIF89a" + good,
      SVGPicture("viewBox=\"0 0 40 40\""),
      PNGOfStatedSize(0, 0),
      PNGOfStatedSize(20000, 20000),
      PNGOfStatedSize(100000, 100000),
      PNGOfStatedSize(0x7FFFFFFF, 0x7FFFFFFF),
      PNGOfStatedSize(0xFFFFFFFF, 1),
  };
  const long before = PeakMemory();
  int id = 19600;
  for (const std::string& file : files) {
    bundle.Write("png/p" + std::to_string(id) + ".png", file);
    EXPECT_TRUE(LoadPixmap(id, 0, 1).isNull()) << id - 19600;
    ++id;
  }
  EXPECT_LT(PeakMemory() - before, 256 * 1024);
}

TEST_F(BadPicturesTest, SVG) {
  const std::string good = SVGPicture("viewBox=\"0 0 40 40\"");
  const std::string files[] = {
      "x",
      "<svg",
      "<html/>",
      std::string(1000, '\xFF'),
      good.substr(0, good.size() / 2),
      PNGPicture(40, 40, Qt::red),
      SVGPicture("viewBox=\"0 0 0 0\""),
      SVGPicture("viewBox=\"0 0 -40 -40\""),
      SVGPicture("viewBox=\"0 0 1e9 1e9\""),
      SVGPicture("viewBox=\"0 0 1e300 1e300\""),
      SVGPicture("viewBox=\"1e9 0 40 40\""),
      SVGPicture("viewBox=\"-2e9 -2e9 4e9 4e9\""),
      PackedSVG(),
      "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 40 40\">" + Repeated("<g>", 100000) +
          Repeated("</g>", 100000) + "</svg>",
      SVGPicture("viewBox=\"0 0 1e9 1e-9\""),
      SVGPicture("viewBox=\"0 0 20000 20000\""),
      SVGPicture("width=\"1e9\" height=\"1e9\""),
      "<svg xmlns=\"http://www.w3.org/2000/svg\"/>",
      "<svg xmlns=\"http://www.w3.org/2000/svg\"><rect width=\"nan\" height=\"nan\"/></svg>",
      "<!DOCTYPE svg [<!ENTITY a \"" + std::string(1000, 'a') + "\">" + "<!ENTITY b \"" +
          Repeated("&a;", 1000) + "\"><!ENTITY c \"" + Repeated("&b;", 1000) +
          "\">]><svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 40 40\"><text>&c;</text></svg>",
  };
  const long before = PeakMemory();
  int id = 25600;
  for (const std::string& file : files) {
    bundle.Write("svg/s" + std::to_string(id) + ".svg", file);
    EXPECT_TRUE(LoadPixmap(id, 0, 1).isNull()) << id - 25600;
    ++id;
  }
  EXPECT_LT(PeakMemory() - before, 256 * 1024);
}

// Whether anything comes of these is Qt's own affair.
TEST_F(BadPicturesTest, OddViewBoxesDoNoHarm) {
  const std::string files[] = {
      SVGPicture("viewBox=\"1e300 -1e300 40 40\""),
      SVGPicture("viewBox=\"nan nan nan nan\""),
      SVGPicture("viewBox=\"inf inf inf inf\""),
      SVGPicture("viewBox=\"a b c d\""),
      SVGPicture("viewBox=\"0 0 40\""),
      SVGPicture("viewBox=\"\""),
      SVGPicture("width=\"nan\" height=\"-1\""),
      SVGPicture("width=\"100%\" height=\"100%\""),
  };
  int id = 25700;
  for (const std::string& file : files) {
    bundle.Write("svg/s" + std::to_string(id) + ".svg", file);
    const QPixmap pixmap = LoadPixmap(id, 0, 1);
    EXPECT_LE(qint64{pixmap.width()} * pixmap.height(), 4096 * 4096) << id - 25700;
    ++id;
  }
}

}  // namespace
