#include "PdfInks.h"

#include "PdfSpotNames.h"
#include "PdfText.h"

namespace host {
namespace {

std::string numbers(std::initializer_list<double> values) {
  std::string text;
  for (const double value : values) appendPdfNumber(text, value);
  return text;
}

std::string array(const std::string& content) {
  return "[ " + content + "]";
}

// The white of D50, as colour books measure.
constexpr char kLab[] = "[ /Lab << /WhitePoint [ 0.9642 1 0.8249 ] /Range [ -128 127 -128 127 ] >> ]";
constexpr char kLabSpace[] = "/Lab";
constexpr AILabColorStyle kPaper{100, 0, 0};

// The space that a spot's ink is simulated in, with its full strength and with none.
struct Alternate {
  std::string space, none, full;
};

// A camera finds marks by their black, which four inks would blur.
bool isBlack(const AICustomColor& definition) {
  const AIThreeColorStyle& rgb = definition.c.rgb;
  return (definition.flag & kCustomRegistrationColor) != 0 ||
         (definition.kind == kCustomThreeColor && rgb.red == 0 && rgb.green == 0 && rgb.blue == 0);
}

Alternate alternateOf(const AICustomColor& definition) {
  if (isBlack(definition)) return {"/DeviceCMYK", numbers({0, 0, 0, 0}), numbers({0, 0, 0, 1})};
  switch (definition.kind) {
    case kCustomThreeColor: {
      const AIThreeColorStyle& rgb = definition.c.rgb;
      return {"/DeviceRGB", numbers({1, 1, 1}), numbers({rgb.red, rgb.green, rgb.blue})};
    }
    case kCustomLabColor: {
      const AILabColorStyle& lab = definition.c.lab;
      return {kLab, numbers({kPaper.l, kPaper.a, kPaper.b}), numbers({lab.l, lab.a, lab.b})};
    }
    default: {
      const AIFourColorStyle& ink = definition.c.f;
      return {"/DeviceCMYK", numbers({0, 0, 0, 0}), numbers({ink.cyan, ink.magenta, ink.yellow, ink.black})};
    }
  }
}

QPDFObjectHandle separation(const CustomColor& color) {
  const Alternate alternate = alternateOf(color.definition);
  auto space = QPDFObjectHandle::newArray();
  space.appendItem(QPDFObjectHandle::newName("/Separation"));
  space.appendItem(pdfName(plateOf(color)));
  space.appendItem(QPDFObjectHandle::parse(alternate.space));
  space.appendItem(QPDFObjectHandle::parse("<< /FunctionType 2 /Domain [ 0 1 ] /C0 " + array(alternate.none) +
                                           " /C1 " + array(alternate.full) + " /N 1 >>"));
  return space;
}

std::string process(const AIColor& color, bool forStroke) {
  switch (color.kind) {
    case kFourColor: {
      const AIFourColorStyle& ink = color.c.f;
      return numbers({ink.cyan, ink.magenta, ink.yellow, ink.black}) + (forStroke ? "K\n" : "k\n");
    }
    case kThreeColor: {
      const AIThreeColorStyle& rgb = color.c.rgb;
      return numbers({rgb.red, rgb.green, rgb.blue}) + (forStroke ? "RG\n" : "rg\n");
    }
    default: {
      const double gray = color.kind == kGrayColor ? color.c.g.gray : 1;
      return numbers({1 - gray}) + (forStroke ? "G\n" : "g\n");
    }
  }
}

// A custom colour that is printed with the process inks: its tint is a mixture with the paper.
AIColor mixed(const AICustomColor& definition, double tint) {
  AIColor color{};
  const double ink = 1 - tint;
  if (definition.kind == kCustomThreeColor) {
    const AIThreeColorStyle& full = definition.c.rgb;
    color.kind = kThreeColor;
    color.c.rgb = {1 - (1 - full.red) * ink, 1 - (1 - full.green) * ink, 1 - (1 - full.blue) * ink};
  } else {
    const AIFourColorStyle& full = definition.c.f;
    color.kind = kFourColor;
    color.c.f = {full.cyan * ink, full.magenta * ink, full.yellow * ink, full.black * ink};
  }
  return color;
}

AILabColorStyle mixed(const AILabColorStyle& full, double tint) {
  return {full.l + (kPaper.l - full.l) * tint, full.a + (kPaper.a - full.a) * tint,
          full.b + (kPaper.b - full.b) * tint};
}

}  // namespace

std::string PdfInks::choose(const AIColor& color, bool forStroke) {
  return color.kind == kCustomColor ? chooseCustom(color.c.c, forStroke) : process(color, forStroke);
}

std::string PdfInks::chooseCustom(const AICustomColorStyle& paint, bool forStroke) {
  const CustomColorId id = idOfHandle(paint.color, HandleKind::CustomColor, document_.serial());
  const CustomColor* color = document_.customColor(id);
  if (color == nullptr) return process({}, forStroke);
  const AICustomColor& definition = color->definition;
  if (plateOf(*color).empty()) {
    return definition.kind == kCustomLabColor ? chooseLab(mixed(definition.c.lab, paint.tint), forStroke)
                                              : process(mixed(definition, paint.tint), forStroke);
  }
  std::string text = spaceName(id) + (forStroke ? " CS " : " cs ");
  appendPdfNumber(text, 1 - paint.tint);
  return text + (forStroke ? "SCN\n" : "scn\n");
}

std::string PdfInks::chooseLab(const AILabColorStyle& lab, bool forStroke) {
  hasLab_ = true;
  return kLabSpace + std::string(forStroke ? " CS " : " cs ") + numbers({lab.l, lab.a, lab.b}) +
         (forStroke ? "SC\n" : "sc\n");
}

std::string PdfInks::spaceName(CustomColorId id) {
  if (spaces_.find(id) == spaces_.end()) {
    spaces_[id] = pdf_.makeIndirectObject(separation(*document_.customColor(id)));
  }
  return pdfResource("CS", id);
}

QPDFObjectHandle PdfInks::resources() const {
  auto dictionary = QPDFObjectHandle::newDictionary();
  if (hasLab_) dictionary.replaceKey(kLabSpace, QPDFObjectHandle::parse(kLab));
  for (const auto& [id, space] : spaces_) dictionary.replaceKey(pdfResource("CS", id), space);
  return dictionary;
}

// The library writes names with "#xx" where it must, but takes a "#" for the beginning of one.
QPDFObjectHandle pdfName(const std::string& name) {
  std::string text = "/";
  for (const char character : name) text += character == '#' ? std::string("#23") : std::string(1, character);
  return QPDFObjectHandle::newName(text);
}

std::string pdfResource(const char* prefix, std::size_t number) {
  return "/" + std::string(prefix) + std::to_string(number);
}

}  // namespace host
