#include "PdfFonts.h"

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <memory>
#include <set>
#include <string_view>

#include "SvgCascade.h"

namespace host {
namespace {

struct PatternDestroy {
  void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using PatternPointer = std::unique_ptr<FcPattern, PatternDestroy>;

const FcChar8* bytesOf(const std::string& text) {
  return reinterpret_cast<const FcChar8*>(text.c_str());
}

// The family that is drawn with when this one is wanted; empty if there is no font at all.
std::string familyFor(const std::string& wanted) {
  const PatternPointer pattern(FcPatternCreate());
  FcPatternAddString(pattern.get(), FC_FAMILY, bytesOf(wanted));
  FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
  FcDefaultSubstitute(pattern.get());
  FcResult result = FcResultMatch;
  const PatternPointer match(FcFontMatch(nullptr, pattern.get(), &result));
  FcChar8* family = nullptr;
  if (!match || FcPatternGetString(match.get(), FC_FAMILY, 0, &family) != FcResultMatch) return {};
  return reinterpret_cast<const char*>(family);
}

bool isInstalled(const std::string& family) {
  const PatternPointer pattern(FcPatternCreate());
  FcPatternAddString(pattern.get(), FC_FAMILY, bytesOf(family));
  FcFontSet* const fonts = FcFontList(nullptr, pattern.get(), nullptr);
  const bool found = fonts != nullptr && fonts->nfont > 0;
  if (fonts != nullptr) FcFontSetDestroy(fonts);
  return found;
}

bool isGeneric(const std::string& family) {
  static const std::set<std::string> generic{"serif",   "sans-serif", "sans",     "monospace",
                                             "cursive", "fantasy",    "system-ui"};
  return generic.count(family) != 0;
}

// The first of a list as CSS writes it.
std::string firstFamily(std::string_view list) {
  const std::size_t begin = list.find_first_not_of(" \t\r\n");
  if (begin == std::string_view::npos) return {};
  list.remove_prefix(begin);
  const bool isQuoted = list.front() == '"' || list.front() == '\'';
  const std::size_t end = isQuoted ? list.find(list.front(), 1) : list.find(',');
  list = list.substr(isQuoted ? 1 : 0, isQuoted && end != std::string_view::npos ? end - 1 : end);
  return std::string(list.substr(0, list.find_last_not_of(" \t\r\n") + 1));
}

// Goes through the text of a file with the styles round it.
class TextFonts {
 public:
  explicit TextFonts(const SvgSource& source) : source_(source), unused_(source), cascade_(source, unused_) {}

  std::vector<std::string> missing() {
    for (NodeIndex element = source_.root(); element <= source_.nodeCount(); ++element) {
      while (!round_.empty() && round_.back().element != source_.node(element).parent) round_.pop_back();
      const SvgStyle outer = round_.empty() ? SvgStyle{} : round_.back().style;
      const bool isText = source_.is(element, "text");
      const NodeIndex text = isText ? element : round_.empty() ? 0 : round_.back().text;
      const SvgStyle style = cascade_.styleOf(element, cascade_.declaredFor(element), outer, {});
      if (text != 0) visit(element, text, firstFamily(style.fontFamily));
      if (source_.node(element).firstChild != 0) round_.push_back({element, text, style});
    }
    return std::move(sentences_);
  }

 private:
  struct Level {
    NodeIndex element;
    NodeIndex text;  // the <text> it lies in; 0: in none
    SvgStyle style;
  };

  void visit(NodeIndex element, NodeIndex text, const std::string& family) {
    const bool hasLetters = source_.text(element).find_first_not_of(" \t\r\n") != std::string::npos;
    if (!hasLetters || family.empty() || isGeneric(family) || !asked_.insert(family).second) return;
    if (isInstalled(family)) return;
    const auto id = source_.attribute(text, "id");
    const std::size_t line = source_.positionOf(source_.node(text).begin).line;
    const std::string standIn = familyFor(family);
    sentences_.push_back((id ? "\"" + std::string(*id) + "\"" : "the text in line " + std::to_string(line)) +
                         " is set in the font \"" + family + "\", which is not installed" +
                         (standIn.empty() ? "" : "; \"" + standIn + "\" stands in for it"));
  }

  const SvgSource& source_;
  SvgRemarks unused_;
  SvgCascade cascade_;
  std::vector<Level> round_;
  std::set<std::string> asked_;
  std::vector<std::string> sentences_;
};

}  // namespace

std::vector<std::string> fontsNotAtHand(const SvgDrawing& drawing) {
  const SvgSource& source = *drawing.source;
  for (NodeIndex element = source.root(); element <= source.nodeCount(); ++element) {
    if (source.is(element, "text")) return TextFonts(source).missing();
  }
  return {};
}

}  // namespace host
