#include "SvgTexts.h"

#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <map>
#include <optional>
#include <utility>

#include "Geometry.h"
#include "SvgOutline.h"
#include "SvgTextContent.h"
#include "SvgTextLine.h"

namespace host {
namespace {

// Text longer than this is measured roughly, as is all text without an outliner.
constexpr std::size_t kMaxOutlinedCharacters = 20000;
constexpr double kRoughAdvance = 0.55;  // em
constexpr double kRoughAscent = 0.75;
constexpr double kRoughDescent = 0.2;
constexpr std::uint32_t kNoSpan = std::numeric_limits<std::uint32_t>::max();

TextOutline roughOutline(const SvgTextContent& content, std::size_t first, std::size_t end, double size) {
  std::size_t inked = 0;
  for (std::size_t i = first; i < end; ++i)
    inked += content.text[content.characters[i].begin] == ' ' ? 0U : 1U;
  TextOutline rough;
  rough.advance = static_cast<double>(end - first) * kRoughAdvance * size;
  if (inked == 0) return rough;
  SvgOutline box;
  box.addRect({0, -kRoughAscent * size}, {rough.advance, (kRoughAscent + kRoughDescent) * size}, {0, 0});
  rough.paths = box.paths(kIdentity);
  return rough;
}

// Some characters of one look that stand in a row.
struct Run {
  TextOutline outline;
  std::uint32_t span;
  AIRealPoint at;  // where its baseline begins
  double rotate;   // degrees
};

class TextLayout {
 public:
  TextLayout(SvgReading& reading, const SvgTextContent& content) : reading_(reading), content_(content) {}

  void place(std::vector<Body::Part>& parts) {
    const std::size_t count = content_.characters.size();
    for (std::size_t i = 0; i < count;) {
      const std::size_t end = endOfRun(i);
      addRun(i, end);
      i = end;
    }
    alignChunk();
    for (Run& run : runs_) addPart(run, parts);
  }

 private:
  const SvgStyle& styleOf(const SvgCharacter& character) const {
    return content_.spans[character.span].context.style;
  }

  std::size_t endOfRun(std::size_t first) const {
    const SvgCharacter& start = content_.characters[first];
    const bool single = !isTooLong() && (isSaid(start.rotate) || styleOf(start).letterSpacing != 0 ||
                                         content_.spans[start.span].textPath != 0);
    std::size_t end = first + 1;
    while (!single && end < content_.characters.size() && continues(content_.characters[end], start)) ++end;
    return end;
  }

  bool isTooLong() const { return content_.characters.size() > kMaxOutlinedCharacters; }

  bool continues(const SvgCharacter& next, const SvgCharacter& start) const {
    return next.span == start.span && (isTooLong() || isAtPlace(next));
  }

  // Does it stand where the character before it ends?
  static bool isAtPlace(const SvgCharacter& next) {
    return !isSaid(next.x) && !isSaid(next.y) && !isSaid(next.dx) && !isSaid(next.dy) && !isSaid(next.rotate);
  }

  void addRun(std::size_t first, std::size_t end) {
    const SvgCharacter& start = content_.characters[first];
    const NodeIndex textPath = content_.spans[start.span].textPath;
    const bool newPath = textPath != 0 && textPath != textPath_;
    if (isSaid(start.x) || isSaid(start.y) || newPath || first == 0) beginChunk(start, newPath);
    if (isSaid(start.dx)) at_.x += start.dx;
    if (isSaid(start.dy)) at_.y += start.dy;
    Run run{outlineOf(first, end), start.span, at_, isSaid(start.rotate) ? start.rotate : 0};
    at_.x += run.outline.advance + styleOf(start).letterSpacing;
    runs_.push_back(std::move(run));
  }

  void beginChunk(const SvgCharacter& start, bool newPath) {
    alignChunk();
    if (newPath) {
      textPath_ = content_.spans[start.span].textPath;
      at_ = {lineOf(start.span) ? lineOf(start.span)->startOffset() : 0, 0};
    }
    if (isSaid(start.x) && !newPath) at_.x = start.x;
    if (isSaid(start.y) && !newPath) at_.y = start.y;
    chunkStart_ = at_.x;
    anchor_ = styleOf(start).anchor;
  }

  // Moves the runs since the last chunk began by what their anchor asks for.
  void alignChunk() {
    const double length = at_.x - chunkStart_;
    double shift = 0;
    if (anchor_ == SvgTextAnchor::Middle) shift = -length / 2;
    if (anchor_ == SvgTextAnchor::End) shift = -length;
    for (std::size_t i = firstOfChunk_; i < runs_.size(); ++i) runs_[i].at.x += shift;
    firstOfChunk_ = runs_.size();
  }

  TextOutline outlineOf(std::size_t first, std::size_t end) const {
    const SvgStyle& style = styleOf(content_.characters[first]);
    const bool rough = reading_.outliner == nullptr || isTooLong() || !(style.fontSize > 0) ||
                       style.fontSize > kMaxCoordinate;
    if (rough) return roughOutline(content_, first, end, style.fontSize);
    const std::size_t begin = content_.characters[first].begin;
    const SvgCharacter& last = content_.characters[end - 1];
    TextRun run;
    run.text = content_.text.substr(begin, last.begin + last.length - begin);
    run.family = std::string(style.fontFamily);
    run.size = style.fontSize;
    run.weight = style.fontWeight;
    run.italic = style.italic;
    return reading_.outliner->outline(run);
  }

  const std::optional<SvgTextLine>& lineOf(std::uint32_t span) {
    const SvgTextSpan& found = content_.spans[span];
    const auto [entry, isNew] = lines_.try_emplace(found.textPath);
    if (isNew) entry->second = SvgTextLine::of(reading_, found.textPath, found.context);
    return entry->second;
  }

  // Nullopt for a glyph that falls off the end of its path.
  std::optional<AIRealMatrix> userFromRun(const Run& run) {
    const SvgTextSpan& span = content_.spans[run.span];
    const double drop = span.context.style.baselineOffset * span.context.style.fontSize;
    const double radians = run.rotate * 3.14159265358979323846 / 180;
    const AIRealMatrix turned{
        std::cos(radians), std::sin(radians), -std::sin(radians), std::cos(radians), 0, 0};
    if (span.textPath == 0) return concat(turned, {1, 0, 0, 1, run.at.x, run.at.y + drop});
    const auto& line = lineOf(run.span);
    const double half = run.outline.advance / 2;
    const auto onLine = line ? line->userFromGlyphAt(run.at.x + half) : std::nullopt;
    if (!onLine) return std::nullopt;
    return concat(concat(turned, {1, 0, 0, 1, -half, run.at.y + drop}), *onLine);
  }

  void addPart(Run& run, std::vector<Body::Part>& parts) {
    const SvgTextSpan& span = content_.spans[run.span];
    const auto matrix =
        run.outline.paths.empty() || !span.context.style.visible ? std::nullopt : userFromRun(run);
    if (!matrix) return;
    const AIRealMatrix documentFromRun = concat(*matrix, span.context.documentFromUser);
    std::vector<PathGeometry> paths;
    for (const PathGeometry& path : run.outline.paths) paths.push_back(transformed(path, documentFromRun));
    if (!isUsable(paths) || !reading_.budget.takeSegments(segmentCount(paths))) {
      return reading_.remarks.add(span.element, "its characters are too many or out of all bounds");
    }
    if (run.span != lastSpan_) {
      lastSpan_ = run.span;
      Body::Part part;
      part.style =
          *reading_.paints.pathStyle(span.element, span.context.style, span.context.documentFromUser);
      parts.push_back(std::move(part));
    }
    std::move(paths.begin(), paths.end(), std::back_inserter(parts.back().paths));
  }

  SvgReading& reading_;
  const SvgTextContent& content_;
  std::vector<Run> runs_;
  std::map<NodeIndex, std::optional<SvgTextLine>> lines_;  // by <textPath>
  AIRealPoint at_{0, 0};
  double chunkStart_ = 0;
  SvgTextAnchor anchor_ = SvgTextAnchor::Start;
  std::size_t firstOfChunk_ = 0;
  NodeIndex textPath_ = 0;
  std::uint32_t lastSpan_ = kNoSpan;  // whose part grows
};

}  // namespace

void SvgTexts::read(NodeIndex text, const SvgContext& context, std::vector<Body::Part>& parts) {
  const SvgTextContent content = readTextContent(reading_, text, context);
  if (context.style.vertical) {
    reading_.remarks.add(text, "it runs from top to bottom, but is measured as if it ran across");
  }
  TextLayout(reading_, content).place(parts);
}

}  // namespace host
