#include "PdfPage.h"

#include <algorithm>

#include "Bounds.h"
#include "Geometry.h"
#include "Paint.h"
#include "PdfText.h"

namespace host {
namespace {

const char* paintOperator(const AIPathStyle& style) {
  const bool fills = paintsFill(style), strokes = paintsStroke(style);
  if (fills && strokes) return style.evenodd != 0 ? "B*\n" : "B\n";
  if (fills) return style.evenodd != 0 ? "f*\n" : "f\n";
  return "S\n";
}

}  // namespace

AIRealMatrix pageFromDocument(const Document& document, std::size_t artboard, double userUnit) {
  const AIRealRect& page = document.state().artboards[artboard].position;
  const double scale = document.scale() / userUnit;
  return {scale, 0, 0, scale, -page.left * scale, -page.bottom * scale};
}

PdfPage::PdfPage(PdfParts& parts, std::size_t artboard, double userUnit)
    : parts_(parts),
      document_(*parts.drawing.document),
      artboard_(artboard),
      matrix_(pageFromDocument(document_, artboard, userUnit)),
      scale_(matrix_.a) {}

std::string PdfPage::content() {
  const auto& layers = document_.state().layers;
  for (auto id = layers.rbegin(); id != layers.rend(); ++id) addLayer(*id);
  return std::move(text_);
}

// Each layer sets what it needs inside itself, so that it can be left out.
void PdfPage::addLayer(LayerId id) {
  text_ += parts_.layers.begin(id) + "q\n";
  hasState_ = false;
  lastPicture_ = kNone;
  addTree(document_.layer(id)->root);
  text_ += "Q\nEMC\n";
}

void PdfPage::addTree(ArtId root) {
  ArtId id = root;
  while (true) {
    if (enter(id)) {
      id = document_.art(id)->lastChild;
      continue;
    }
    while (id != root && document_.art(id)->above == 0) {
      id = document_.art(id)->parent;
      leave(id);
    }
    if (id == root) return;
    id = document_.art(id)->above;
  }
}

bool PdfPage::enter(ArtId id) {
  const Art& art = *document_.art(id);
  if (art.hidden || art.guide || !isOnPage(id)) return false;
  if (parts_.plan.wayOf(id) == PdfWay::Picture) {
    addPicture(parts_.plan.elementOf(id));
    return false;
  }
  const std::size_t clips = clip(art.clip.get());
  if (art.type == kGroupArt && art.lastChild != 0) return true;
  if (art.type == kPathArt) addPaths(id, {art.path.get()}, *art.style);
  if (art.type == kCompoundPathArt) {
    std::vector<const PathGeometry*> paths;
    for (ArtId child = art.lastChild; child != 0; child = document_.art(child)->above) {
      const Art& part = *document_.art(child);
      if (!part.hidden && !part.guide && part.path) paths.push_back(part.path.get());
    }
    addPaths(id, paths, *art.style);
  }
  if (art.body) addBody(id, *art.body);
  pop(clips);
  return false;
}

void PdfPage::leave(ArtId id) {
  std::size_t clips = 0;
  for (const Clip* at = document_.art(id)->clip.get(); at != nullptr; at = at->further.get()) ++clips;
  pop(clips);
}

void PdfPage::addPicture(NodeIndex element) {
  if (lastPicture_ != kNone) return parts_.pictures.add(lastPicture_, element);
  lastPicture_ = parts_.pictures.request(artboard_, element);
  // The form is as large as the page in points.
  text_ += "q ";
  const double unit = scale_ / document_.scale();
  for (const double entry : {unit, 0.0, 0.0, unit, 0.0, 0.0}) appendPdfNumber(text_, entry);
  text_ += "cm " + pdfResource("P", lastPicture_) + " Do Q\n";
}

void PdfPage::addPaths(ArtId id, const std::vector<const PathGeometry*>& paths, const AIPathStyle& style) {
  const bool fills = paintsFill(style), strokes = paintsStroke(style);
  if (!fills && !strokes) return;
  lastPicture_ = kNone;
  choose({strokes && style.stroke.overprint != 0, fills && style.fill.overprint != 0,
          parts_.plan.strokeOpacityOf(id), parts_.plan.fillOpacityOf(id)});
  if (fills) text_ += parts_.inks.choose(style.fill.color, false);
  if (strokes) {
    text_ += parts_.inks.choose(style.stroke.color, true);
    setStroke(style.stroke);
  }
  for (const PathGeometry* path : paths) appendPdfPath(text_, *path, matrix_);
  text_ += paintOperator(style);
}

void PdfPage::addBody(ArtId id, const Body& body) {
  for (const Body::Part& part : body.parts) {
    const std::size_t clips = clip(part.clip.get());
    std::vector<const PathGeometry*> paths;
    for (const PathGeometry& path : part.paths) paths.push_back(&path);
    addPaths(id, paths, part.style);
    pop(clips);
  }
}

std::size_t PdfPage::clip(const Clip* clip) {
  std::size_t states = 0;
  for (; clip != nullptr; clip = clip->further.get(), ++states) {
    text_ += "q\n";
    bool evenOdd = clip->outlines.size() == 1 && clip->outlines.front().evenOdd;
    if (clip->outlines.empty()) text_ += "0 0 0 0 re\n";
    for (const Clip::Outline& outline : clip->outlines) {
      for (const PathGeometry& path : outline.paths) appendPdfPath(text_, path, matrix_);
    }
    text_ += evenOdd ? "W* n\n" : "W n\n";
  }
  if (states > 0) lastPicture_ = kNone;
  return states;
}

void PdfPage::pop(std::size_t states) {
  for (std::size_t i = 0; i < states; ++i) text_ += "Q\n";
  if (states == 0) return;
  lastPicture_ = kNone;
  hasState_ = false;
}

void PdfPage::setStroke(const AIStrokeStyle& stroke) {
  appendPdfNumber(text_, stroke.width * scale_);
  text_ += "w " + std::to_string(stroke.cap) + " J " + std::to_string(stroke.join) + " j ";
  appendPdfNumber(text_, std::max(stroke.miterLimit, 1.0));
  text_ += "M [ ";
  for (int i = 0; i < stroke.dash.length; ++i) appendPdfNumber(text_, stroke.dash.array[i] * scale_);
  text_ += "] ";
  appendPdfNumber(text_, stroke.dash.length == 0 ? 0 : stroke.dash.offset * scale_);
  text_ += "d\n";
}

void PdfPage::choose(const PdfState& state) {
  if (hasState_ && state == state_) return;
  state_ = state;
  hasState_ = true;
  text_ += parts_.states.choose(state);
}

bool PdfPage::isOnPage(ArtId id) const {
  if (document_.art(id)->parent == 0 || document_.state().artboards.size() == 1) return true;
  const AIRealRect box = artBounds(document_, id, nullptr, 0);
  return !isEmpty(intersect(box, document_.state().artboards[artboard_].position));
}

}  // namespace host
