#include "SvgFont.h"

#include <cmath>
#include <cstddef>

#include "SvgLength.h"
#include "SvgScanner.h"

namespace host {
namespace {

template <typename Value>
struct Keyword {
  std::string_view name;
  Value value;
};

template <typename Value, std::size_t Count>
std::optional<Value> valueOf(const Keyword<Value> (&keywords)[Count], std::string_view text) {
  for (const Keyword<Value>& keyword : keywords) {
    if (equalsIgnoringCase(keyword.name, text)) return keyword.value;
  }
  return std::nullopt;
}

// CSS pixels, as browsers have them.
constexpr Keyword<double> kSizes[] = {{"xx-small", 9}, {"x-small", 10}, {"small", 13},   {"medium", 16},
                                      {"large", 18},   {"x-large", 24}, {"xx-large", 32}};
constexpr double kRelativeStep = 1.2;

constexpr Keyword<double> kBaselines[] = {
    {"auto", 0},       {"alphabetic", 0},         {"inherit", 0},        {"ideographic", -0.2},
    {"hanging", 0.8},  {"mathematical", 0.5},     {"middle", 0.25},      {"central", 0.3},
    {"text-top", 0.8}, {"text-before-edge", 0.8}, {"text-bottom", -0.2}, {"text-after-edge", -0.2}};

constexpr Keyword<int> kWeights[] = {{"normal", 400}, {"bold", 700}};
constexpr Keyword<bool> kStyles[] = {{"normal", false}, {"italic", true}, {"oblique", true}};

std::optional<double> sizeIn(std::string_view text, double parentSize) {
  if (const auto size = valueOf(kSizes, text)) return size;
  if (equalsIgnoringCase(text, "larger")) return parentSize * kRelativeStep;
  if (equalsIgnoringCase(text, "smaller")) return parentSize / kRelativeStep;
  const std::optional<SvgLength> length = parseLength(text);
  if (!length || length->value < 0) return std::nullopt;
  if (length->unit == SvgUnit::Percent) return parentSize * length->value / 100;
  return userUnits(*length, SvgAxis::Diagonal, {0, 0, parentSize});
}

}  // namespace

std::optional<double> parseFontSize(std::string_view text, double parentSize) {
  const std::optional<double> size = sizeIn(text, parentSize);
  return size && std::isfinite(*size) ? size : std::nullopt;
}

std::optional<int> parseFontWeight(std::string_view text, int parentWeight) {
  if (const auto weight = valueOf(kWeights, text)) return weight;
  if (equalsIgnoringCase(text, "bolder")) return parentWeight < 400 ? 400 : (parentWeight < 600 ? 700 : 900);
  if (equalsIgnoringCase(text, "lighter")) return parentWeight < 600 ? 100 : (parentWeight < 800 ? 400 : 700);
  const std::optional<SvgLength> number = parseLength(text);
  if (!number || number->unit != SvgUnit::None || number->value < 1 || number->value > 1000)
    return std::nullopt;
  return static_cast<int>(number->value);
}

std::optional<bool> parseItalic(std::string_view text) {
  SvgScanner scanner(text);
  return valueOf(kStyles, scanner.identifier());
}

std::optional<double> parseDominantBaseline(std::string_view text) {
  return valueOf(kBaselines, text);
}

std::optional<SvgFontShorthand> parseFontShorthand(std::string_view text) {
  SvgFontShorthand font;
  SvgScanner scanner(withoutBlanksAround(text));
  for (; !scanner.atEnd(); scanner.skipBlanks()) {
    const std::string_view word = scanner.until(" \t\n\r\f");
    if (parseFontWeight(word, 400) && !equalsIgnoringCase(word, "normal")) {
      font.weight = word;
    } else if (parseItalic(word) && !equalsIgnoringCase(word, "normal")) {
      font.style = word;
    } else if (parseFontSize(word.substr(0, word.find('/')), 16)) {
      font.size = word.substr(0, word.find('/'));
      break;
    }
  }
  font.family = withoutBlanksAround(scanner.rest());
  if (font.size.empty() || font.family.empty()) return std::nullopt;
  return font;
}

}  // namespace host
