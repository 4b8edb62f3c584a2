#include "SvgTextContent.h"

#include <algorithm>

#include "SvgElements.h"
#include "SvgScanner.h"

namespace host {
namespace {

class TextContentReader {
 public:
  explicit TextContentReader(SvgReading& reading) : reading_(reading), source_(reading.source) {}

  SvgTextContent read(NodeIndex element, const SvgContext& context) {
    readSpan({element, context, 0});
    dropLastBlank();
    return std::move(content_);
  }

 private:
  void readSpan(SvgTextSpan span) {
    const NodeIndex element = span.element;
    const auto index = static_cast<std::uint32_t>(content_.spans.size());
    const std::size_t first = content_.characters.size();
    content_.spans.push_back(span);
    for (NodeIndex child = source_.node(element).firstChild; child != 0;
         child = source_.node(child).nextSibling) {
      append(source_.textBefore(element, child), index);
      readChild(child, index);
    }
    append(source_.textBefore(element, 0), index);
    applyLists(index, first);
    if (source_.attribute(element, "textLength")) {
      reading_.remarks.add(element, "its textLength does not count");
    }
  }

  void readChild(NodeIndex child, std::uint32_t outer) {
    const bool isPath = source_.is(child, "textPath");
    if (!isPath && !source_.is(child, "tspan") && !source_.is(child, "a")) return;
    if (!passesConditions(source_, child)) return;
    const SvgContext context = reading_.contextInside(child, content_.spans[outer].context);
    if (!context.style.displayed) return;
    readSpan({child, context, isPath ? child : content_.spans[outer].textPath});
  }

  void append(std::string_view text, std::uint32_t span) {
    const bool keepsBlanks = content_.spans[span].context.style.keepsBlanks;
    for (std::size_t at = 0; at < text.size();) {
      std::size_t end = at + 1;
      while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) ++end;
      const bool blank = isSvgBlank(text[at]);
      if (!blank || keepsBlanks || !(content_.characters.empty() || endsInBlank_)) {
        appendCharacter(blank ? std::string_view(" ") : text.substr(at, end - at), span);
        endsInBlank_ = blank && !keepsBlanks;
      }
      at = end;
    }
  }

  void appendCharacter(std::string_view bytes, std::uint32_t span) {
    SvgCharacter character;
    character.begin = static_cast<std::uint32_t>(content_.text.size());
    character.length = static_cast<std::uint32_t>(bytes.size());
    character.span = span;
    content_.text += bytes;
    content_.characters.push_back(character);
  }

  void dropLastBlank() {
    if (endsInBlank_) content_.characters.pop_back();
  }

  // What an element inside has said about a character holds before what one round it says.
  void applyLists(std::uint32_t span, std::size_t first) {
    applyLengths(span, first, "x", SvgAxis::X, &SvgCharacter::x);
    applyLengths(span, first, "y", SvgAxis::Y, &SvgCharacter::y);
    applyLengths(span, first, "dx", SvgAxis::X, &SvgCharacter::dx);
    applyLengths(span, first, "dy", SvgAxis::Y, &SvgCharacter::dy);
    applyRotations(span, first);
  }

  void applyLengths(std::uint32_t span, std::size_t first, std::string_view name, SvgAxis axis,
                    double SvgCharacter::*member) {
    const auto text = source_.attribute(content_.spans[span].element, name);
    if (!text) return;
    SvgScanner scanner(withoutBlanksAround(*text));
    const SvgMeasure measure = content_.spans[span].context.measure();
    for (std::size_t i = first; i < content_.characters.size() && !scanner.atEnd(); ++i) {
      const auto length = readLength(scanner);
      if (!length) break;
      double& value = content_.characters[i].*member;
      if (!isSaid(value)) value = userUnits(*length, axis, measure);
      scanner.skipCommaBlanks();
    }
  }

  // The last angle of the list holds for all characters behind it.
  void applyRotations(std::uint32_t span, std::size_t first) {
    const auto text = source_.attribute(content_.spans[span].element, "rotate");
    if (!text) return;
    SvgScanner scanner(withoutBlanksAround(*text));
    double angle = 0;
    for (std::size_t i = first; i < content_.characters.size(); ++i) {
      if (const auto next = scanner.number()) angle = *next;
      scanner.skipCommaBlanks();
      double& value = content_.characters[i].rotate;
      if (!isSaid(value) && angle != 0 && std::isfinite(angle)) value = angle;
    }
  }

  SvgReading& reading_;
  const SvgSource& source_;
  SvgTextContent content_;
  bool endsInBlank_ = false;  // in one that is to be dropped at the end
};

}  // namespace

SvgTextContent readTextContent(SvgReading& reading, NodeIndex element, const SvgContext& context) {
  return TextContentReader(reading).read(element, context);
}

}  // namespace host
