#include <gmock/gmock.h>

#include "SvgWriterCase.h"

namespace host {
namespace {

TEST(SvgWriterOfCurves, ReadsBackToTheLastBit) {
  SvgDrawing drawing =
      readDrawing(file("<g id='g' transform='rotate(30) scale(.3 .7)'></g><path d='M0 0h1'/>"));
  const ArtId id = drawing.document->newArt(kPathArt, kPlaceInsideOnTop, named(drawing, "g")).value();
  PathGeometry path;
  path.closed = true;
  path.segments = {{{1.0 / 3, 20}, {0.1, 19}, {1e-7, 21}, 0},
                   {{40, 50}, {40, 50}, {41, 1e5}, 0},
                   {{7, 7}, {7, 7}, {7, 7}, 1}};
  path.segments.push_back(path.segments.front());
  drawing.document->setPath(id, std::make_shared<const PathGeometry>(path));
  const SvgDrawing again = readDrawing(saved(drawing));
  const Art& art = *again.document->art(again.document->art(named(again, "g"))->firstChild);
  ASSERT_EQ(art.path->segments.size(), path.segments.size());
  for (std::size_t i = 0; i < path.segments.size(); ++i) {
    EXPECT_NEAR(art.path->segments[i].p.x, path.segments[i].p.x, 1e-10);
    EXPECT_NEAR(art.path->segments[i].out.y, path.segments[i].out.y, 1e-9);
  }
}

TEST(SvgWriterOfEncodings, WritesNewNamesInTheFilesOwn) {
  const std::string before =
      "<?xml version='1.0' encoding='ISO-8859-1'?>\n" + file("<text id='a'>\xE4</text>", kInk);
  SvgDrawing drawing = readDrawing(before);
  drawing.document->setName(named(drawing, "a"), "\xC3\xA4\xE2\x82\xAC\x01");
  EXPECT_EQ(writeSvg(drawing),
            "<?xml version='1.0' encoding='ISO-8859-1'?>\n" +
                file("<text id='a' inkscape:label=\"\xE4&#8364;&#65533;\">\xE4</text>", kInk));
}

TEST(SvgWriterOfEncodings, LaysOutUtf16LikeAnyOther) {
  const auto wide = [](const std::string& ascii) {
    std::string bytes = "\xFF\xFE";
    for (const char c : ascii) bytes.append({c, '\0'});
    return bytes;
  };
  SvgDrawing drawing = readDrawing(wide(file("\r\n <path id='a' d='M0 0h1'/>\r\n <g id='b' />\r\n", kInk)));
  drawing.document->deleteArt(named(drawing, "a"));
  drawing.document->setName(named(drawing, "b"), "B");
  drawing.document->newArt(kGroupArt, kPlaceInsideOnTop, named(drawing, "b"));
  drawing.document->newArt(kPathArt, kPlaceAbove, named(drawing, "b"));
  EXPECT_EQ(writeSvg(drawing), wide(file("\r\n <g id='b' inkscape:label=\"B\">\r\n   <g/>\r\n </g>\r\n"
                                         " <path fill=\"none\" d=\"\"/>\r\n",
                                         kInk)));
}

TEST(SvgWriterOfStyleSheets, KeepsTheLookOfMovedArt) {
  SvgDrawing drawing = readDrawing(file(
      "<style>.x path { fill: red; stroke: blue }</style><g class='x'><g id='m'><path d='M0 0h1v1z'/></g></g>"
      "<path id='b' d='M0 0h1'/>"));
  drawing.document->moveArt(named(drawing, "m"), kPlaceAbove, named(drawing, "b"));
  EXPECT_THAT(saved(drawing), testing::HasSubstr("<g id='m'><path d='M0 0h1v1z' style=\"fill:#ff0000;"));
}

}  // namespace
}  // namespace host
