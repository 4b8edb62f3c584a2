#include "TestDrawing.h"

#include <gtest/gtest.h>

#include <cmath>

#include "Handles.h"

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
  PathGeometry path;
  for (const AIRealPoint point : points) path.segments.push_back({point, point, point, 1});
  path.closed = closed;
  return std::make_shared<const PathGeometry>(path);
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

AIColor spot(const Document& document, CustomColorId id, double tint) {
  AIColor color{};
  color.kind = kCustomColor;
  color.c.c = {makeHandle<AICustomColorHandle>(HandleKind::CustomColor, document.serial(), id), tint};
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

namespace {

std::string text(double number) {
  return std::to_string(std::round(number * 1e6) / 1e6 + 0.0);
}

std::string describe(const AIColor& color, const Document& document) {
  std::string line = std::to_string(color.kind);
  const AIReal* const numbers = color.kind == kCustomColor ? &color.c.c.tint : &color.c.f.cyan;
  const int counts[] = {1, 4, 0, 1, 0, 3, 0};
  for (int i = 0; i < counts[color.kind]; ++i) line += " " + text(numbers[i]);
  if (color.kind != kCustomColor) return line;
  const auto id = idOfHandle(color.c.c.color, HandleKind::CustomColor, document.serial());
  return line + " " + document.customColor(id)->name;
}

std::string describe(const AIPathStyle& style, const Document& document) {
  std::string line;
  if (style.fillPaint) {
    line += " fill " + describe(style.fill.color, document) + (style.fill.overprint ? " over" : "");
  }
  if (style.evenodd) line += " evenodd";
  if (!style.strokePaint) return line;
  const AIStrokeStyle& stroke = style.stroke;
  line += " stroke " + describe(stroke.color, document) + (stroke.overprint ? " over" : "");
  line += " width " + text(stroke.width) + " cap " + std::to_string(stroke.cap) + " join " +
          std::to_string(stroke.join) + " limit " + text(stroke.miterLimit) + " dash";
  for (int i = 0; i < stroke.dash.length; ++i) line += " " + text(stroke.dash.array[i]);
  return stroke.dash.length > 0 ? line + " from " + text(stroke.dash.offset) : line;
}

std::string describe(const PathGeometry& path) {
  std::string line = path.closed ? " closed" : " open";
  for (const AIPathSegment& segment : path.segments) {
    for (const AIRealPoint point : {segment.in, segment.p, segment.out}) {
      line += " " + text(point.x) + "," + text(point.y);
    }
  }
  return line;
}

std::string describe(const Document& document, ArtId id, const std::string& indent) {
  const Art& art = *document.art(id);
  std::string lines;
  for (ArtId child = art.firstChild; child != 0; child = document.art(child)->below) {
    lines += describe(document, child, indent + " ");
  }
  if (art.type == kGroupArt && lines.empty()) return lines;
  // A part of a compound path is no element that could have a name.
  const bool isPart = art.type == kPathArt && !art.style;
  std::string line = indent + std::to_string(art.type) + " " + (isPart ? "" : art.name);
  if (art.style) line += describe(*art.style, document);
  if (art.path) line += describe(*art.path);
  return line + "\n" + lines;
}

}  // namespace

std::string describe(const Document& document) {
  std::string lines;
  for (const LayerId id : document.state().layers) {
    const Layer& layer = *document.layer(id);
    const std::string content = describe(document, layer.root, " ");
    if (content.empty() && layer.title == "Layer 1") continue;
    lines += "layer " + layer.title + (layer.visible ? "" : " hidden") + (layer.editable ? "" : " locked") +
             (layer.step ? " step " + *layer.step : "") + "\n" + content;
  }
  for (const SwatchGroupId id : document.state().swatchGroups) {
    lines += "group " + document.swatchGroup(id)->name + "\n";
  }
  for (const SwatchId id : document.state().swatches) {
    const Swatch& swatch = *document.swatch(id);
    lines += "swatch " + swatch.name + " " + describe(swatch.color, document) +
             (swatch.group ? " in " + document.swatchGroup(swatch.group)->name : "") + "\n";
  }
  return lines;
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
