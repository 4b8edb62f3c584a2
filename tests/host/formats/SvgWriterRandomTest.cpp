// Any sequence of changes must survive a save. Each seed makes one; a failure prints the file.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "RandomChanges.h"
#include "SvgWriterCase.h"

namespace host {
namespace {

std::string layersAndLooseArt() {
  return "<!DOCTYPE svg [<!ENTITY e '<path id=\"e\" d=\"M3 3h4v4z\"/>'>]>\n" +
         file(
             "\n <defs><linearGradient id='lg'><stop stop-color='red'/><stop "
             "offset='1'/></linearGradient></defs>\n"
             " <g inkscape:groupmode='layer' inkscape:label='A' transform='translate(5 5)'>\n"
             "  <g id='g' transform='rotate(30) scale(1 2)' fill='red' stroke='green' stroke-width='2'>\n"
             "   <path d='M0 0h9v9zM1 1h1v1z'/><rect width='3' height='4' rx='1' style='fill:url(#lg)'/>&e;\n"
             "   <g style='fill:none;stroke-dasharray:1,2' fill-rule='evenodd'>\n    <path d='M0 0c1 2 3 4 5 "
             "6'/></g>\n"
             "  </g>\n  <text x='1' y='9'>text</text>\n </g>\n <path d='M0 0h9v9z'/>\n <image width='9' "
             "height='9'/>\n"
             " <g inkscape:groupmode='layer' inkscape:label='B' style='display:inline'>\n  <circle r='4'/>\n "
             "</g>\n"
             " <use href='#e'/>\n",
             kInk);
}

const std::string kFiles[] = {
    layersAndLooseArt(),
    file("<path d='M0 0h9v9z'/><g fill='none'><path d='M0 0h5'/><path d='M1 1h5v5z' "
         "ch:kind='compound'/></g><g/>",
         kHost),
    file("\n<style>.a path { fill: blue; stroke: red } rect { stroke: #123456; stroke-width: 3 }</style>\n"
         "<g id='One' class='a'>\n\t<path d='M0 0h9v9z'/>\n\t<rect width='5' height='5'/>\n</g>\n"
         "<g id='Two' transform='scale(2)'>\n\t<g class='a'><path d='M0 0h9v9z'/></g>\n</g>\n"),
    file("\n"),
    file("<g ch:added='layer' inkscape:label='A'/>", kBoth),
    file("<switch id='s'/><g id='g'/>"),
    file("<g inkscape:groupmode='layer' inkscape:label='A'><path d='M0 0h1v1z'/></g><path d='M0 0h9'/><g "
         "ch:added='layer' inkscape:label='B' id='b'><path d='M0 0h2'/></g><g id='c' "
         "visibility='hidden'><path "
         "d='M1 1h2'/></g><g><path d='M0 0h3'/></g>",
         kBoth),
    file("<g id='x' transform='scale(0)' sodipodi:insensitive='1'><path d='M0 0h9v9z' "
         "transform='translate(1) scale(1 0)'/><path d='M0 0h9'/></g><clipPath id='k'><path d='M0 "
         "0h9v9z'/></clipPath><g id='y' clip-path='url(#k)'><circle r='2' "
         "sodipodi:insensitive='true'/><g opacity='.5' clip-path='url(#k)'/></g>",
         " xmlns:sodipodi='http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd'"),
    "<!DOCTYPE svg [<!ENTITY e '<path id=\"e\" d=\"M3 3h4v4z\"/>'>]>" + file("<defs/>&e;"),
    file("<clipPath id='k'><path d='M0 0h9v9z'/></clipPath><path d='M0 0h9v9z' clip-path='url(#k)'/><g "
         "id='a' transform='scale(0)'><path d='M0 0h5'/><g id='n' "
         "transform='translate(9)'/></g><switch><g "
         "systemLanguage='xx'/><g id='s' style='display:none'><path d='M1 1h2'/></g></switch><svg width='5' "
         "height='5' viewBox='0 0 10 5'><circle r='3'/></svg>"),
};

std::vector<ArtId> selected(const Document& document) {
  std::vector<ArtId> art = document.selection();
  std::sort(art.begin(), art.end());
  return art;
}

// A change, and maybe the same undone and done again, each with what was selected then.
void step(SvgDrawing& drawing, std::mt19937_64& random) {
  Document& document = *drawing.document;
  selectAnything(drawing, random);
  const std::vector<ArtId> selectedBefore = selected(document);
  const std::uint64_t before = document.stateMark();
  changeAnything(drawing, random);
  const std::vector<ArtId> selectedAfter = selected(document);
  if (document.stateMark() == before || random() % 4 != 0) return;
  selectAnything(drawing, random);
  document.undo();
  EXPECT_EQ(selected(document), selectedBefore);
  selectAnything(drawing, random);
  if (random() % 2 == 0) return;
  document.redo();
  EXPECT_EQ(selected(document), selectedAfter);
}

// CORVANE_SEEDS=5000 plays as many.
std::uint64_t seeds() {
  const char* const wanted = std::getenv("CORVANE_SEEDS");
  return wanted == nullptr ? 400 : std::strtoull(wanted, nullptr, 10);
}

TEST(SvgWriterAtRandom, KeepsWhateverWasDone) {
  for (std::uint64_t seed = 0; seed < seeds() && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    const std::string& bytes = kFiles[seed % std::size(kFiles)];
    SvgDrawing drawing = readDrawing(bytes);
    ASSERT_NE(drawing.document, nullptr);
    std::mt19937_64 random(seed);
    for (std::uint64_t steps = 1 + seed % 20; steps > 0; --steps) step(drawing, random);
    saved(drawing);
    while (drawing.document->undo()) continue;
    EXPECT_EQ(writeSvg(drawing), bytes) << "undone changes leave a trace";
  }
}

}  // namespace
}  // namespace host
