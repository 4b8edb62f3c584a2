#include "PdfInks.h"

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
      // The white of D50, as colour books measure.
      return {"[ /Lab << /WhitePoint [ 0.9642 1 0.8249 ] /Range [ -128 127 -128 127 ] >> ]",
              numbers({100, 0, 0}), numbers({lab.l, lab.a, lab.b})};
    }
    default: {
      const AIFourColorStyle& ink = definition.c.f;
      return {"/DeviceCMYK", numbers({0, 0, 0, 0}), numbers({ink.cyan, ink.magenta, ink.yellow, ink.black})};
    }
  }
}

QPDFObjectHandle separation(const CustomColor& color) {
  const Alternate alternate = alternateOf(color.definition);
  const bool isAll = (color.definition.flag & kCustomRegistrationColor) != 0;
  auto space = QPDFObjectHandle::newArray();
  space.appendItem(QPDFObjectHandle::newName("/Separation"));
  space.appendItem(pdfName(isAll ? "All" : color.name));
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

}  // namespace

std::string PdfInks::choose(const AIColor& color, bool forStroke) {
  return color.kind == kCustomColor ? chooseCustom(color.c.c, forStroke) : process(color, forStroke);
}

std::string PdfInks::chooseCustom(const AICustomColorStyle& paint, bool forStroke) {
  const CustomColorId id = idOfHandle(paint.color, HandleKind::CustomColor, document_.serial());
  const CustomColor* color = document_.customColor(id);
  if (color == nullptr) return process({}, forStroke);
  const bool isSpot = (color->definition.flag & (kCustomSpotColor | kCustomRegistrationColor)) != 0;
  if (!isSpot && color->definition.kind != kCustomLabColor) {
    return process(mixed(color->definition, paint.tint), forStroke);
  }
  std::string text = spaceName(id) + (forStroke ? " CS " : " cs ");
  appendPdfNumber(text, 1 - paint.tint);
  return text + (forStroke ? "SCN\n" : "scn\n");
}

std::string PdfInks::spaceName(CustomColorId id) {
  if (spaces_.find(id) == spaces_.end()) {
    spaces_[id] = pdf_.makeIndirectObject(separation(*document_.customColor(id)));
  }
  return pdfResource("CS", id);
}

QPDFObjectHandle PdfInks::resources() const {
  auto dictionary = QPDFObjectHandle::newDictionary();
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
