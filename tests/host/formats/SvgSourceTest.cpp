#include "SvgSource.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <tuple>

using namespace std::string_literals;

namespace host {
namespace {

constexpr char kNs[] = R"(xmlns="http://www.w3.org/2000/svg")";

std::unique_ptr<SvgSource> parsed(std::string bytes) {
  auto result = SvgSource::parse(std::move(bytes));
  if (const auto* error = std::get_if<SvgError>(&result)) {
    ADD_FAILURE() << error->reason;
    return nullptr;
  }
  return std::get<std::unique_ptr<SvgSource>>(std::move(result));
}

std::string inUtf16(const std::string& ascii, bool bigEndian) {
  std::string wide = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
  for (const char c : ascii) wide += bigEndian ? "\0"s + c : c + "\0"s;
  return wide;
}

std::string times(std::size_t count, const std::string& text) {
  std::string all;
  all.reserve(count * text.size());
  for (std::size_t i = 0; i < count; ++i) all += text;
  return all;
}

// --- what no edit touches ---

struct Sample {
  const char* name;
  std::string bytes;
  const char* id;  // of the first element inside, in UTF-8
};

std::string mixed() {
  return "<?xml version='1.0' standalone='no'?>\r\n<!DOCTYPE svg [\n <!ENTITY ns "
         "'http://www.w3.org/2000/svg'>\n"
         " <!ENTITY st0 'fill:red'>\n <!ENTITY box \"<rect id='b'/>\">\n]>\n<?sheet a?>\n<svg  "
         "xmlns='&ns;'\n\t"
         "xmlns:x=\"urn:x\" x:y = 'a \"b\"' >\r\n <!-- <g> --><g style='&st0;' a='1&#10;2\t3'   >&box;"
         "<![CDATA[<g>]]></g >\n<x:any/>\t<g\n/></svg>\n<!-- end --> \n\n";
}

const Sample kSamples[] = {
    {"mixed", mixed(), ""},
    {"byte order mark", "\xEF\xBB\xBF<svg "s + kNs + "><g id=\"\xC3\xA4\"/></svg>", "\xC3\xA4"},
    {"latin-1", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><svg "s + kNs + "><g id=\"\xE4\"/></svg>",
     "\xC3\xA4"},
    {"windows-1252", "<?xml version='1.0' encoding='windows-1252'?><svg "s + kNs + "><g id='\x80'/></svg>",
     "\xE2\x82\xAC"},
    {"UTF-16 big",
     inUtf16("<?xml version='1.0' encoding='UTF-16'?><svg "s + kNs + "><g id='a&#228;'/></svg>", true),
     "a\xC3\xA4"},
    {"UTF-16 little", inUtf16("<svg "s + kNs + ">\r\n<g id='a'/></svg>\r\n", false), "a"},
    {"no namespace", "<svg><g id='a'/></svg>", "a"},
    {"prefix", "<s:svg xmlns:s='http://www.w3.org/2000/svg'><s:g id='a'/></s:svg>", "a"}};

TEST(SvgSource, ReadsAnyEncodingAndGivesTheBytesBackAsTheyWere) {
  for (const Sample& sample : kSamples) {
    const auto source = parsed(sample.bytes);
    ASSERT_NE(source, nullptr) << sample.name;
    EXPECT_TRUE(source->splice({}) == sample.bytes) << sample.name;
    EXPECT_TRUE(source->is(source->root(), "svg")) << sample.name;
    EXPECT_EQ(source->attribute(2, "id").value_or(""), sample.id) << sample.name;
  }
}

TEST(SvgSource, ExpandsEntitiesAndNormalisesBlanks) {
  const auto source = parsed(mixed());
  ASSERT_EQ(source->nodeCount(), 5U);
  EXPECT_EQ(source->attribute(2, "style"), "fill:red");
  EXPECT_EQ(source->attribute(2, "a"), "1\n2 3");
  EXPECT_TRUE(source->is(3, "rect"));
  EXPECT_FALSE(source->node(3).editable);
  EXPECT_EQ(source->byId("b"), 3U);
  EXPECT_EQ(source->node(3).parent, 2U);
  EXPECT_EQ(source->text(2), "<g>");
  EXPECT_FALSE(source->isSvg(4));
  EXPECT_EQ(source->node(5).closeBegin, source->node(5).end);
}

TEST(SvgSource, WritesEntitiesOut) {
  const auto source =
      parsed("<!DOCTYPE svg [<!ENTITY in '<g/>&#38;#228;'><!ENTITY out '<a>&in;</a>&in;'>]>\n<svg "s + kNs +
             ">&out;<g/></svg>");
  const auto expanded = source->withEntitiesExpanded();
  ASSERT_NE(expanded, nullptr);
  EXPECT_THAT(expanded->bytes(), testing::EndsWith("><a><g/>&#228;</a><g/>&#228;<g/></svg>"));
  ASSERT_EQ(expanded->nodeCount(), source->nodeCount());
  for (NodeIndex index = 1; index <= expanded->nodeCount(); ++index) {
    EXPECT_TRUE(expanded->node(index).editable);
    EXPECT_EQ(expanded->node(index).name, source->node(index).name);
    EXPECT_EQ(expanded->node(index).parent, source->node(index).parent);
  }
}

TEST(SvgSource, TellsTextFromLayout) {
  const auto source = parsed("<svg "s + kNs +
                             ">\n <style>a<![CDATA[>]]>&lt;</style>\n"
                             " <text>one <tspan>two</tspan> <tspan> </tspan>three</text>\n</svg>");
  EXPECT_EQ(source->text(1), "");
  EXPECT_EQ(source->text(2), "a><");
  EXPECT_EQ(source->text(3), "one  three");
  EXPECT_EQ(source->textBefore(3, 4), "one ");
  EXPECT_EQ(source->textBefore(3, 5), " ");
  EXPECT_EQ(source->textBefore(3, 0), "three");
  EXPECT_EQ(source->text(5), " ");
  EXPECT_EQ(source->textBefore(2, 0), "a><");
}

TEST(SvgSource, KnowsNamespacesByTheirBindings) {
  const auto source = parsed(
      "<svg "s + kNs +
      " xmlns:s='http://www.w3.org/2000/svg' xmlns:i='http://www.inkscape.org/namespaces/inkscape'>"
      "<g i:label='a' xmlns:i='urn:other' xmlns:k='http://www.inkscape.org/namespaces/inkscape' k:label='b'/>"
      "<use xmlns:xlink='http://www.w3.org/1999/xlink' xlink:href='#a' href='#b' /></svg>");
  EXPECT_EQ(source->attribute(2, XmlNamespace::Inkscape, "label"), "b");
  EXPECT_EQ(source->attribute(2, XmlNamespace::Other, "label"), "a");
  EXPECT_EQ(source->prefixFor(2, XmlNamespace::Inkscape, true), "k");
  EXPECT_EQ(source->prefixFor(3, XmlNamespace::Inkscape, true), "i");
  EXPECT_EQ(source->prefixFor(3, XmlNamespace::Svg), "");
  EXPECT_EQ(source->prefixFor(3, XmlNamespace::Svg, true), "s");
  EXPECT_EQ(source->prefixFor(3, XmlNamespace::Host), std::nullopt);
  EXPECT_EQ(source->href(3), "#b");
  const auto raw = source->rawAttribute(2, XmlNamespace::Inkscape, "label");
  ASSERT_TRUE(raw);
  EXPECT_EQ(source->utf8(raw->outerBegin, raw->outerEnd), " k:label='b'");
  EXPECT_EQ(source->utf8(raw->begin, raw->end), "b");
  EXPECT_EQ(source->attributeInsertion(3), source->rawAttribute(3, "href")->outerEnd);
}

// --- edits ---

TEST(SvgSource, SplicesInTheFilesOwnEncoding) {
  const std::string inserted = "<g id='\xC3\xA4\xE2\x82\xAC'/>";
  const auto edited = [&](const Sample& sample) {
    const auto source = parsed(sample.bytes);
    const std::size_t place = source->node(2).begin;
    return parsed(source->splice({{place, place, inserted}}));
  };
  for (const std::size_t sample : {1U, 2U, 3U, 4U, 5U}) {
    EXPECT_EQ(edited(kSamples[sample])->attribute(2, "id"), "\xC3\xA4\xE2\x82\xAC") << kSamples[sample].name;
  }
  EXPECT_THAT(edited(kSamples[2])->bytes(), testing::HasSubstr("<g id='\xE4&#8364;'/>"));
}

TEST(SvgSource, KeepsTheOrderOfInsertsAtOnePlace) {
  const auto source = parsed("<svg><g/></svg>");
  EXPECT_EQ(source->splice({{9, 9, "c"}, {5, 9, "<a/>"}, {5, 5, "1"}, {5, 5, "2"}}), "<svg>12<a/>c</svg>");
}

// --- what is refused ---

TEST(SvgSource, SaysWhyAndWhereAFileIsNoDrawing) {
  const std::string svg = "<svg "s + kNs + ">";
  // Line 0: without a position.
  const std::tuple<std::string, const char*, std::size_t, std::size_t> refusals[] = {
      {"", "the file is empty", 0, 0},
      {"\x1F\x8B\x08", "the file is compressed; unpack it first", 0, 0},
      {"\x89PNG\r\n\x1A\n\0\0"s, "the file is a PNG image, not SVG", 0, 0},
      {" \n", "no element found", 2, 1},
      {"<!DOCTYPE html>\n<html><br></html>", "the root element is <html>, not <svg>", 2, 1},
      {"<svg xmlns='urn:x'/>", "the root element is <svg> of another namespace than SVG", 1, 1},
      {svg + "\r\n <g>\r\n</svg>", "mismatched tag", 3, 3},
      {svg + "\r<g a='1' a='2'/>", "duplicate attribute", 2, 10},
      {svg + "\n<g", "unclosed token", 2, 1},
      {svg + "<text>a&nbsp;b</text></svg>", "undefined entity \"nbsp\"", 1, 48},
      {"<!DOCTYPE svg SYSTEM 'x.dtd'>" + svg + "\n&nbsp;</svg>", "undefined entity \"nbsp\"", 2, 1},
      {"<!DOCTYPE svg SYSTEM 'x.dtd'>" + svg + "\n<g a='&amp;&uuml;'/></svg>", "undefined entity \"uuml\"", 2,
       12},
      {svg + "\n<use xlink:href='#a'/></svg>", "the prefix \"xlink\" is not declared", 2, 1},
      {"<?xml version='1.0' encoding='Shift_JIS'?><svg/>", "the encoding \"Shift_JIS\" is not known", 0, 0},
      {inUtf16("<svg>\n<g>\n</svg>", false), "mismatched tag", 3, 3},
  };
  for (const auto& [bytes, reason, line, column] : refusals) {
    const auto result = SvgSource::parse(bytes);
    const auto* const error = std::get_if<SvgError>(&result);
    ASSERT_NE(error, nullptr) << reason;
    EXPECT_EQ(error->reason, reason);
    const SvgPosition found = error->position.value_or(SvgPosition{0, 0});
    EXPECT_TRUE(found.line == line && found.column == column) << reason;
  }
}

TEST(SvgSource, LimitsDepthButNotLength) {
  const auto nested = [](std::size_t depth) {
    return SvgSource::parse("<svg>" + times(depth - 1, "<g>") + times(depth - 1, "</g>") + "</svg>");
  };
  EXPECT_TRUE(std::holds_alternative<std::unique_ptr<SvgSource>>(nested(SvgSource::kMaxDepth)));
  for (const std::size_t depth : {SvgSource::kMaxDepth + 1, std::size_t{1000000}}) {
    const auto result = nested(depth);
    const auto* const error = std::get_if<SvgError>(&result);
    ASSERT_NE(error, nullptr);
    EXPECT_EQ(error->reason, "elements are nested more than 1024 deep");
    EXPECT_EQ(error->position->column, 6 + 3 * (SvgSource::kMaxDepth - 1));
  }
}

TEST(SvgSource, StopsEntitiesThatBreedElements) {
  std::string dtd = "<!DOCTYPE svg [<!ENTITY e0 '<g/>'>";
  for (int i = 1; i < 9; ++i) {
    dtd += "<!ENTITY e" + std::to_string(i) + " '" + times(10, "&e" + std::to_string(i - 1) + ";") + "'>";
  }
  const auto result = SvgSource::parse(dtd + "]><svg>&e8;</svg>");
  ASSERT_TRUE(std::holds_alternative<SvgError>(result));
  EXPECT_EQ(std::get<SvgError>(result).reason, "entities make the drawing too large");
}

}  // namespace
}  // namespace host
