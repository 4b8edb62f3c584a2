#include "Bounds.h"
#include "Geometry.h"
#include "Paint.h"
#include "PdfChoice.h"
#include "PdfLines.h"
#include "PdfSpotNames.h"
#include "PdfStrokes.h"
#include "SvgDrawing.h"

namespace host {
namespace {

struct Outline {
  void add(const PathGeometry& path) {
    box = unite(box, pathBounds(path));
    hasDot |= isDot(path);
  }
  AIRealRect box = kEmptyRect;
  bool hasDot = false;
};

class MeantLines {
 public:
  MeantLines(const SvgDrawing& drawing, const PdfChoice& choice, std::size_t artboard)
      : document_(*drawing.document),
        choice_(choice),
        page_(document_.state().artboards[artboard].position) {}

  std::vector<PdfLine> gather() {
    const auto& layers = choice_.layers();
    for (auto id = layers.rbegin(); id != layers.rend(); ++id) {
      layer_ = *id;
      visit(document_.layer(*id)->root);
    }
    return std::move(lines_);
  }

 private:
  void visit(ArtId root) {
    std::vector<ArtId> open{root};
    while (!open.empty()) {
      const ArtId id = open.back();
      open.pop_back();
      const Art& art = *document_.art(id);
      if (art.hidden || art.guide) continue;
      if (art.style) add(id, *art.style);
      if (art.body) {
        for (const Body::Part& part : art.body->parts) add(id, part.style, outlineOf(part.paths));
      }
      if (art.type != kGroupArt) continue;
      for (ArtId child = art.firstChild; child != 0; child = document_.art(child)->below)
        open.push_back(child);
    }
  }

  static Outline outlineOf(const std::vector<PathGeometry>& paths) {
    Outline outline;
    for (const PathGeometry& path : paths) outline.add(path);
    return outline;
  }

  Outline outlineOf(const Art& art) const {
    Outline outline;
    if (art.path) outline.add(*art.path);
    for (ArtId child = art.firstChild; child != 0; child = document_.art(child)->below) {
      const Art& part = *document_.art(child);
      if (!part.hidden && !part.guide && part.path) outline.add(*part.path);
    }
    return outline;
  }

  // Empty for one that has none.
  std::string plateOf(const AIColor& color) const {
    if (color.kind != kCustomColor) return {};
    const CustomColor* custom =
        document_.customColor(idOfHandle(color.c.c.color, HandleKind::CustomColor, document_.serial()));
    return custom == nullptr ? std::string() : host::plateOf(*custom);
  }

  void add(ArtId id, const AIPathStyle& style) {
    if (style.fill.color.kind != kCustomColor && style.stroke.color.kind != kCustomColor) return;
    add(id, style, outlineOf(*document_.art(id)));
  }

  void add(ArtId id, const AIPathStyle& whole, const Outline& outline) {
    const AIPathStyle style = choice_.taken(whole, layer_);
    const std::string fill = paintsFill(style) ? plateOf(style.fill.color) : std::string();
    const std::string stroke = paintsStroke(style) ? plateOf(style.stroke.color) : std::string();
    if ((fill.empty() && stroke.empty()) || isEmpty(outline.box) || !isOnPage(id)) return;
    if (!fill.empty()) lines_.push_back(line(id, outline, fill, style.fill.overprint != 0));
    if (stroke.empty()) return;
    lines_.push_back(line(id, outline, stroke, style.stroke.overprint != 0));
    lines_.back().isFill = false;
    lines_.back().width = style.stroke.width * document_.scale();
  }

  PdfLine line(ArtId id, const Outline& outline, const std::string& spot, bool overprints) const {
    const AIRealRect& box = outline.box;
    const double scale = document_.scale();
    return {document_.layer(layer_)->title,
            spot,
            true,
            overprints,
            0,
            {(box.left - page_.left) * scale, (box.top - page_.bottom) * scale,
             (box.right - page_.left) * scale, (box.bottom - page_.bottom) * scale},
            outline.hasDot ? kDotReach : 0,
            id};
  }

  bool isOnPage(ArtId id) const {
    return document_.state().artboards.size() == 1 ||
           !isEmpty(intersect(artBounds(document_, id, nullptr, 0), page_));
  }

  const Document& document_;
  const PdfChoice& choice_;
  const AIRealRect page_;
  LayerId layer_ = 0;
  std::vector<PdfLine> lines_;
};

}  // namespace

std::vector<PdfLine> linesMeant(const SvgDrawing& drawing, const PdfChoice& choice, std::size_t artboard) {
  return MeantLines(drawing, choice, artboard).gather();
}

}  // namespace host
