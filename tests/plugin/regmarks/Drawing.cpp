#include "Drawing.h"

#include "AIArtboard.h"
#include "AIDocument.h"
#include "AIDocumentView.h"
#include "AIHitTest.h"
#include "AILayer.h"
#include "AIPath.h"
#include "AIPathStyle.h"
#include "AIPreference.h"
#include "AIRealMath.h"
#include "AIUnicodeString.h"
#include "Bounds.h"

namespace Vandrell::Corvane {
namespace {

host::PathGeometry Rectangle(double left, double bottom, double right, double top) {
  host::PathGeometry path;
  path.closed = true;
  for (const AIRealPoint corner : {AIRealPoint{left, bottom}, {right, bottom}, {right, top}, {left, top}}) {
    path.segments.push_back({corner, corner, corner, 1});
  }
  return path;
}

host::PathGeometry Ellipse(const AIRealPoint& center, double rx, double ry) {
  const auto [x, y] = center;
  const double kx = 0.5523 * rx;
  const double ky = 0.5523 * ry;
  host::PathGeometry path;
  path.closed = true;
  path.segments = {{{x + rx, y}, {x + rx, y - ky}, {x + rx, y + ky}, 0},
                   {{x, y + ry}, {x + kx, y + ry}, {x - kx, y + ry}, 0},
                   {{x - rx, y}, {x - rx, y + ky}, {x - rx, y - ky}, 0},
                   {{x, y - ry}, {x - kx, y - ry}, {x + kx, y - ry}, 0}};
  return path;
}

std::shared_ptr<const AIPathStyle> BlackFill(bool evenOdd) {
  AIPathStyle style{};
  style.fillPaint = 1;
  style.fill.color.kind = kFourColor;
  style.fill.color.c.f = {0, 0, 0, 1};
  style.evenodd = evenOdd ? 1 : 0;
  return std::make_shared<const AIPathStyle>(style);
}

}  // namespace

Drawing::Drawing(const AIRealRect& artboard, double scale)
    : suites_(host, {kAIArtboardSuite, kAIArtSuite, kAIDocumentSuite, kAIDocumentViewSuite, kAIHitTestSuite,
                     kAILayerSuite, kAIPathSuite, kAIPathStyleSuite, kAIPreferenceSuite, kAIRealMathSuite,
                     kAIUnicodeStringSuite}) {
  document_->setScale(scale);
  document_->editState().artboards = {{artboard, "1", 0}};
  addLayer("Artwork");
  document_->startRecording();
  host.documents().open(document_, "drawing");
}

host::ArtId Drawing::addPath(host::PathGeometry path) {
  const host::ArtId art = document_->newArt(kPathArt, kPlaceAboveAll, 0).value();
  document_->setPath(art, std::make_shared<const host::PathGeometry>(std::move(path)));
  document_->setStyle(art, BlackFill(false));
  return art;
}

host::ArtId Drawing::addRectangle(double left, double bottom, double right, double top) {
  return addPath(Rectangle(left, bottom, right, top));
}

host::ArtId Drawing::addEllipse(const AIRealPoint& center, double radiusX, double radiusY) {
  return addPath(Ellipse(center, radiusX, radiusY));
}

host::ArtId Drawing::addRing(const AIRealPoint& center, double inner, double outer) {
  const host::ArtId ring = document_->newArt(kCompoundPathArt, kPlaceAboveAll, 0).value();
  for (const double radius : {inner, outer}) {
    const host::ArtId circle = document_->newArt(kPathArt, kPlaceInsideOnTop, ring).value();
    document_->setPath(circle, std::make_shared<const host::PathGeometry>(Ellipse(center, radius, radius)));
  }
  document_->setStyle(ring, BlackFill(true));
  return ring;
}

host::LayerId Drawing::addLayer(const std::string& title) {
  const host::LayerId layer = document_->insertLayer(0, kPlaceAboveAll);
  document_->editLayer(layer).title = title;
  document_->editState().currentLayer = layer;
  return layer;
}

std::vector<std::string> Drawing::layerTitles() {
  std::vector<std::string> titles;
  for (const host::LayerId layer : document_->state().layers)
    titles.push_back(document_->layer(layer)->title);
  return titles;
}

std::vector<host::ArtId> Drawing::artOf(const std::string& title) {
  for (const host::LayerId id : document_->state().layers) {
    const host::Layer* layer = document_->layer(id);
    if (layer->title != title) continue;
    std::vector<host::ArtId> art;
    host::ArtId child = document_->art(layer->root)->lastChild;
    for (; child != 0; child = document_->art(child)->above) art.push_back(child);
    return art;
  }
  return {};
}

PositionList Drawing::marks() {
  PositionList centers;
  for (const host::ArtId mark : artOf("Regmark")) {
    const AIRealRect bounds = host::artBounds(*document_, mark, nullptr, kNoStrokeBounds);
    centers.push_back({(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2});
  }
  return centers;
}

}  // namespace Vandrell::Corvane
