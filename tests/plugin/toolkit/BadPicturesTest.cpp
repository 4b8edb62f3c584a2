// Files that are no pictures, or not ones to be decoded.

#include <fstream>
#include <vector>

#include "LoadPixmap.h"
#include "ToolkitTest.h"

namespace {

// The most address space that the process ever had, in KiB.
long PeakMemory() {
  std::ifstream status("/proc/self/status");
  long peak = 0;
  for (std::string word; status >> word;) {
    if (word == "VmPeak:") status >> peak;
  }
  return peak;
}

std::string Repeated(const char* text, int times) {
  return QByteArray(text).repeated(times).toStdString();
}

class BadPicturesTest : public ToolkitTest {
 protected:
  static QPixmap Loaded(int id, const std::string& file) {
    const std::string number = std::to_string(id);
    bundle.Write(id < 24000 ? "png/p" + number + ".png" : "svg/s" + number + ".svg", file);
    return qRVADM::LoadPixmap(id, 0, 1);
  }
};

TEST_F(BadPicturesTest, MakeNoPictureAndTakeLittleMemory) {
  const std::string png = PNGPicture(40, 40, Qt::red), svg = SVGPicture("viewBox=\"0 0 40 40\""),
                    root = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 40 40\">";
  // A PNG file of 20000 x 20000 pixels and next to no data; a gzip file, which may unpack to anything.
  const auto hugePNG = QByteArray::fromBase64(
                 "iVBORw0KGgoAAAANSUhEUgAATiAAAE4gCAYAAADjcEY5AAAAEUlEQVR42mNgGAWjYBQMdwAAA+"
                 "gAAc5JTFgAAAAASUVORK5CYII="),
             packedSVG = QByteArray::fromBase64(
                 "H4sIAAAAAAACA7MpLktXqMjNySu2VcooKSmw0tcvLy/"
                 "XKzfWyy9K1zcyMDDQB6pQUijLTC13yq+wVTJQMFAwASElfTsA3nm3Iz0AAAA=");
  const std::vector<std::string> files[] = {
      {png.substr(0, 8) + Repeated("\x01\xFE\x80 ", 300), png.substr(0, 30), png.substr(0, png.size() / 2),
       svg, hugePNG.toStdString()},
      {"<html/>", std::string(1000, '\xFF'), svg.substr(0, svg.size() / 2), SVGPicture("viewBox=\"0 0 0 0\""),
       SVGPicture("viewBox=\"0 0 20000 20000\""), SVGPicture("viewBox=\"0 0 1e300 1e300\""),
       SVGPicture("viewBox=\"-2e9 -2e9 4e9 4e9\""), packedSVG.toStdString(),
       root + Repeated("<g>", 100000) + Repeated("</g>", 100000) + "</svg>",
       "<!DOCTYPE svg [<!ENTITY a \"" + Repeated("a", 1000) + "\"><!ENTITY b \"" + Repeated("&a;", 1000) +
           "\"><!ENTITY c \"" + Repeated("&b;", 1000) + "\">]>" + root + "<text>&c;</text></svg>"}};
  const long before = PeakMemory();
  int id = 19600;
  for (const auto& kind : files) {
    for (const std::string& file : kind) EXPECT_TRUE(Loaded(id++, file).isNull()) << id;
    id = 25600;
  }
  for (const char* box : {"1e300 -1e300 40 40", "nan nan nan nan"}) {
    Loaded(++id, SVGPicture("viewBox=\"" + std::string(box) + "\""));  // what comes of it is Qt's own affair
  }
  EXPECT_LT(PeakMemory() - before, 256 * 1024);
}

}  // namespace
