// Arbitrary bytes as a style sheet, as the value of `style`, and as the values that stand there.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <string>

#include "Expect.h"
#include "FuzzTarget.h"
#include "SvgColour.h"
#include "SvgFont.h"
#include "SvgLength.h"
#include "SvgStyleComputer.h"
#include "SvgStyleSheet.h"
#include "SvgStyleText.h"
#include "SvgTransform.h"
#include "SvgUrl.h"
#include "SvgViewBox.h"

namespace {

using namespace host;

bool IsPart(double value) {
  return value >= 0 && value <= 1;
}

const SvgSource& Drawing() {
  static const auto source = std::get<std::unique_ptr<SvgSource>>(SvgSource::parse(
      "<svg><g class='a b' id='g'><g class='a'><g class='b c'><path id='p' class='c'/></g></g>"
      "</g></svg>"));
  return *source;
}

void ExpectUsable(const SvgStyle& style) {
  for (const double part : {style.fillOpacity, style.strokeOpacity, style.opacity})
    Expect(IsPart(part), "an opacity is between 0 and 1");
  for (const double length : {style.strokeWidth, style.dashOffset, style.miterLimit, style.fontSize,
                              style.letterSpacing, style.baselineOffset})
    Expect(std::isfinite(length), "a length is finite");
  Expect(style.strokeWidth >= 0 && style.fontSize >= 0, "a width and a size are not negative");
  for (std::size_t i = 0; i < std::min(style.dashCount, style.dashes.size()); ++i)
    Expect(std::isfinite(style.dashes[i]) && style.dashes[i] >= 0, "a dash is a length");
  Expect(style.fontWeight >= 1 && style.fontWeight <= 1000, "a weight is a weight");
}

// Every declaration of the sheet that applies somewhere, computed.
void CheckSheet(const std::string& text) {
  SvgStyleSheet sheet;
  for (const std::string& clause : sheet.add(text)) Expect(!clause.empty(), "what is left out is named");
  for (NodeIndex node = 1; node <= Drawing().nodeCount(); ++node) {
    SvgDeclaredValues values;
    sheet.declareFor(Drawing(), node, 0, std::uint64_t{1} << 62, values);
    const SvgStyle parent;
    SvgStyle style;
    SvgStyleComputer computer(style, parent, {300, 200, 16});
    for (std::size_t i = 0; i < kSvgPropertyCount; ++i) {
      const auto property = static_cast<SvgProperty>(i);
      if (!values[property].empty()) computer.set(property, values[property]);
    }
    ExpectUsable(style);
  }
}

void CheckEdit(const std::string& style) {
  const std::string added = withStyleProperty(style, "stroke", "#123456");
  const std::string removed = withoutStyleProperty(style, "stroke");
  Expect(!styleProperty(removed, "stroke"), "what was taken out is not there");
  Expect(withoutStyleProperty(removed, "stroke") == removed, "and can't be taken out again");
  if (const auto value = styleProperty(style, "stroke")) {
    Expect(withStyleProperty(style, "stroke", *value) == style, "setting what is there changes nothing");
    Expect(styleProperty(added, "stroke") == "#123456", "what was set is there");
  }
  Expect(withStyleProperty(added, "stroke", "#123456") == added, "setting again changes nothing");
}

void CheckValues(std::string_view text) {
  if (const auto colour = parseColour(text)) {
    Expect(IsPart(colour->red) && IsPart(colour->green) && IsPart(colour->blue) && IsPart(colour->alpha),
           "a colour's parts lie between 0 and 1");
  }
  if (const auto length = parseLength(text)) Expect(std::isfinite(length->value), "a length is finite");
  if (const auto box = parseViewBox(text))
    Expect(std::isfinite(box->x + box->y) && std::isfinite(box->width + box->height), "a box is finite");
  if (const auto url = parseUrl(text)) Expect(url->target.size() < text.size(), "a target is a part");
  if (const auto size = parseFontSize(text, 10)) Expect(std::isfinite(*size) && *size >= 0, "a size is one");
  if (const auto weight = parseFontWeight(text, 400))
    Expect(*weight >= 1 && *weight <= 1000, "a weight is one");
  parseFontShorthand(text);
  parseAspect(text);
  parsePaint(text);
  parseTransform(text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  CheckSheet(text);
  CheckSheet("path,g{" + text);
  CheckEdit(text);
  CheckValues(text);
  return 0;
}
