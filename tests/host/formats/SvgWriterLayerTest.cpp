#include <gtest/gtest.h>

#include "Duplicate.h"
#include "SvgWriterCase.h"

namespace host {
namespace {

// The root group of a new layer on top.
ArtId newLayerRoot(SvgDrawing& drawing, const std::string& title) {
  return drawing.document->layer(addLayer(drawing, title))->root;
}

void mark(SvgDrawing& drawing) {
  const ArtId root = newLayerRoot(drawing, "Marks");
  const ArtId path =
      addPath(drawing, root, {{0, 72}, {7.5, 72}, {7.5, 64.5}}, filled(cmyk(0, 0, 0, 1), true));
  drawing.document->setName(path, "a \"mark\"");
}

std::string marksLayer(const std::string& lineBreak, const std::string& inner) {
  return lineBreak + "<g" + kBoth +
         R"( inkscape:groupmode="layer" inkscape:label="Marks" ch:added="layer">)" + inner +
         R"x(<path inkscape:label="a &quot;mark&quot;" ch:fill="cmyk(0 0 0 1)" ch:fill-overprint="true")x"
         R"( d="M 0,0 L 10,0 L 10,10 Z"/>)" +
         lineBreak + "</g>";
}

std::vector<SvgWriterCase> layerCases() {
  return {
      {"marks with CR LF", file("\r\n <path d='M0 0h1'/>\r\n"), mark,
       file("\r\n <path d='M0 0h1'/>" + marksLayer("\r\n ", "\r\n  ") + "\r\n")},
      {"marks in a file of one line", file("<path d='M0 0h1'/>"), mark,
       file("<path d='M0 0h1'/>" + marksLayer("", ""))},
      {"marks among elements with a prefix",
       "<s:svg xmlns:s='http://www.w3.org/2000/svg' width='9pt' height='9pt'>\n <s:text/>\n</s:svg>",
       [](SvgDrawing& d) { d.document->newArt(kGroupArt, kPlaceInsideOnTop, newLayerRoot(d, "A")); },
       "<s:svg xmlns:s='http://www.w3.org/2000/svg' width='9pt' height='9pt'>\n <s:text/>\n <s:g" + kBoth +
           " inkscape:groupmode=\"layer\" inkscape:label=\"A\" ch:added=\"layer\">\n  <s:g/>\n "
           "</s:g>\n</s:svg>"},
      {"a new layer between two, hidden and locked",
       file("\n<g id='A'><path d='M0 0h1'/></g>\n<g id='B'><path d='M0 0h1'/></g>\n", kBoth),
       [](SvgDrawing& d) {
         Layer& layer = d.document->editLayer(addLayer(d, "C", kPlaceBelow, d.document->state().layers[0]));
         layer.visible = false;
         layer.editable = false;
       },
       file("\n<g id='A'><path d='M0 0h1'/></g>\n"
            "<g xmlns:sodipodi=\"http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd\" "
            "inkscape:groupmode=\"layer\""
            " inkscape:label=\"C\" ch:added=\"layer\" style=\"display:none\" sodipodi:insensitive=\"1\"/>"
            "\n<g id='B'><path d='M0 0h1'/></g>\n",
            kBoth)},
      {"a layer's title and state",
       file("<g id='A' style='display:none;opacity:.5'><path d='M0 0h1'/></g><g id=\"B\"><path d='M0 "
            "0h1'/></g>",
            kInk),
       [](SvgDrawing& d) {
         d.document->editLayer(d.document->state().layers[1]).visible = true;
         d.document->editLayer(d.document->state().layers[0]).visible = false;
         d.document->editLayer(d.document->state().layers[0]).title = "<B>";
       },
       file("<g id='A' style='opacity:.5'><path d='M0 0h1'/></g><g id=\"B\" inkscape:label=\"&lt;B>\""
            " style=\"display:none\"><path d='M0 0h1'/></g>",
            kInk)},
      {"steps chosen, changed, taken back and left alone",
       file(
           "<g id='A'><path d='M0 0h1'/></g><g id='B' ch:step='Structural/Drilling'><path d='M0 0h1'/></g>"
           "<g id='C' ch:step='none'><path d='M0 0h1'/></g><g id='D' ch:step='Sawing'><path d='M0 0h1'/></g>",
           kBoth),
       [](SvgDrawing& d) {
         Document& document = *d.document;
         const std::vector<LayerId> layers = document.state().layers;
         EXPECT_EQ(document.layer(layers[0])->step, std::nullopt) << "no such step";
         EXPECT_EQ(d.remarks.back().reason, "its processing step \"Sawing\" is not known");
         EXPECT_EQ(document.layer(layers[1])->step, "");
         document.editLayer(layers[1]).step.reset();
         document.editLayer(layers[2]).step = "";
         document.editLayer(layers[3]).step = "Legend";
         document.editLayer(addLayer(d, "E")).step = "Structural/Cutting";
       },
       file("<g id='A' ch:step=\"Legend\"><path d='M0 0h1'/></g><g id='B' ch:step='none'><path d='M0 "
            "0h1'/></g>"
            "<g id='C'><path d='M0 0h1'/></g><g id='D' ch:step='Sawing'><path d='M0 0h1'/></g>"
            "<g inkscape:groupmode=\"layer\" inkscape:label=\"E\" ch:added=\"layer\""
            " ch:step=\"Structural/Cutting\"/>",
            kBoth)},
      {"a layer that a copy took the place of",
       file("\n<g id='A'>\n <text id='t'>a</text><path d='M0 0h1'/></g>\n<g id='B'><path d='M0 0h1'/></g>\n",
            kInk),
       [](SvgDrawing& d) {
         Document& document = *d.document;
         for (const std::size_t index : {1U, 0U}) {
           const LayerId old = document.state().layers[index];
           duplicateLayer(document, old, kPlaceAboveAll, 0);
           document.deleteLayer(old);
         }
         document.setName(document.art(rootOf(d, 0))->lastChild, "n");
       },
       file("\n<g id='B'><path d='M0 0h1'/></g>\n<g id='A'>\n <text id='t'"
            " inkscape:label=\"n\">a</text><path d='M0 0h1'/></g>\n",
            kInk)},
      {"copies beside their originals and elsewhere",
       file("\n <g id='A' transform='scale(2)'>\n  <text x='1' id='t'>a<tspan id='s'>b</tspan></text>\n "
            "</g>\n",
            kBoth),
       [](SvgDrawing& d) {
         Document& document = *d.document;
         const ArtId text = document.art(rootOf(d, 0))->firstChild;
         duplicateArt(document, text, kPlaceAbove, text);
         document.setName(*duplicateArt(document, text, kPlaceInsideOnTop, newLayerRoot(d, "B")), "n");
       },
       file("\n <g id='A' transform='scale(2)'>\n  <text x='1' id='t'>a<tspan id='s'>b</tspan></text>\n"
            "  <text x='1'>a<tspan>b</tspan></text>\n </g>\n"
            " <g inkscape:groupmode=\"layer\" inkscape:label=\"B\" ch:added=\"layer\">\n"
            "  <text x='1' transform=\"matrix(2 0 0 2 0 0)\" inkscape:label=\"n\">a<tspan>b</tspan></text>\n "
            "</g>\n",
            kBoth)},
      {"loose art that gets a layer", file("\n <defs/>\n <path d='M0 0h1'/>\n <text>a</text>\n", kInk),
       [](SvgDrawing& d) { d.document->editLayer(d.document->state().layers[0]).title = "Art"; },
       file("\n <defs/>\n <g inkscape:groupmode=\"layer\" inkscape:label=\"Art\">\n  <path d='M0 0h1'/>\n"
            "  <text>a</text>\n </g>\n",
            kInk)},
  };
}

TEST(SvgWriter, AddsAndChangesLayersInTheLayoutOfTheFile) {
  expectSaved(layerCases());
}

}  // namespace
}  // namespace host
