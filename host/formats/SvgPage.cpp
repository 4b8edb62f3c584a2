#include "SvgPage.h"

#include <cmath>
#include <optional>
#include <utility>

#include "Geometry.h"
#include "SvgNumber.h"
#include "SvgScanner.h"
#include "SvgTransform.h"
#include "SvgViewBox.h"

namespace host {
namespace {

constexpr double kPointsPerPixel = 0.75;
constexpr double kDefaultWidth = 300;  // pixels, as in CSS for what has no size of its own
constexpr double kDefaultHeight = 150;
constexpr double kMinScale = 1e-3;

// One of `width` and `height` as it is written.
struct Side {
  std::string_view name;
  std::string_view text;  // empty if it is missing or of no use
  std::optional<SvgLength> length;

  bool isPercent() const { return length && length->unit == SvgUnit::Percent; }
  bool isGiven() const { return length && !isPercent(); }
  double pixels() const { return userUnits(*length, SvgAxis::X, SvgMeasure{}); }
};

std::string asWritten(std::string_view name, std::string_view text) {
  return std::string(name) + "=" + quoted(text);
}

// A drawing in pixels is measured in points: its pixels are not those of the rulers.
AIRulerUnits rulerUnitsOf(SvgUnit unit) {
  switch (unit) {
    case SvgUnit::In:
      return kInchRuler;
    case SvgUnit::Cm:
      return kCentimeterRuler;
    case SvgUnit::Mm:
      return kMillimeterRuler;
    case SvgUnit::Pc:
      return kPicaRuler;
    case SvgUnit::Q:
      return kQRuler;
    default:
      return kPointRuler;
  }
}

class PageReader {
 public:
  PageReader(const SvgSource& source, SvgRemarks& remarks) : source_(source), remarks_(remarks) {}

  std::variant<SvgPage, SvgError> read() {
    if (!readViewBox() || !readSide(width_) || !readSide(height_)) return error_;
    chooseSize();
    if (!checkLength("width", pixelWidth_) || !checkLength("height", pixelHeight_)) return error_;
    SvgPage page;
    page.scale = readScale();
    if (width_.isGiven()) page.rulerUnits = rulerUnitsOf(width_.length->unit);
    placeRoot(page);
    readArtboards(page);
    return page;
  }

 private:
  bool fail(std::string reason) {
    error_ = {std::move(reason), source_.positionOf(source_.node(source_.root()).begin)};
    return false;
  }
  void remark(std::string reason) { remarks_.add(source_.root(), std::move(reason)); }

  bool readViewBox() {
    const auto text = source_.attribute(source_.root(), "viewBox");
    if (!text) return true;
    viewBox_ = parseViewBox(*text);
    if (!viewBox_) {
      remark(asWritten("viewBox", *text) + " is not understood and was left out of account");
    } else if (viewBox_->width <= 0 || viewBox_->height <= 0) {
      return fail(asWritten("viewBox", *text) + " is not a size");
    }
    return true;
  }

  bool readSide(Side& side) {
    const std::string_view text =
        withoutBlanksAround(source_.attribute(source_.root(), side.name).value_or(""));
    if (text.empty() || text == "auto") return true;
    side.length = parseLength(text);
    if (!side.length) {
      SvgScanner scanner(text);
      const std::optional<double> number = scanner.number();
      if (number && !std::isfinite(*number)) return fail(asWritten(side.name, text) + " is not a size");
      remark(asWritten(side.name, text) + " is not understood and was left out of account");
      return true;
    }
    side.text = text;
    return side.length->value > 0 || fail(asWritten(side.name, text) + " is not a size");
  }

  bool checkLength(std::string_view name, double pixels) {
    const Side& side = name == "width" ? width_ : height_;
    if (pixels * kPointsPerPixel <= kMaxPagePoints) return true;
    const std::string what = side.isGiven() ? asWritten(name, side.text)
                                            : "a " + std::string(name) + " of " + numberText(pixels) + " px";
    return fail(what + " is more than 1,000,000 pt");
  }

  void chooseSize() {
    if (width_.isGiven() && height_.isGiven()) {
      pixelWidth_ = width_.pixels();
      pixelHeight_ = height_.pixels();
    } else if (viewBox_ && (width_.isGiven() || height_.isGiven())) {
      deriveFromOtherSide();
    } else if (viewBox_) {
      pixelWidth_ = viewBox_->width * percentOf(width_);
      pixelHeight_ = viewBox_->height * percentOf(height_);
    } else {
      pixelWidth_ = width_.isGiven() ? width_.pixels() : kDefaultWidth;
      pixelHeight_ = height_.isGiven() ? height_.pixels() : kDefaultHeight;
    }
    remarkAssumption();
  }

  void deriveFromOtherSide() {
    if (width_.isGiven()) {
      pixelWidth_ = width_.pixels();
      pixelHeight_ = pixelWidth_ * viewBox_->height / viewBox_->width;
    } else {
      pixelHeight_ = height_.pixels();
      pixelWidth_ = pixelHeight_ * viewBox_->width / viewBox_->height;
    }
  }

  static double percentOf(const Side& side) { return side.isPercent() ? side.length->value / 100 : 1; }

  // One sentence about how user units became paper, if the file does not say it.
  void remarkAssumption() {
    const bool anyGiven = width_.isGiven() || height_.isGiven();
    const std::string size = numberText(pixelWidth_) + " x " + numberText(pixelHeight_) + " px";
    const std::string at96 = " was taken at 96 pixels to the inch";
    if (width_.isPercent() || height_.isPercent()) {
      remark("its size is given in percent of nothing; " + size + at96);
    } else if (!viewBox_ && !(width_.isGiven() && height_.isGiven())) {
      remark("its size is missing; " + size + at96);
    } else if (!anyGiven) {
      remark("it has a viewBox but no size; " + size + at96);
    } else if (!isPhysicalSide(width_) && !isPhysicalSide(height_)) {
      remark("its size is given in pixels; " + size + at96);
    } else if (isPixels(width_) || isPixels(height_)) {
      remark("one side of it is given in pixels, the other on paper; " + size + at96);
    }
  }

  static bool isPhysicalSide(const Side& side) { return side.isGiven() && isPhysical(side.length->unit); }
  static bool isPixels(const Side& side) { return side.isGiven() && !isPhysical(side.length->unit); }

  double readScale() {
    const auto text = source_.attribute(source_.root(), XmlNamespace::Host, "scale");
    if (!text) return 1;
    const std::optional<double> scale = numberFrom(*text);
    if (scale && *scale >= kMinScale) return *scale;
    remark("its " + asWritten("scale", *text) + " is not a scale; 1 was taken");
    return 1;
  }

  void placeRoot(SvgPage& page) {
    const NodeIndex root = source_.root();
    const SvgViewport viewport = viewportOf(source_, root, {0, 0}, pixelWidth_, pixelHeight_);
    const double unit = kPointsPerPixel / page.scale;
    page.documentFromPixels = {unit, 0, 0, -unit, 0, pixelHeight_ * unit};
    page.documentFromRoot = concat(viewport.outerFromInner, page.documentFromPixels);
    page.innerWidth = viewport.innerWidth;
    page.innerHeight = viewport.innerHeight;
    const auto text = source_.attribute(root, "transform");
    if (!text) return;
    if (const auto transform = parseTransform(*text)) {
      page.documentFromRoot = concat(concat(viewport.outerFromInner, *transform), page.documentFromPixels);
    }
  }

  void readArtboards(SvgPage& page) {
    for (NodeIndex child = firstChild(source_.root()); child != 0; child = next(child)) {
      const SvgNode& node = source_.node(child);
      if (node.nameSpace != XmlNamespace::Sodipodi || node.name != "namedview") continue;
      for (NodeIndex inner = firstChild(child); inner != 0; inner = next(inner)) readArtboard(inner, page);
    }
    if (page.artboards.empty()) {
      const double unit = kPointsPerPixel / page.scale;
      page.artboards.push_back({{0, pixelHeight_ * unit, pixelWidth_ * unit, 0}, "", source_.root()});
    }
    moveOriginToFirstArtboard(page);
  }

  void readArtboard(NodeIndex element, SvgPage& page) {
    const SvgNode& node = source_.node(element);
    if (node.nameSpace != XmlNamespace::Inkscape || node.name != "page") return;
    const SvgMeasure measure{page.innerWidth, page.innerHeight, 16};
    const auto length = [&](std::string_view name, SvgAxis axis) {
      return lengthOr(source_, element, name, axis, measure, 0);
    };
    const AIRealPoint from{length("x", SvgAxis::X), length("y", SvgAxis::Y)};
    const AIRealPoint size{length("width", SvgAxis::X), length("height", SvgAxis::Y)};
    const AIRealPoint topLeft = apply(page.documentFromRoot, from);
    const AIRealPoint end = apply(page.documentFromRoot, {from.x + size.x, from.y + size.y});
    const AIRealRect position{topLeft.x, topLeft.y, end.x, end.y};
    const double longest = kMaxPagePoints / page.scale;
    const bool usable = position.left < position.right && position.bottom < position.top &&
                        position.right - position.left <= longest &&
                        position.top - position.bottom <= longest;
    if (!usable) return remarks_.add(element, "its size is of no use and it was left out of account");
    page.artboards.push_back(
        {position, std::string(source_.attribute(element, XmlNamespace::Inkscape, "label").value_or("")),
         element});
  }

  static void moveOriginToFirstArtboard(SvgPage& page) {
    const AIRealRect& first = page.artboards.front().position;
    const AIRealMatrix shift{1, 0, 0, 1, -first.left, -first.bottom};
    page.documentFromRoot = concat(page.documentFromRoot, shift);
    page.documentFromPixels = concat(page.documentFromPixels, shift);
    for (std::size_t i = page.artboards.size(); i-- > 0;) {
      AIRealRect& position = page.artboards[i].position;
      position = {position.left + shift.tx, position.top + shift.ty, position.right + shift.tx,
                  position.bottom + shift.ty};
    }
  }

  NodeIndex firstChild(NodeIndex element) const { return source_.node(element).firstChild; }
  NodeIndex next(NodeIndex element) const { return source_.node(element).nextSibling; }

  const SvgSource& source_;
  SvgRemarks& remarks_;
  SvgError error_;
  std::optional<SvgViewBox> viewBox_;
  Side width_{"width", {}, {}};
  Side height_{"height", {}, {}};
  double pixelWidth_ = 0;
  double pixelHeight_ = 0;
};

}  // namespace

std::variant<SvgPage, SvgError> readPage(const SvgSource& source, SvgRemarks& remarks) {
  return PageReader(source, remarks).read();
}

}  // namespace host
