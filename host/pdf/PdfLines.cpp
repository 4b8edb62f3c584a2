#include "PdfLines.h"

#include <map>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include "Bounds.h"
#include "Geometry.h"
#include "Paint.h"
#include "SvgDrawing.h"

namespace host {
namespace {

// --- what is meant ---

class MeantLines {
 public:
  MeantLines(const SvgDrawing& drawing, std::size_t artboard)
      : document_(*drawing.document), page_(document_.state().artboards[artboard].position) {}

  std::vector<PdfLine> gather() {
    const auto& layers = document_.state().layers;
    for (auto id = layers.rbegin(); id != layers.rend(); ++id) {
      layer_ = document_.layer(*id);
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
      if (art.style) add(id, *art.style, outlineOf(art));
      if (art.body) {
        for (const Body::Part& part : art.body->parts) add(id, part.style, boundsOf(part.paths));
      }
      if (art.type != kGroupArt) continue;
      for (ArtId child = art.firstChild; child != 0; child = document_.art(child)->below)
        open.push_back(child);
    }
  }

  static AIRealRect boundsOf(const std::vector<PathGeometry>& paths) {
    AIRealRect box = kEmptyRect;
    for (const PathGeometry& path : paths) box = unite(box, pathBounds(path));
    return box;
  }

  AIRealRect outlineOf(const Art& art) const {
    if (art.path) return pathBounds(*art.path);
    AIRealRect box = kEmptyRect;
    for (ArtId child = art.firstChild; child != 0; child = document_.art(child)->below) {
      const Art& part = *document_.art(child);
      if (!part.hidden && !part.guide && part.path) box = unite(box, pathBounds(*part.path));
    }
    return box;
  }

  void add(ArtId id, const AIPathStyle& style, const AIRealRect& box) {
    if (!paintsStroke(style) || style.stroke.color.kind != kCustomColor || isEmpty(box)) return;
    const CustomColor* color = document_.customColor(
        idOfHandle(style.stroke.color.c.c.color, HandleKind::CustomColor, document_.serial()));
    if (color == nullptr || (color->definition.flag & kCustomSpotColor) == 0) return;
    const bool isAlone = document_.state().artboards.size() == 1;
    if (!isAlone && isEmpty(intersect(artBounds(document_, id, nullptr, 0), page_))) return;
    const double scale = document_.scale();
    lines_.push_back({layer_->title,
                      color->name,
                      style.stroke.overprint != 0,
                      style.stroke.width * scale,
                      {(box.left - page_.left) * scale, (box.top - page_.bottom) * scale,
                       (box.right - page_.left) * scale, (box.bottom - page_.bottom) * scale},
                      id});
  }

  const Document& document_;
  const AIRealRect page_;
  const Layer* layer_ = nullptr;
  std::vector<PdfLine> lines_;
};

// --- what is found ---

// Goes through the operators of a content stream and keeps as much of the graphics state as lines need.
class FoundLines : public QPDFObjectHandle::ParserCallbacks {
 public:
  FoundLines(QPDFObjectHandle resources, double unit) : resources_(std::move(resources)) {
    state_.matrix = {unit, 0, 0, unit, 0, 0};
  }

  void handleObject(QPDFObjectHandle object) override {
    if (!object.isOperator()) return operands_.push_back(object);
    run(object.getOperatorValue());
    operands_.clear();
  }
  void handleEOF() override {}

  std::vector<PdfLine> take() { return std::move(lines_); }

 private:
  struct State {
    AIRealMatrix matrix{};
    std::string spot;  // of strokes; empty for any other space
    bool overprints = false;
    double width = 1;
  };

  void run(const std::string& name) {
    using Operator = void (FoundLines::*)();
    static const std::map<std::string, Operator> operators = {
        {"q", &FoundLines::push},         {"Q", &FoundLines::pop},          {"cm", &FoundLines::transform},
        {"BDC", &FoundLines::beginLayer}, {"BMC", &FoundLines::beginOther}, {"EMC", &FoundLines::endLayer},
        {"CS", &FoundLines::chooseSpace}, {"G", &FoundLines::leaveSpot},    {"RG", &FoundLines::leaveSpot},
        {"K", &FoundLines::leaveSpot},    {"gs", &FoundLines::chooseState}, {"w", &FoundLines::chooseWidth},
        {"m", &FoundLines::move},         {"l", &FoundLines::line},         {"c", &FoundLines::curve},
        {"h", &FoundLines::close},        {"S", &FoundLines::stroke},       {"B", &FoundLines::stroke},
        {"B*", &FoundLines::stroke},      {"f", &FoundLines::drop},         {"f*", &FoundLines::drop},
        {"n", &FoundLines::drop}};
    const auto found = operators.find(name);
    if (found != operators.end()) (this->*found->second)();
  }

  double number(std::size_t index) {
    return index < operands_.size() && operands_[index].isNumber() ? operands_[index].getNumericValue() : 0;
  }
  AIRealPoint point(std::size_t first) { return apply(state_.matrix, {number(first), number(first + 1)}); }
  QPDFObjectHandle resource(const char* kind, std::size_t operand) {
    QPDFObjectHandle all = resources_.getKey(kind);
    if (operand >= operands_.size() || !operands_[operand].isName() || !all.isDictionary()) {
      return QPDFObjectHandle::newNull();
    }
    return all.getKey(operands_[operand].getName());
  }

  void push() { states_.push_back(state_); }
  void pop() {
    if (states_.empty()) return;
    state_ = states_.back();
    states_.pop_back();
  }
  void transform() {
    state_.matrix = concat({number(0), number(1), number(2), number(3), number(4), number(5)}, state_.matrix);
  }
  void beginLayer() {
    QPDFObjectHandle group = resource("/Properties", 1);
    layers_.push_back(group.isDictionary() ? group.getKey("/Name").getUTF8Value() : std::string());
  }
  void beginOther() { layers_.emplace_back(); }
  void endLayer() {
    if (!layers_.empty()) layers_.pop_back();
  }
  void chooseSpace() {
    QPDFObjectHandle space = resource("/ColorSpace", 0);
    const bool isSpot = space.isArray() && space.getArrayNItems() == 4 &&
                        space.getArrayItem(0).isNameAndEquals("/Separation");
    state_.spot = isSpot ? space.getArrayItem(1).getName().substr(1) : std::string();
  }
  void leaveSpot() { state_.spot.clear(); }
  void chooseState() {
    QPDFObjectHandle chosen = resource("/ExtGState", 0);
    if (chosen.isDictionary() && chosen.getKey("/OP").isBool()) {
      state_.overprints = chosen.getKey("/OP").getBoolValue();
    }
  }
  void chooseWidth() { state_.width = number(0); }

  void move() {
    paths_.emplace_back();
    add(point(0));
  }
  void line() { add(point(0)); }
  void curve() {
    if (paths_.empty()) return;
    paths_.back().segments.back().out = point(0);
    add(point(4));
    paths_.back().segments.back().in = point(2);
  }
  void add(AIRealPoint at) {
    if (!paths_.empty()) paths_.back().segments.push_back({at, at, at, 1});
  }
  void close() {
    if (!paths_.empty()) paths_.back().closed = true;
  }
  void drop() { paths_.clear(); }
  void stroke() {
    AIRealRect box = kEmptyRect;
    for (const PathGeometry& path : paths_) box = unite(box, pathBounds(path));
    paths_.clear();
    if (state_.spot.empty()) return;
    lines_.push_back({layers_.empty() ? std::string() : layers_.back(), state_.spot, state_.overprints,
                      state_.width * state_.matrix.a, box, 0});
  }

  QPDFObjectHandle resources_;
  std::vector<QPDFObjectHandle> operands_;
  State state_;
  std::vector<State> states_;
  std::vector<std::string> layers_;
  std::vector<PathGeometry> paths_;
  std::vector<PdfLine> lines_;
};

}  // namespace

std::vector<PdfLine> linesMeant(const SvgDrawing& drawing, std::size_t artboard) {
  return MeantLines(drawing, artboard).gather();
}

std::vector<PdfLine> linesFound(QPDFPageObjectHelper& page) {
  QPDFObjectHandle unit = page.getObjectHandle().getKey("/UserUnit");
  FoundLines found(page.getAttribute("/Resources", false), unit.isNumber() ? unit.getNumericValue() : 1);
  page.parseContents(&found);
  return found.take();
}

}  // namespace host
