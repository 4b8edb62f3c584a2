#include "PdfStates.h"

#include "PdfInks.h"
#include "PdfText.h"

namespace host {
namespace {

// "ColorDodge" for "color-dodge".
std::string blendName(std::string_view mode) {
  if (mode.empty()) return "Normal";
  std::string name;
  bool isFirst = true;
  for (const char letter : mode) {
    if (letter != '-') name += isFirst ? static_cast<char>(letter - 'a' + 'A') : letter;
    isFirst = letter == '-';
  }
  return name;
}

}  // namespace

std::string PdfStates::choose(const PdfState& state) {
  const std::size_t number = numbers_.emplace(state, numbers_.size()).first->second;
  return pdfResource("G", number) + " gs\n";
}

QPDFObjectHandle PdfStates::resources() const {
  auto dictionary = QPDFObjectHandle::newDictionary();
  for (const auto& [state, number] : numbers_) {
    std::string text = "<< /Type /ExtGState /OPM 1 /OP ";
    text += state.overprintsStroke ? "true" : "false";
    text += state.overprintsFill ? " /op true /CA " : " /op false /CA ";
    appendPdfNumber(text, state.strokeOpacity);
    text += "/ca ";
    appendPdfNumber(text, state.fillOpacity);
    text += "/BM /" + blendName(state.blendMode);
    dictionary.replaceKey(pdfResource("G", number), QPDFObjectHandle::parse(text + ">>"));
  }
  return dictionary;
}

}  // namespace host
