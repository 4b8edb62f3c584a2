#include "PdfPage.h"

#include "Bounds.h"
#include "Geometry.h"
#include "Paint.h"
#include "PdfStrokes.h"
#include "PdfText.h"

namespace host {
namespace {

// Does it make anything else of art on white than the art itself?
bool showsOnPaper(std::string_view blendMode) {
  return !blendMode.empty() && blendMode != "multiply" && blendMode != "darken";
}

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

AIRealPoint pageSize(const Document& document, std::size_t artboard, double userUnit) {
  const AIRealRect& page = document.state().artboards[artboard].position;
  return apply(pageFromDocument(document, artboard, userUnit), {page.right, page.top});
}

PdfPage::PdfPage(PdfParts& parts, std::size_t artboard, double userUnit)
    : parts_(parts),
      document_(*parts.drawing.document),
      artboard_(artboard),
      matrix_(pageFromDocument(document_, artboard, userUnit)),
      scale_(matrix_.a),
      size_(pageSize(document_, artboard, userUnit)) {}

std::string PdfPage::content() {
  const auto& layers = parts_.choice.layers();
  for (auto id = layers.rbegin(); id != layers.rend(); ++id) addLayer(*id);
  return (mixesPaper_ && parts_.plan.showsPaper() ? paper() : std::string()) + out_.text;
}

// Readers mix what lies on bare paper with nothing.
std::string PdfPage::paper() const {
  std::string text = "q 1 g 0 0 ";
  appendPdfPoint(text, size_);
  return text + "re f Q\n";
}

// Each layer sets what it needs inside itself, so that it can be left out.
void PdfPage::addLayer(LayerId id) {
  layer_ = id;
  out_.text += parts_.layers.begin(id) + "q\n";
  out_.hasState = false;
  out_.lastPicture = kNone;
  addTree(document_.layer(id)->root);
  out_.text += "Q\nEMC\n";
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
  if (art.hidden || art.guide) return false;
  if (parts_.plan.wayOf(id) == PdfWay::Picture) {
    if (parts_.choice.takesPrint(layer_) && isOnPage(id))
      addPicture(parts_.plan.elementOf(id), wholeState(id, parts_.plan.opacityRound(id)));
    return false;
  }
  if (art.type == kGroupArt && art.lastChild == 0) return false;
  if (art.type != kGroupArt && !isOnPage(id)) return false;
  const std::size_t clips = clip(art.clip.get());
  if (parts_.plan.fadesAsOne(id)) beginGroup();
  if (art.type == kGroupArt) {
    if (parts_.plan.isFaded(id)) parts_.pictures.leaveOpacityOf(parts_.plan.elementOf(id));
    return true;
  }
  addLeaf(id);
  if (parts_.plan.fadesAsOne(id)) endGroup(id);
  pop(clips);
  return false;
}

void PdfPage::leave(ArtId id) {
  if (parts_.plan.fadesAsOne(id)) endGroup(id);
  std::size_t clips = 0;
  for (const Clip* at = document_.art(id)->clip.get(); at != nullptr; at = at->further.get()) ++clips;
  pop(clips);
}

void PdfPage::addLeaf(ArtId id) {
  const Art& art = *document_.art(id);
  if (art.type == kPathArt) addPath(id, {art.path.get()});
  if (art.type == kCompoundPathArt) addCompound(id);
  if (art.body) addBody(id, *art.body);
}

void PdfPage::addCompound(ArtId id) {
  std::vector<const PathGeometry*> paths;
  for (ArtId child = document_.art(id)->lastChild; child != 0; child = document_.art(child)->above) {
    const Art& part = *document_.art(child);
    if (!part.hidden && !part.guide && part.path) paths.push_back(part.path.get());
  }
  addPath(id, paths);
}

void PdfPage::addPicture(NodeIndex element, const PdfState& state, PdfRest rest) {
  if (out_.lastPicture != kNone && out_.lastState == state && state.blendMode.empty()) {
    return parts_.pictures.add(out_.lastPicture, element, rest);
  }
  out_.lastPicture = parts_.pictures.request(artboard_, element, rest);
  out_.lastState = state;
  choose(state);
  const std::string name = pdfResource("P", out_.lastPicture);
  out_.objects.insert(name);
  // The form is as large as the page in points.
  out_.text += "q ";
  const double unit = scale_ / document_.scale();
  for (const double entry : {unit, 0.0, 0.0, unit, 0.0, 0.0}) appendPdfNumber(out_.text, entry);
  out_.text += "cm " + name + " Do Q\n";
}

// In the order of SVG: fill, stroke, markers.
void PdfPage::addPath(ArtId id, const std::vector<const PathGeometry*>& paths) {
  AIPathStyle style = *document_.art(id)->style;
  const PdfRest rest = parts_.plan.restOf(id);
  const NodeIndex element = parts_.plan.elementOf(id);
  const double opacity = parts_.plan.fadesAsOne(id) ? 1 : parts_.plan.opacityOf(id);
  const PdfState state{false, false, opacity, opacity, {}};
  const bool hasRest = rest != PdfRest::None && parts_.choice.takesPrint(layer_);
  if (hasRest && rest == PdfRest::Fill) addPicture(element, state, rest);
  if (rest == PdfRest::Fill) style.fillPaint = 0;
  if (rest == PdfRest::Stroke) style.strokePaint = 0;
  addInked(id, paths, style);
  if (hasRest && rest != PdfRest::Fill) addPicture(element, state, rest);
}

void PdfPage::addInked(ArtId id, const std::vector<const PathGeometry*>& paths, const AIPathStyle& whole) {
  const AIPathStyle style = parts_.choice.taken(whole, layer_);
  const bool fills = paintsFill(style), strokes = paintsStroke(style);
  if (!fills && !strokes) return;
  out_.lastPicture = kNone;
  choose({strokes && style.stroke.overprint != 0, fills && style.fill.overprint != 0,
          parts_.plan.strokeOpacityOf(id), parts_.plan.fillOpacityOf(id),
          parts_.plan.fadesAsOne(id) ? std::string_view() : parts_.plan.blendModeOf(id)});
  if (fills) out_.text += parts_.inks.choose(style.fill.color, false);
  if (strokes) {
    out_.text += parts_.inks.choose(style.stroke.color, true);
    appendPdfStroke(out_.text, style.stroke, scale_);
  }
  const bool makesSquares = strokes && style.stroke.cap == kAIProjectingCap;
  const AIRealPoint along = parts_.plan.axisOf(id);
  const AIRealPoint dotStep =
      makesSquares ? AIRealPoint{along.x * kDotReach, along.y * kDotReach} : AIRealPoint{0, 0};
  for (const PathGeometry* path : paths) appendPdfPath(out_.text, *path, matrix_, dotStep);
  out_.text += paintOperator(style);
}

void PdfPage::addBody(ArtId id, const Body& body) {
  for (const Body::Part& part : body.parts) {
    const std::size_t clips = clip(part.clip.get());
    std::vector<const PathGeometry*> paths;
    for (const PathGeometry& path : part.paths) paths.push_back(&path);
    addInked(id, paths, part.style);
    pop(clips);
  }
}

std::size_t PdfPage::clip(const Clip* clip) {
  std::size_t states = 0;
  for (; clip != nullptr; clip = clip->further.get(), ++states) {
    out_.text += "q\n";
    bool evenOdd = clip->outlines.size() == 1 && clip->outlines.front().evenOdd;
    if (clip->outlines.empty()) out_.text += "0 0 0 0 re\n";
    for (const Clip::Outline& outline : clip->outlines) {
      for (const PathGeometry& path : outline.paths) appendPdfPath(out_.text, path, matrix_);
    }
    out_.text += evenOdd ? "W* n\n" : "W n\n";
  }
  if (states > 0) out_.lastPicture = kNone;
  return states;
}

void PdfPage::pop(std::size_t states) {
  for (std::size_t i = 0; i < states; ++i) out_.text += "Q\n";
  if (states == 0) return;
  out_.lastPicture = kNone;
  out_.hasState = false;
}

void PdfPage::beginGroup() {
  round_.push_back(std::move(out_));
  out_ = Stream();
}

PdfState PdfPage::wholeState(ArtId id, double opacity) const {
  return {false, false, opacity, opacity, parts_.plan.blendModeOf(id)};
}

void PdfPage::endGroup(ArtId id) {
  Stream group = std::move(out_);
  out_ = std::move(round_.back());
  round_.pop_back();
  if (group.text.empty()) return;
  const std::string name =
      parts_.groups.add({std::move(group.text), std::move(group.objects), parts_.plan.isolates(id)}, size_);
  out_.objects.insert(name);
  out_.lastPicture = kNone;
  choose(wholeState(id, parts_.plan.opacityOf(id)));
  out_.text += name + " Do\n";
}

void PdfPage::choose(const PdfState& state) {
  if (out_.hasState && state == out_.state) return;
  mixesPaper_ |= showsOnPaper(state.blendMode);
  out_.state = state;
  out_.hasState = true;
  out_.text += parts_.states.choose(state);
}

bool PdfPage::isOnPage(ArtId id) const {
  if (document_.state().artboards.size() == 1) return true;
  const AIRealRect box = artBounds(document_, id, nullptr, 0);
  return !isEmpty(intersect(box, document_.state().artboards[artboard_].position));
}

}  // namespace host
