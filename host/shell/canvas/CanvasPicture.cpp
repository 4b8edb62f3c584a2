#include "CanvasPicture.h"

#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <utility>

#include "Host.h"
#include "OpenDrawing.h"

namespace host {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kMoment{15};
constexpr std::size_t kSmallDrawing = 200'000;  // bytes that are read and drawn in a moment
constexpr double kWidestMargin = 600;           // device pixels
constexpr double kSharpTime = 400;              // ms that a sharp picture may take because of its margin
constexpr double kOverviewTime = 1000;          // ms that nothing sharp gets drawn
constexpr double kOverviewSide = 2000;
constexpr double kLeastOverviewSide = 500;
constexpr double kMostSmoothed = 2'000'000;  // pixels of a view: a stand-in is not worth more time
constexpr int kOverviewDelay = 150;          // ms

// Round a rectangle of `width` by `height`, so that both together have so many pixels.
double marginFor(double pixels, double width, double height) {
  const double half = (width + height) / 2;
  const double square = half * half - width * height + pixels;
  return square <= half * half ? 0 : (std::sqrt(square) - half) / 2;
}

std::vector<AIRealRect> sheetsOf(const Document& document) {
  std::vector<AIRealRect> sheets;
  for (const Artboard& artboard : document.state().artboards) sheets.push_back(artboard.position);
  return sheets;
}

bool isSame(const AIRealRect& a, const AIRealRect& b) {
  return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

// What is seen of a picture that was drawn for another size: whole pixels of it.
QRectF seenOf(const PictureCut& cut, const CanvasPlace& place) {
  const double perX = cut.width / place.width;
  const double perY = cut.height / place.height;
  const PixelRect seen = place.seen(0);
  const double left = std::max(std::floor(seen.x * perX), cut.part.x);
  const double top = std::max(std::floor(seen.y * perY), cut.part.y);
  const double right = std::min(std::ceil((seen.x + seen.width) * perX), cut.part.x + cut.part.width);
  const double bottom = std::min(std::ceil((seen.y + seen.height) * perY), cut.part.y + cut.part.height);
  return {left, top, right - left, bottom - top};
}

void drawScaled(QPainter& painter, const CanvasPlace& place, const DrawnPicture& drawn) {
  const PictureCut& cut = drawn.cut;
  const QRectF seen = seenOf(cut, place);
  if (seen.isEmpty() || drawn.image.isNull()) return;
  const PixelRect part{seen.x(), seen.y(), seen.width(), seen.height()};
  const bool isExact = cut.width == place.width && cut.height == place.height;
  const double pixels = place.viewportWidth * place.viewportHeight;
  painter.setRenderHint(QPainter::SmoothPixmapTransform, !isExact && pixels <= kMostSmoothed);
  painter.drawImage(place.inWidget(part, cut.width, cut.height), drawn.image,
                    seen.translated(-cut.part.x, -cut.part.y));
}

// Which of two pictures stands in for a sharp one of this size.
bool isBetter(const PictureCut& picture, const PictureCut& other, const CanvasPlace& place) {
  if (picture.revision != other.revision) return picture.revision > other.revision;
  return picture.width == place.width || picture.width > other.width;
}

}  // namespace

CanvasPicture::CanvasPicture(QWidget& view, const OpenDrawing& drawing)
    : view_(view), drawing_(drawing), renderer_(view, [this] { fetch(); }) {
  overviewTimer_.setSingleShot(true);
  QObject::connect(&overviewTimer_, &QTimer::timeout, &view,
                   [this] { renderer_.draw(PictureRenderer::kOverview, cutOfAll()); });
}

CanvasPlace CanvasPicture::place() const {
  return {drawing_.shown->view, bounds_, view_.size(), view_.devicePixelRatioF()};
}

void CanvasPicture::load() {
  const std::uint64_t revision = drawing_.document().revision();
  if (std::exchange(revision_, revision) == revision) return;
  SvgPictureSource svg = pictureSource(drawing_.drawing, writeSvg(drawing_.drawing), drawing_.shown->file);
  if (!isSame(svg.bounds, bounds_)) sharp_ = overview_ = std::nullopt;
  bounds_ = svg.bounds;
  isQuick_ = svg.svg.size() <= kSmallDrawing;
  renderer_.load({std::move(svg), sheetsOf(drawing_.document())});
}

// A picture of the drawing as it is, at the size it is shown, with this part in it.
bool CanvasPicture::shows(const PictureCut& cut, const PixelRect& part) const {
  const CanvasPlace now = place();
  return cut.revision == drawing_.document().revision() && cut.width == now.width &&
         cut.height == now.height && contains(cut.part, part);
}

// When half of the margin is used up, the next picture is drawn.
void CanvasPicture::ask() {
  load();
  const CanvasPlace now = place();
  const double room = marginFor(pace_.pixelsWithin(kSharpTime), now.viewportWidth, now.viewportHeight);
  const double margin =
      std::floor(std::min({room, kWidestMargin, std::max(now.viewportWidth, now.viewportHeight) / 2}));
  if (isEmpty(now.seen(0)) || shows(asked_, now.seen(std::floor(margin / 2)))) return;
  asked_ = {revision_, now.width, now.height, now.seen(margin)};
  renderer_.draw(PictureRenderer::kSharp, asked_);
}

void CanvasPicture::follow() {
  ask();
  if (isQuick_ && !isSharp()) waitUntilSharp(kMoment);
}

bool CanvasPicture::isSharp() const {
  if (revision_ != drawing_.document().revision()) return false;
  const PixelRect seen = place().seen(0);
  return isEmpty(seen) || (sharp_ && shows(sharp_->cut, seen));
}

bool CanvasPicture::waitUntilSharp(milliseconds longest) {
  ask();
  if (isSharp()) return true;
  renderer_.wait(PictureRenderer::kSharp, longest);
  keep(PictureRenderer::kSharp, sharp_);
  return isSharp();
}

void CanvasPicture::keep(PictureRenderer::Kind kind, std::optional<DrawnPicture>& kept) {
  std::optional<DrawnPicture> drawn = renderer_.take(kind);
  if (!drawn) return;
  if (drawn->cut.revision == revision_) {
    if (kind == PictureRenderer::kSharp) {
      complaint_ = drawn->complaint;
      isQuick_ = drawn->took <= kMoment;
      pace_.note(drawn->cut.part.width * drawn->cut.part.height, static_cast<double>(drawn->took.count()));
    }
    if (!overview_ || overview_->cut.revision != revision_) overviewTimer_.start(kOverviewDelay);
  }
  kept = std::move(drawn);
}

void CanvasPicture::fetch() {
  const bool wasSharp = isSharp();
  keep(PictureRenderer::kSharp, sharp_);
  keep(PictureRenderer::kOverview, overview_);
  if (!wasSharp) view_.update();
}

PictureCut CanvasPicture::cutOfAll() const {
  const double width = bounds_.right - bounds_.left;
  const double height = bounds_.top - bounds_.bottom;
  const double longer = std::max(width, height);
  const double side = std::sqrt(pace_.pixelsWithin(kOverviewTime) * longer / std::min(width, height));
  const double scale = std::clamp(side, kLeastOverviewSide, kOverviewSide) / longer;
  const double across = std::max(1.0, std::round(width * scale));
  const double down = std::max(1.0, std::round(height * scale));
  return {revision_, across, down, {0, 0, across, down}};
}

void CanvasPicture::paint(QPainter& painter, const CanvasPlace& place) const {
  painter.save();
  if (!overview_ || isSharp()) {
    if (sharp_) drawScaled(painter, place, *sharp_);
  } else if (sharp_ && isBetter(sharp_->cut, overview_->cut, place)) {
    const PictureCut& cut = sharp_->cut;
    const QRectF all = place.inWidget(cut.part, cut.width, cut.height);
    const QRect covered = (all & QRectF(view_.rect())).toAlignedRect();
    painter.setClipRegion(QRegion(view_.rect()) - covered);
    drawScaled(painter, place, *overview_);
    painter.setClipping(false);
    drawScaled(painter, place, *sharp_);
  } else {
    drawScaled(painter, place, *overview_);
  }
  painter.restore();
}

}  // namespace host
