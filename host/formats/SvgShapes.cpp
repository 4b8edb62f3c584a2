#include "SvgShapes.h"

#include <algorithm>

#include "SvgPathData.h"
#include "SvgScanner.h"

namespace host {

bool SvgShapeReader::read(SvgOutline& outline) {
  const std::string_view name = source_.node(element_).name;
  if (name == "path") return readPath(outline);
  if (name == "rect") return readRect(outline);
  if (name == "circle") return readCircle(outline);
  if (name == "ellipse") return readEllipse(outline);
  if (name == "line") return readLine(outline);
  return readPolyline(outline, name == "polygon");
}

SvgBox SvgShapeReader::box() {
  return {{property(SvgProperty::X, SvgAxis::X), property(SvgProperty::Y, SvgAxis::Y)},
          {property(SvgProperty::Width, SvgAxis::X), property(SvgProperty::Height, SvgAxis::Y)}};
}

bool SvgShapeReader::readRect(SvgOutline& outline) {
  const SvgBox at = box();
  if (!positive("width", at.size.x) || !positive("height", at.size.y)) return false;
  const AIRealPoint given = radii();
  const AIRealPoint clamped{std::min(given.x, at.size.x / 2), std::min(given.y, at.size.y / 2)};
  outline.addRect(at.corner, at.size, clamped);
  return true;
}

bool SvgShapeReader::readCircle(SvgOutline& outline) {
  const double r = property(SvgProperty::R, SvgAxis::Diagonal);
  if (!positive("r", r)) return false;
  outline.addEllipse({property(SvgProperty::Cx, SvgAxis::X), property(SvgProperty::Cy, SvgAxis::Y)}, {r, r});
  return true;
}

bool SvgShapeReader::readEllipse(SvgOutline& outline) {
  const AIRealPoint given = radii();
  if (!positive("rx", given.x) || !positive("ry", given.y)) return false;
  outline.addEllipse({property(SvgProperty::Cx, SvgAxis::X), property(SvgProperty::Cy, SvgAxis::Y)}, given);
  return true;
}

bool SvgShapeReader::readLine(SvgOutline& outline) {
  outline.moveTo({attribute("x1", SvgAxis::X), attribute("y1", SvgAxis::Y)});
  outline.lineTo({attribute("x2", SvgAxis::X), attribute("y2", SvgAxis::Y)});
  return true;
}

bool SvgShapeReader::readPolyline(SvgOutline& outline, bool close) {
  const auto points = source_.attribute(element_, "points");
  if (!points) return nothing("it has no points");
  if (const auto fault = readPoints(*points, close, outline)) remarkFault("points", "its points", *fault);
  return !outline.empty() || nothing("it has fewer than two points");
}

bool SvgShapeReader::readPath(SvgOutline& outline) {
  const auto data = source_.attribute(element_, "d");
  if (!data) return nothing("it has no path data");
  if (const auto fault = readPathData(*data, outline)) remarkFault("d", "its path data", *fault);
  return data->empty() || !outline.empty() || nothing("its path data draw nothing");
}

void SvgShapeReader::remarkFault(std::string_view name, std::string_view what, const SvgFault& fault) {
  remarks_.addAt(
      element_, name, fault.offset,
      std::string(what) + " are read up to byte " + std::to_string(fault.offset) + ": " + fault.reason);
}

bool SvgShapeReader::nothing(std::string reason) {
  remarks_.add(element_, std::move(reason));
  return false;
}

bool SvgShapeReader::positive(std::string_view name, double value) {
  if (value > 0) return true;
  return nothing("its " + std::string(name) + " is " + (value < 0 ? "negative" : "0") +
                 ", so it draws nothing");
}

// https://www.w3.org/TR/SVG2/shapes.html#RectElement: a radius that is not given is like the other one.
AIRealPoint SvgShapeReader::radii() {
  const auto x = radius(SvgProperty::Rx, SvgAxis::X);
  const auto y = radius(SvgProperty::Ry, SvgAxis::Y);
  return {x.value_or(y.value_or(0)), y.value_or(x.value_or(0))};
}

std::optional<double> SvgShapeReader::radius(SvgProperty wanted, SvgAxis axis) {
  const auto value = length(nameOf(wanted), declared_[wanted], axis);
  if (!value || *value >= 0) return value;
  remarks_.add(element_, "its " + std::string(nameOf(wanted)) + " is negative and does not count");
  return std::nullopt;
}

double SvgShapeReader::property(SvgProperty wanted, SvgAxis axis) {
  return length(nameOf(wanted), declared_[wanted], axis).value_or(0);
}

double SvgShapeReader::attribute(std::string_view name, SvgAxis axis) {
  return length(name, withoutBlanksAround(source_.attribute(element_, name).value_or("")), axis).value_or(0);
}

std::optional<double> SvgShapeReader::length(std::string_view name, std::string_view text, SvgAxis axis) {
  if (text.empty() || text == "auto") return std::nullopt;
  const std::optional<SvgLength> parsed = parseLength(text);
  if (!parsed) {
    remarks_.add(element_, "its " + std::string(name) + " " + quoted(text) + " is not understood");
    return std::nullopt;
  }
  return userUnits(*parsed, axis, measure_);
}

}  // namespace host
