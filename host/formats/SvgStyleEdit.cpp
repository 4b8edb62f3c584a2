#include "SvgStyleEdit.h"

#include <algorithm>

#include "SvgHostText.h"
#include "SvgNumber.h"
#include "SvgXmlText.h"

namespace host {
namespace {

struct Default {
  std::string_view property;
  std::string_view value;
};

// What SVG starts from (https://www.w3.org/TR/SVG2/propidx.html).
constexpr Default kInitial[] = {
    {"fill", "#000000"},          {"fill-rule", "nonzero"},   {"fill-opacity", "1"},
    {"stroke", "none"},           {"stroke-width", "1"},      {"stroke-linecap", "butt"},
    {"stroke-linejoin", "miter"}, {"stroke-miterlimit", "4"}, {"stroke-dasharray", "none"},
    {"stroke-dashoffset", "0"},   {"stroke-opacity", "1"}};

// What would spoil a new path and that a path style knows nothing of: the first are inherited, the others
// can come from style sheets only.
constexpr Default kInherited[] = {
    {"visibility", "visible"}, {"marker-start", "none"}, {"marker-mid", "none"}, {"marker-end", "none"}};
constexpr Default kFromSheets[] = {{"opacity", "1"},          {"display", "inline"}, {"clip-path", "none"},
                                   {"vector-effect", "none"}, {"mask", "none"},      {"filter", "none"}};

bool isInitial(const SvgStyleWords::Entry& entry) {
  return std::any_of(std::begin(kInitial), std::end(kInitial), [&](const Default& initial) {
    return initial.property == entry.first && initial.value == entry.second;
  });
}

bool isOpacity(std::string_view property) {
  return property == "fill-opacity" || property == "stroke-opacity";
}

std::string hexText(std::uint32_t rgb) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text = "#";
  for (int shift = 20; shift >= 0; shift -= 4) text += kDigits[(rgb >> shift) & 0xF];
  return text;
}

bool isServer(const AIColor& color) {
  return color.kind == kGradient || color.kind == kPattern;
}

std::string plainText(const AIColor& color, const Document& document) {
  const PaintServer* const server = isServer(color) ? serverOf(color, document) : nullptr;
  return server ? server->reference : hexText(fallbackRgb(color, document));
}

// Does the plain text say all that there is to say?
bool isPlain(const AIColor& color, const Document& document) {
  if (isServer(color)) return true;
  const std::uint32_t rgb = fallbackRgb(color, document);
  const auto shown = [rgb](unsigned shift) { return ((rgb >> shift) & 0xFF) / 255.0; };
  return color.kind == kThreeColor && color.c.rgb.red == shown(16) && color.c.rgb.green == shown(8) &&
         color.c.rgb.blue == shown(0);
}

const char* capText(AILineCap cap) {
  if (cap == kAIRoundCap) return "round";
  return cap == kAIProjectingCap ? "square" : "butt";
}

const char* joinText(AILineJoin join) {
  if (join == kAIRoundJoin) return "round";
  return join == kAIBevelJoin ? "bevel" : "miter";
}

std::string dashText(const AIDashStyle& dash, double unit) {
  std::string text;
  for (int i = 0; i < std::min<int>(dash.length, kMaxDashComponents); ++i) {
    if (!text.empty()) text += ' ';
    appendNumber(text, dash.array[i] / unit);
  }
  return text.empty() ? "none" : text;
}

// Collects one of the two sides of a style.
void addPaint(SvgStyleWords& words, bool painted, const AIColor& color, bool overprint,
              const Document& document, const Default (&names)[2]) {
  const bool isFill = names[0].property == "fill";
  const std::string_view hostPaint = isFill ? kHostFill : kHostStroke;
  const std::string_view hostOverprint = isFill ? kHostFillOverprint : kHostStrokeOverprint;
  words.properties.emplace_back(names[0].property, painted ? plainText(color, document) : "none");
  if (painted) words.properties.emplace_back(names[1].property, names[1].value);
  const bool inFull = painted && !isPlain(color, document);
  words.hostAttributes.emplace_back(hostPaint, inFull ? paintText(color, document) : std::string());
  words.hostAttributes.emplace_back(hostOverprint, painted && overprint ? "true" : "");
}

void addStroke(SvgStyleWords& words, const AIStrokeStyle& stroke, double unit) {
  words.properties.emplace_back("stroke-width", numberText(stroke.width / unit));
  words.properties.emplace_back("stroke-linecap", capText(stroke.cap));
  words.properties.emplace_back("stroke-linejoin", joinText(stroke.join));
  words.properties.emplace_back("stroke-miterlimit", numberText(stroke.miterLimit));
  words.properties.emplace_back("stroke-dasharray", dashText(stroke.dash, unit));
  const bool dashed = stroke.dash.length > 0;
  words.properties.emplace_back("stroke-dashoffset", dashed ? numberText(stroke.dash.offset / unit) : "0");
}

}  // namespace

SvgStyleWords styleWords(const AIPathStyle& style, const Document& document, double documentUnitsPerUser) {
  const bool filled = style.fillPaint != 0 && style.fill.color.kind != kNoneColor;
  const bool stroked = style.strokePaint != 0 && style.stroke.color.kind != kNoneColor;
  const double unit = documentUnitsPerUser > 0 ? documentUnitsPerUser : 1;
  SvgStyleWords words;
  addPaint(words, filled, style.fill.color, style.fill.overprint != 0, document,
           {{"fill", {}}, {"fill-opacity", "1"}});
  words.properties.emplace_back("fill-rule", style.evenodd ? "evenodd" : "nonzero");
  addPaint(words, stroked, style.stroke.color, style.stroke.overprint != 0, document,
           {{"stroke", {}}, {"stroke-opacity", "1"}});
  if (stroked) addStroke(words, style.stroke, unit);
  return words;
}

std::string newStyleAttributes(const SvgStyleWords& words, NodeIndex parent, const SvgDeclared& declared,
                               SvgPrefixes& prefixes, SvgScope scope) {
  std::vector<SvgStyleWords::Entry> needed;
  bool inStyle = false;
  const auto consider = [&](std::string_view property, const std::string& value, bool always) {
    const bool bySheet = declared.sheetSets(property);
    if (!always && !bySheet && !declared.inherited(parent, property)) return;
    needed.emplace_back(property, value);
    inStyle = inStyle || bySheet;
  };
  for (const auto& entry : words.properties) consider(entry.first, entry.second, !isInitial(entry));
  for (const Default& other : kInherited) consider(other.property, std::string(other.value), false);
  for (const Default& other : kFromSheets) {
    if (declared.sheetSets(other.property)) consider(other.property, std::string(other.value), true);
  }
  std::string text;
  std::string style;
  for (const auto& [property, value] : needed) {
    if (inStyle) {
      if (!style.empty()) style += ';';
      style.append(property).append(":").append(value);
    } else {
      appendAttribute(text, property, value);
    }
  }
  if (inStyle) appendAttribute(text, "style", style);
  for (const auto& [name, value] : words.hostAttributes) {
    if (value.empty()) continue;
    appendAttribute(text, prefixes.name(parent, XmlNamespace::Host, name, scope), value);
  }
  return text;
}

void editStyle(const SvgStyleWords& before, const SvgStyleWords& now, NodeIndex element,
               const SvgSource& source, const SvgDeclared& declared, SvgTagEdit& tag) {
  const auto has = [](const auto& entries, const SvgStyleWords::Entry& entry) {
    return std::find(entries.begin(), entries.end(), entry) != entries.end();
  };
  for (const auto& entry : now.properties) {
    if (has(before.properties, entry)) continue;
    const bool matters = !isOpacity(entry.first) || declared.sheetSets(entry.first) ||
                         declared.inherited(element, entry.first);
    if (matters) tag.setProperty(entry.first, entry.second);
  }
  for (const auto& entry : now.hostAttributes) {
    if (entry.second.empty()) {
      // One that does not fit any more might fit again now.
      if (source.attribute(element, XmlNamespace::Host, entry.first))
        tag.remove(XmlNamespace::Host, entry.first);
    } else if (!has(before.hostAttributes, entry)) {
      tag.set(XmlNamespace::Host, entry.first, entry.second);
    }
  }
}

}  // namespace host
