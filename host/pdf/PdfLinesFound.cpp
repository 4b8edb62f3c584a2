#include <algorithm>
#include <cmath>
#include <map>
#include <qpdf/Pl_Buffer.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <utility>

#include "Bounds.h"
#include "Geometry.h"
#include "PdfContentReader.h"
#include "PdfLines.h"

namespace host {
namespace {

constexpr std::size_t kDeepest = 64;  // groups within groups

// The colours and states of a page's resources, looked up once.
class Resources {
 public:
  explicit Resources(const QPDFObjectHandle& dictionary) : dictionary_(dictionary) {}

  // Of a Separation; empty for any other space.
  const std::string& spot(std::string_view name) {
    return looked(spots_, name, [&] {
      QPDFObjectHandle space = find("/ColorSpace", name);
      const bool isSpot = space.isArray() && space.getArrayNItems() == 4 &&
                          space.getArrayItem(0).isNameAndEquals("/Separation");
      return isSpot ? space.getArrayItem(1).getName().substr(1) : std::string();
    });
  }
  const std::string& layer(std::string_view name) {
    return looked(layers_, name, [&] {
      QPDFObjectHandle group = find("/Properties", name);
      return group.isDictionary() ? group.getKey("/Name").getUTF8Value() : std::string();
    });
  }
  QPDFObjectHandle state(std::string_view name) {
    return looked(states_, name, [&] { return find("/ExtGState", name); });
  }
  // A form that may hold spot colours; null otherwise.
  QPDFObjectHandle form(std::string_view name) {
    QPDFObjectHandle form = find("/XObject", name);
    const bool isForm = form.isStream() && form.getDict().getKey("/Subtype").isNameAndEquals("/Form");
    if (!isForm || !Resources(form.getDict().getKey("/Resources")).hasSpots()) {
      return QPDFObjectHandle::newNull();
    }
    return form;
  }

 private:
  template <typename Value, typename Find>
  static const Value& looked(std::map<std::string, Value, std::less<>>& known, std::string_view name,
                             Find find) {
    const auto at = known.find(name);
    return at != known.end() ? at->second : known.emplace(name, find()).first->second;
  }

  QPDFObjectHandle find(const char* kind, std::string_view name) {
    if (!dictionary_.isDictionary() || name.empty()) return QPDFObjectHandle::newNull();
    QPDFObjectHandle all = dictionary_.getKey(kind);
    return all.isDictionary() ? all.getKey(std::string(name)) : QPDFObjectHandle::newNull();
  }

  bool hasSpots() {
    QPDFObjectHandle spaces = dictionary_.isDictionary() ? dictionary_.getKey("/ColorSpace") : dictionary_;
    if (!spaces.isDictionary()) return false;
    for (const std::string& name : spaces.getKeys()) {
      if (!spot(name).empty()) return true;
    }
    return false;
  }

  QPDFObjectHandle dictionary_;
  std::map<std::string, std::string, std::less<>> spots_, layers_;
  std::map<std::string, QPDFObjectHandle, std::less<>> states_;
};

// What of the graphics state lines need.
struct Paint {
  std::string spot;  // empty for any other space
  bool overprints = false;
};

struct State {
  AIRealMatrix matrix{};
  Paint fill, stroke;
  double width = 1;
};

class FoundLines {
 public:
  explicit FoundLines(double unit) { state_.matrix = {unit, 0, 0, unit, 0, 0}; }

  void read(std::string_view content, Resources resources) {
    PdfContentReader reader(content);
    const PdfContentReader* const outerReader = std::exchange(reader_, &reader);
    Resources* const outerResources = std::exchange(resources_, &resources);
    while (reader.next()) run(reader.op());
    reader_ = outerReader;
    resources_ = outerResources;
  }

  std::vector<PdfLine> take() { return std::move(lines_); }

 private:
  void run(std::string_view name) {
    using Operator = void (FoundLines::*)();
    static const std::map<std::string_view, Operator> operators = {{"q", &FoundLines::push},
                                                                   {"Q", &FoundLines::pop},
                                                                   {"cm", &FoundLines::transform},
                                                                   {"BDC", &FoundLines::beginLayer},
                                                                   {"BMC", &FoundLines::beginOther},
                                                                   {"EMC", &FoundLines::endLayer},
                                                                   {"CS", &FoundLines::chooseStrokeSpace},
                                                                   {"cs", &FoundLines::chooseFillSpace},
                                                                   {"G", &FoundLines::leaveStrokeSpot},
                                                                   {"RG", &FoundLines::leaveStrokeSpot},
                                                                   {"K", &FoundLines::leaveStrokeSpot},
                                                                   {"g", &FoundLines::leaveFillSpot},
                                                                   {"rg", &FoundLines::leaveFillSpot},
                                                                   {"k", &FoundLines::leaveFillSpot},
                                                                   {"gs", &FoundLines::chooseState},
                                                                   {"w", &FoundLines::chooseWidth},
                                                                   {"m", &FoundLines::move},
                                                                   {"l", &FoundLines::line},
                                                                   {"c", &FoundLines::curve},
                                                                   {"h", &FoundLines::close},
                                                                   {"S", &FoundLines::stroke},
                                                                   {"f", &FoundLines::fill},
                                                                   {"f*", &FoundLines::fill},
                                                                   {"B", &FoundLines::fillAndStroke},
                                                                   {"B*", &FoundLines::fillAndStroke},
                                                                   {"n", &FoundLines::drop},
                                                                   {"Do", &FoundLines::paintObject}};
    const auto found = operators.find(name);
    if (found != operators.end()) (this->*found->second)();
  }

  double number(std::size_t index) const { return reader_->number(index); }
  AIRealPoint point(std::size_t first) const {
    return apply(state_.matrix, {number(first), number(first + 1)});
  }

  void push() { states_.push_back(state_); }
  void pop() {
    if (states_.empty()) return;
    state_ = std::move(states_.back());
    states_.pop_back();
  }
  void transform() {
    state_.matrix = concat({number(0), number(1), number(2), number(3), number(4), number(5)}, state_.matrix);
  }
  void beginLayer() { layers_.push_back(resources_->layer(reader_->name(1))); }
  void beginOther() { layers_.emplace_back(); }
  void endLayer() {
    if (!layers_.empty()) layers_.pop_back();
  }
  void chooseStrokeSpace() { state_.stroke.spot = resources_->spot(reader_->name(0)); }
  void chooseFillSpace() { state_.fill.spot = resources_->spot(reader_->name(0)); }
  void leaveStrokeSpot() { state_.stroke.spot.clear(); }
  void leaveFillSpot() { state_.fill.spot.clear(); }
  void chooseState() {
    QPDFObjectHandle chosen = resources_->state(reader_->name(0));
    if (!chosen.isDictionary()) return;
    const auto take = [&](const char* key, bool& flag) {
      if (chosen.getKey(key).isBool()) flag = chosen.getKey(key).getBoolValue();
    };
    take("/OP", state_.stroke.overprints);
    take("/op", state_.fill.overprints);
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
  void fill() { end(true, false); }
  void stroke() { end(false, true); }
  void fillAndStroke() { end(true, true); }
  void end(bool fills, bool strokes) {
    const bool isFill = fills && !state_.fill.spot.empty(), isStroke = strokes && !state_.stroke.spot.empty();
    AIRealRect box = kEmptyRect;
    if (isFill || isStroke) {
      for (const PathGeometry& path : paths_) box = unite(box, pathBounds(path));
    }
    paths_.clear();
    if (isEmpty(box)) return;
    const std::string layer = layers_.empty() ? std::string() : layers_.back();
    const double width = state_.width * std::sqrt(std::abs(determinant(state_.matrix)));
    if (isFill) lines_.push_back({layer, state_.fill.spot, true, state_.fill.overprints, 0, box, 0, 0});
    if (isStroke)
      lines_.push_back({layer, state_.stroke.spot, false, state_.stroke.overprints, width, box, 0, 0});
  }

  void paintObject() {
    QPDFObjectHandle form = resources_->form(reader_->name(0));
    if (!form.isStream() || depth_ == kDeepest) return;
    const State outer = state_;
    const std::size_t pushed = states_.size();
    const auto data = form.getStreamData();
    ++depth_;
    read({reinterpret_cast<const char*>(data->getBuffer()), data->getSize()},
         Resources(form.getDict().getKey("/Resources")));
    --depth_;
    states_.resize(std::min(states_.size(), pushed));
    state_ = outer;
  }

  Resources* resources_ = nullptr;
  const PdfContentReader* reader_ = nullptr;
  std::size_t depth_ = 0;
  State state_;
  std::vector<State> states_;
  std::vector<std::string> layers_;
  std::vector<PathGeometry> paths_;
  std::vector<PdfLine> lines_;
};

}  // namespace

std::vector<PdfLine> linesFound(QPDFPageObjectHelper& page) {
  QPDFObjectHandle unit = page.getObjectHandle().getKey("/UserUnit");
  Pl_Buffer content("page");
  page.pipeContents(&content);
  const auto bytes = content.getBufferSharedPointer();
  FoundLines found(unit.isNumber() ? unit.getNumericValue() : 1);
  found.read({reinterpret_cast<const char*>(bytes->getBuffer()), bytes->getSize()},
             Resources(page.getAttribute("/Resources", false)));
  return found.take();
}

}  // namespace host
