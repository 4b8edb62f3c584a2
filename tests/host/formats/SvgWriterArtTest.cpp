#include <gtest/gtest.h>

#include "Duplicate.h"
#include "SvgWriterCase.h"

namespace host {
namespace {

std::string wide(const std::string& ascii) {
  std::string bytes = "\xFF\xFE";
  for (const char c : ascii) bytes.append({c, '\0'});
  return bytes;
}

std::vector<SvgWriterCase> artCases() {
  const std::string group =
      "\n <g id='g'>\n  <path id='a' d='M0 0h1'/>\n  <path id='b' d='M0 0h1'/>\n </g>\n";
  return {
      {"new art in every place", file(group + "<text/>"),
       [](SvgDrawing& d) {
         for (const AIPaintOrder order : {kPlaceAbove, kPlaceBelow}) {
           const ArtId id = d.document->newArt(kPathArt, order, named(d, "b")).value();
           d.document->setPath(id, corners({{0, 0}, {72, 0}}, false));
         }
         d.document->newArt(kGroupArt, kPlaceInsideOnBottom, named(d, "g"));
       },
       file("\n <g id='g'>\n  <g/>\n  <path id='a' d='M0 0h1'/>\n  <path fill=\"none\" d=\"M 0,96 L "
            "96,96\"/>\n"
            "  <path id='b' d='M0 0h1'/>\n  <path fill=\"none\" d=\"M 0,96 L 96,96\"/>\n </g>\n<text/>")},
      {"a group in an empty tag", file("\n <g id='g' >\n  <g id='e' />\n </g>\n <path d='M0 0h1'/>\n"),
       [](SvgDrawing& d) {
         const ArtId inner = d.document->newArt(kGroupArt, kPlaceInsideOnTop, named(d, "e")).value();
         addPath(d, inner, {{0, 0}, {72, 0}, {72, 72}}, filled(rgb(0, 0, 0)));
       },
       file("\n <g id='g' >\n  <g id='e'>\n    <g>\n      <path d=\"M 0,96 L 96,96 L 96,0 Z\"/>\n    </g>\n  "
            "</g>\n </g>"
            "\n <path d='M0 0h1'/>\n")},
      {"art that goes, alone on its line or not",
       file("\n <path id='a' d='M0 0h1'/>\n <path id='b' d='M0 0h1'/><path id='c' d='M0 0h1'/>\n "
            "<text>t</text>\n"),
       [](SvgDrawing& d) {
         d.document->deleteArt(named(d, "a"));
         d.document->deleteArt(named(d, "b"));
       },
       file("\n <path id='c' d='M0 0h1'/>\n <text>t</text>\n")},
      {"an outline in a transformed group",
       file("<g transform='translate(10) scale(2)'><path id='a' d='M0 0h1' inkscape:original-d='M0 0'/></g>",
            kInk),
       [](SvgDrawing& d) {
         d.document->setPath(named(d, "a"), corners({{7.5, 72}, {9, 72}, {9, 70.5}}, true));
       },
       file("<g transform='translate(10) scale(2)'><path id='a' d='M 0,0 L 1,0 L 1,1 Z'/></g>", kInk)},
      {"a shape that becomes a path", file("<rect id='a' width='5' height='5' fill='red'></rect>"),
       [](SvgDrawing& d) {
         d.document->setPath(named(d, "a"), corners({{0, 72}, {0.75, 72}}, false));
       },
       file("<path id='a' fill='red' d=\"M 0,0 L 1,0\"></path>")},
      {"art that moves between groups of different looks",
       file("<g fill='red' transform='scale(2)' xmlns:x='urn:x'><path id='a' x:y='1' d='M0 0h1v1z'/></g>"
            "<g id='g' stroke='blue' transform='translate(0 -1)'><path d='M0 0h1'/></g>"),
       [](SvgDrawing& d) { d.document->moveArt(named(d, "a"), kPlaceInsideOnBottom, named(d, "g")); },
       file("<g fill='red' transform='scale(2)' xmlns:x='urn:x'></g>"
            "<g id='g' stroke='blue' transform='translate(0 -1)'><path id='a' x:y='1' d='M0 0h1v1z'"
            " transform=\"matrix(2 0 0 2 0 1)\" fill=\"red\" stroke=\"none\" xmlns:x=\"urn:x\"/>"
            "<path d='M0 0h1'/></g>")},
      {"art in a group that is pressed flat", file("<g id='g' transform='translate(9) scale(0)'/><text/>"),
       [](SvgDrawing& d) {
         EXPECT_EQ(d.remarks.back().reason, "its transform flattens it, so it is not drawn");
         addPath(d, named(d, "g"), {{6.75, 72}, {7.5, 72}, {7.5, 71.25}}, filled(rgb(0, 0, 0)));
       },
       file("<g id='g' transform='translate(9) scale(0)'><path d=\"M 0,0 L 1,0 L 1,1 Z\"/></g><text/>")},
      {"a copy, with all that only its element says",
       file("<g id='g' clip-path='url(#k)'><path id='a' d='M0 0h1v1z' opacity='.5' style='display:none'/></g>"
            "<clipPath id='k'><path d='M0 0h1v1z'/></clipPath><text id='t'/>"),
       [](SvgDrawing& d) { duplicateArt(*d.document, named(d, "g"), kPlaceAbove, named(d, "t")); },
       file("<g id='g' clip-path='url(#k)'><path id='a' d='M0 0h1v1z' opacity='.5' style='display:none'/></g>"
            "<clipPath id='k'><path d='M0 0h1v1z'/></clipPath><text id='t'/>"
            "<g clip-path='url(#k)'><path d='M0 0h1v1z' opacity='.5' style='display:none'/></g>")},
      {"art that leaves the one place of a choice",
       file("<switch><g id='x' systemLanguage='xx'/><path id='a' d='M0 0h1'/><path id='b' d='M0 "
            "0h2'/></switch>"),
       [](SvgDrawing& d) {
         d.document->moveArt(named(d, "a"), kPlaceAbove, d.document->art(named(d, "a"))->parent);
       },
       file("<g><g id='x' systemLanguage='xx' style=\"display:none\"/><path id='b' d='M0 0h2' "
            "style=\"display:none\"/></g><path id='a' d='M0 0h1'/>")},
      {"art that moves out of what is deleted, changed",
       file("\n<g id='g'>\n <g id='h'>\n  <path id='a' d='M0 0h1'/>\n  <path id='b' d='M0 0h1'/>\n "
            "</g>\n</g>\n"
            "<path id='c' d='M0 0h1'/>\n"),
       [](SvgDrawing& d) {
         d.document->moveArt(named(d, "h"), kPlaceAbove, named(d, "c"));
         d.document->deleteArt(named(d, "b"));
         d.document->setName(named(d, "a"), "A");
         d.document->deleteArt(named(d, "g"));
       },
       file("\n<path id='c' d='M0 0h1'/>\n<g id='h'>\n  <path id='a' d='M0 0h1' inkscape:label=\"A\"/>\n "
            "</g>\n",
            kInk)},
      {"a layout in UTF-16", wide(file("\r\n <path id='a' d='M0 0h1'/>\r\n <g id='b' />\r\n", kInk)),
       [](SvgDrawing& d) {
         d.document->deleteArt(named(d, "a"));
         d.document->setName(named(d, "b"), "B");
         d.document->newArt(kGroupArt, kPlaceInsideOnTop, named(d, "b"));
         d.document->newArt(kPathArt, kPlaceAbove, named(d, "b"));
       },
       wide(file(
           "\r\n <g id='b' inkscape:label=\"B\">\r\n   <g/>\r\n </g>\r\n <path fill=\"none\" d=\"\"/>\r\n",
           kInk))},
      {"a prefix of the file that means something else",
       file("<path id='a' d='M0 0h1'/>", " xmlns:inkscape='urn:x'"),
       [](SvgDrawing& d) { d.document->setName(named(d, "a"), "A"); },
       file("<path id='a' d='M0 0h1' inkscape1:label=\"A\"/>",
            " xmlns:inkscape='urn:x' xmlns:inkscape1=\"http://www.inkscape.org/namespaces/inkscape\"")},
  };
}

TEST(SvgWriter, ChangesTheElementsOfArtAlone) {
  expectSaved(artCases());
}

}  // namespace
}  // namespace host
