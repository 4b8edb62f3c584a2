#include "TestDrawing.h"

#include <gtest/gtest.h>

#include "DocumentChecks.h"
#include "DrawingMaker.h"

namespace host {

SvgDrawing readDrawing(const std::string& bytes) {
  auto result = readSvg(bytes, nullptr);
  if (const auto* error = std::get_if<SvgError>(&result)) {
    ADD_FAILURE() << error->reason << "\n" << bytes;
    return {};
  }
  return std::get<SvgDrawing>(std::move(result));
}

ArtId named(const SvgDrawing& drawing, std::string_view name) {
  const Document& document = *drawing.document;
  for (ArtId id = 1; id <= document.artSlots(); ++id) {
    const Art* const art = document.art(id);
    if (!art || art->parent == 0) continue;
    const bool byId = art->source != 0 && drawing.source->attribute(art->source, "id") == name;
    if (art->name == name || byId) return id;
  }
  ADD_FAILURE() << "no art " << name;
  return 0;
}

ArtId rootOf(const SvgDrawing& drawing, std::size_t layerFromTop) {
  const Document& document = *drawing.document;
  return document.layer(document.state().layers.at(layerFromTop))->root;
}

std::shared_ptr<const PathGeometry> corners(std::initializer_list<AIRealPoint> points, bool closed) {
  return std::make_shared<const PathGeometry>(testing::straight(points, closed));
}

AIColor cmyk(double c, double m, double y, double k) {
  AIColor color{};
  color.kind = kFourColor;
  color.c.f = {c, m, y, k};
  return color;
}

AIColor rgb(double r, double g, double b) {
  AIColor color{};
  color.kind = kThreeColor;
  color.c.rgb = {r, g, b};
  return color;
}

std::shared_ptr<const AIPathStyle> stroked(const AIColor& color, double width, bool overprint) {
  AIPathStyle style{};
  style.strokePaint = 1;
  style.stroke.color = color;
  style.stroke.width = width;
  style.stroke.overprint = overprint ? 1 : 0;
  style.stroke.miterLimit = 4;
  return std::make_shared<const AIPathStyle>(style);
}

std::shared_ptr<const AIPathStyle> filled(const AIColor& color, bool overprint) {
  AIPathStyle style{};
  style.fillPaint = 1;
  style.fill.color = color;
  style.fill.overprint = overprint ? 1 : 0;
  style.stroke.miterLimit = 4;
  return std::make_shared<const AIPathStyle>(style);
}

ArtId addPath(SvgDrawing& drawing, ArtId group, std::initializer_list<AIRealPoint> points,
              std::shared_ptr<const AIPathStyle> style) {
  Document& document = *drawing.document;
  const ArtId id = document.newArt(kPathArt, kPlaceInsideOnTop, group).value();
  document.setPath(id, corners(points, true));
  document.setStyle(id, std::move(style));
  return id;
}

LayerId addLayer(SvgDrawing& drawing, const std::string& title, AIPaintOrder order, LayerId reference) {
  const LayerId id = drawing.document->insertLayer(reference, order);
  drawing.document->editLayer(id).title = title;
  return id;
}

std::string describe(const Document& document) {
  std::string text;
  for (const std::string& line : contentLines(document)) text += line + "\n";
  return text;
}

std::string saved(const SvgDrawing& drawing) {
  std::string bytes = writeSvg(drawing);
  const SvgDrawing again = readDrawing(bytes);
  if (!again.document) return bytes;
  EXPECT_EQ(describe(*again.document), describe(*drawing.document)) << bytes;
  EXPECT_EQ(writeSvg(again), bytes) << "a second save differs";
  return bytes;
}

}  // namespace host
