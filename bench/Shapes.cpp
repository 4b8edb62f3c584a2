#include "Shapes.h"

#include <cmath>
#include <memory>
#include <random>

namespace bench {

namespace {

constexpr int kCurves = 12;
constexpr double kTurn = 2 * 3.14159265358979323846;

// From 0 to below 1, alike on every platform.
double fraction(std::mt19937& random) {
  return static_cast<double>(random()) / 4294967296.0;
}

AIRealPoint around(AIRealPoint centre, double angle, double radius) {
  return {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
}

host::PathGeometry roundShape(AIRealPoint centre, double radius, std::mt19937& random) {
  host::PathGeometry path;
  path.closed = true;
  const double phase = fraction(random);
  const double step = kTurn / kCurves;
  for (int i = 0; i < kCurves; ++i) {
    const double angle = (i + phase) * step;
    const double reach = radius * (0.8 + 0.4 * fraction(random));
    const double handle = reach * step / 3;
    const AIRealPoint along{-handle * std::sin(angle), handle * std::cos(angle)};
    const AIRealPoint p = around(centre, angle, reach);
    path.segments.push_back({p, {p.x - along.x, p.y - along.y}, {p.x + along.x, p.y + along.y}, 0});
  }
  return path;
}

void ensureLayer(host::Document& document) {
  if (document.state().layers.empty()) document.insertLayer(0, kPlaceAboveAll);
}

}  // namespace

std::vector<host::PathGeometry> curvedShapes(std::size_t count, double pageWidth, double pageHeight) {
  std::mt19937 random(20240517);
  const double pitch = std::sqrt(pageWidth * pageHeight / static_cast<double>(count));
  const auto columns = static_cast<std::size_t>(std::ceil(pageWidth / pitch));
  const auto rows = (count + columns - 1) / columns;
  const double dx = pageWidth / static_cast<double>(columns);
  const double dy = pageHeight / static_cast<double>(rows);
  const double radius = 0.345 * std::min(dx, dy);
  std::vector<host::PathGeometry> shapes;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t row = i / columns;
    const double x = (static_cast<double>(i % columns) + 0.45 + 0.1 * fraction(random)) * dx;
    const double y = (static_cast<double>(row) + 0.45 + 0.1 * fraction(random)) * dy;
    shapes.push_back(roundShape({x, y}, radius, random));
  }
  return shapes;
}

host::PathGeometry rectangle(double left, double bottom, double right, double top) {
  host::PathGeometry path;
  path.closed = true;
  for (const AIRealPoint p : {AIRealPoint{left, bottom}, AIRealPoint{right, bottom}, AIRealPoint{right, top},
                              AIRealPoint{left, top}}) {
    path.segments.push_back({p, p, p, 1});
  }
  return path;
}

AIPathStyle filled() {
  AIPathStyle style{};
  style.fillPaint = 1;
  style.fill.color.kind = kGrayColor;
  style.stroke.color.kind = kNoneColor;
  return style;
}

AIPathStyle stroked(double width) {
  AIPathStyle style{};
  style.strokePaint = 1;
  style.fill.color.kind = kNoneColor;
  style.stroke.color.kind = kGrayColor;
  style.stroke.width = width;
  style.stroke.miterLimit = 4;
  return style;
}

void addApart(host::Document& document, const std::vector<host::PathGeometry>& shapes,
              const AIPathStyle& style) {
  ensureLayer(document);
  const auto shared = std::make_shared<const AIPathStyle>(style);
  for (const host::PathGeometry& shape : shapes) {
    const host::ArtId id = *document.newArt(kPathArt, kPlaceAboveAll, 0);
    document.setPath(id, std::make_shared<const host::PathGeometry>(shape));
    document.setStyle(id, shared);
  }
}

void addAsCompound(host::Document& document, const std::vector<host::PathGeometry>& shapes,
                   const AIPathStyle& style) {
  ensureLayer(document);
  const host::ArtId compound = *document.newArt(kCompoundPathArt, kPlaceAboveAll, 0);
  document.setStyle(compound, std::make_shared<const AIPathStyle>(style));
  for (const host::PathGeometry& shape : shapes) {
    const host::ArtId id = *document.newArt(kPathArt, kPlaceInsideOnTop, compound);
    document.setPath(id, std::make_shared<const host::PathGeometry>(shape));
  }
}

}  // namespace bench
