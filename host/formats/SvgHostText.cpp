#include "SvgHostText.h"

#include <algorithm>
#include <initializer_list>

#include "Handles.h"
#include "ProcessingSteps.h"
#include "SvgNumber.h"
#include "SvgScanner.h"

namespace host {
namespace {

constexpr char kNoStep[] = "none";

std::string call(std::string_view function, std::string text, std::initializer_list<double> numbers) {
  for (const double number : numbers) {
    if (!text.empty()) text += ' ';
    appendNumber(text, number);
  }
  return std::string(function) + "(" + text + ")";
}

std::string quoted(std::string_view name) {
  std::string text = "'";
  for (const char c : name) {
    if (c == '\'' || c == '\\') text += '\\';
    text += c;
  }
  return text + "'";
}

std::string serverText(std::string_view function, const AIColor& color, const Document& document) {
  const PaintServer* const server = serverOf(color, document);
  if (!server) return {};
  const std::uint32_t rgb = fallbackRgb(server->fallback, document);
  const auto component = [rgb](unsigned shift) { return ((rgb >> shift) & 0xFF) / 255.0; };
  return call(function, quoted(server->reference), {component(16), component(8), component(0)});
}

}  // namespace

std::string paintText(const AIColor& color, const Document& document) {
  switch (color.kind) {
    case kGrayColor:
      return call("gray", {}, {color.c.g.gray});
    case kFourColor:
      return call("cmyk", {}, {color.c.f.cyan, color.c.f.magenta, color.c.f.yellow, color.c.f.black});
    case kThreeColor:
      return call("rgb", {}, {color.c.rgb.red, color.c.rgb.green, color.c.rgb.blue});
    case kCustomColor: {
      const CustomColor* const custom = customColorOf(color, document);
      return custom ? call("custom", quoted(custom->name), {color.c.c.tint}) : std::string();
    }
    case kGradient:
      return serverText("gradient", color, document);
    case kPattern:
      return serverText("pattern", color, document);
    case kNoneColor:
      break;
  }
  return "none";
}

std::string stepText(const std::string& step) {
  return step.empty() ? kNoStep : step;
}

std::optional<std::string> stepFrom(std::string_view text) {
  if (text == kNoStep) return std::string();
  std::string step(text);
  if (!isProcessingStep(step)) return std::nullopt;
  return step;
}

std::string definitionText(const AICustomColor& definition) {
  const AICustomColorUnion& c = definition.c;
  switch (definition.kind) {
    case kCustomThreeColor:
      return call("rgb", {}, {c.rgb.red, c.rgb.green, c.rgb.blue});
    case kCustomLabColor:
      return call("lab", {}, {c.lab.l, c.lab.a, c.lab.b});
    case kCustomFourColor:
      break;
  }
  return call("cmyk", {}, {c.f.cyan, c.f.magenta, c.f.yellow, c.f.black});
}

namespace {

// function('NAME' number number ...), with or without a name.
struct Call {
  std::string_view function;
  std::string name;
  bool hasName = false;
  double numbers[4] = {};
  std::size_t count = 0;

  bool is(std::string_view wanted, std::size_t numberCount, bool named = false) const {
    return function == wanted && count == numberCount && hasName == named;
  }
};

std::string takeQuoted(SvgScanner& scanner) {
  std::string name;
  scanner.take('\'');
  while (!scanner.atEnd() && scanner.peek() != '\'') {
    if (scanner.take('\\') && scanner.atEnd()) break;
    name += scanner.next();
  }
  return name;
}

std::optional<Call> parseCall(std::string_view text) {
  SvgScanner scanner(withoutBlanksAround(text));
  Call call;
  call.function = scanner.identifier();
  if (!scanner.take('(')) return std::nullopt;
  scanner.skipBlanks();
  if (scanner.peek() == '\'') {
    call.name = takeQuoted(scanner);
    call.hasName = true;
    if (!scanner.take('\'')) return std::nullopt;
  }
  for (scanner.skipBlanks(); !scanner.take(')'); scanner.skipBlanks()) {
    std::string_view rest = scanner.rest();
    const auto number = takeNumber(rest);
    if (!number || call.count == 4) return std::nullopt;
    call.numbers[call.count++] = *number;
    scanner = SvgScanner(rest);
  }
  if (call.function != "lab") {
    for (double& number : call.numbers) number = std::clamp(number, 0.0, 1.0);
  }
  return scanner.atEnd() ? std::optional(call) : std::nullopt;
}

std::optional<AIColor> customFrom(const Call& call, const Document& document) {
  const CustomColorId id = document.customColorByName(call.name);
  if (id == 0) return std::nullopt;
  AIColor color{};
  color.kind = kCustomColor;
  color.c.c = {makeHandle<AICustomColorHandle>(HandleKind::CustomColor, document.serial(), id),
               call.numbers[0]};
  return color;
}

AIColor rgbFrom(const double* numbers) {
  AIColor color{};
  color.kind = kThreeColor;
  color.c.rgb = {numbers[0], numbers[1], numbers[2]};
  return color;
}

AIColor serverFrom(AIColorTag kind, const Call& call, Document& document) {
  ObjectId id = 1;
  while (document.paintServer(id) && document.paintServer(id)->reference != call.name) ++id;
  if (!document.paintServer(id)) id = document.addPaintServer({call.name, rgbFrom(call.numbers)});
  AIColor color{};
  color.kind = kind;
  color.c.s.server = makeHandle<AIPaintServerHandle>(HandleKind::PaintServer, document.serial(), id);
  return color;
}

}  // namespace

std::optional<AIColor> paintFrom(std::string_view text, Document& document) {
  AIColor color{};
  color.kind = kNoneColor;
  if (withoutBlanksAround(text) == "none") return color;
  const auto call = parseCall(text);
  if (!call) return std::nullopt;
  const double* const n = call->numbers;
  if (call->is("gray", 1)) {
    color.kind = kGrayColor;
    color.c.g = {n[0]};
    return color;
  }
  if (call->is("cmyk", 4)) {
    color.kind = kFourColor;
    color.c.f = {n[0], n[1], n[2], n[3]};
    return color;
  }
  if (call->is("rgb", 3)) return rgbFrom(n);
  if (call->is("custom", 1, true)) return customFrom(*call, document);
  if (call->is("gradient", 3, true)) return serverFrom(kGradient, *call, document);
  if (call->is("pattern", 3, true)) return serverFrom(kPattern, *call, document);
  return std::nullopt;
}

std::optional<AICustomColor> definitionFrom(std::string_view text) {
  const auto call = parseCall(text);
  if (!call) return std::nullopt;
  const double* const n = call->numbers;
  AICustomColor definition{};
  if (call->is("cmyk", 4)) {
    definition.kind = kCustomFourColor;
    definition.c.f = {n[0], n[1], n[2], n[3]};
  } else if (call->is("rgb", 3)) {
    definition.kind = kCustomThreeColor;
    definition.c.rgb = {n[0], n[1], n[2]};
  } else if (call->is("lab", 3)) {
    definition.kind = kCustomLabColor;
    definition.c.lab = {n[0], n[1], n[2]};
  } else {
    return std::nullopt;
  }
  return definition;
}

}  // namespace host
