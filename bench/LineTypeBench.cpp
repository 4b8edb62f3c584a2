// Line types in a document of 10,000 paths, and a palette of 1,000 line types.
#include <QApplication>
#include <QListWidget>
#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "AppContext.h"
#include "BenchPlugin.h"
#include "ConvertSelection.h"
#include "CutLayerDialog.h"
#include "GoalTable.h"
#include "LineTypeSwatch.h"
#include "MoveSelection.h"
#include "NativeView.h"
#include "ScratchFolder.h"

namespace {

using namespace Vandrell::Corvane;

constexpr int kPaths = 10000;
constexpr int kLineTypes = 1000;
constexpr int kRuns = 9;

// Seconds of processor time, the median of so many runs: all of it is work of this one thread.
double median(int runs, const std::function<void()>& work) {
  std::vector<double> seconds;
  for (int i = 0; i < runs; ++i) {
    const std::clock_t start = std::clock();
    work();
    seconds.push_back(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
  }
  std::nth_element(seconds.begin(), seconds.begin() + runs / 2, seconds.end());
  return seconds[static_cast<std::size_t>(runs) / 2];
}

// Short, so that the preference of what is shown has room for all of them.
std::string lineTypeName(int number) {
  return std::to_string(number);
}

std::string definitionFile() {
  std::string text = R"({"Default":"Standard","Groups":{"Standard":[)";
  for (int i = 0; i < kLineTypes; ++i) {
    text += (i == 0 ? "" : ",") + (R"({"name":")" + lineTypeName(i)) +
            R"(","isCustomDataModel":true,"customColor":{"kind":1,"flag":1,"rgb":[1,0,0.5]}})";
  }
  return text + "]}}";
}

LineType lineType(int number) {
  LineType type;
  type.name = ai::UnicodeString(lineTypeName(number));
  type.isCustomDataModel = true;
  type.customColor = AICustomColor();
  type.customColor.kind = kCustomThreeColor;
  type.customColor.flag = kCustomSpotColor;
  type.customColor.c.rgb = {1, 0, 0.5};
  return type;
}

// A drawing whose paths, in groups of ten, are all selected. It is open as long as it lives.
class Drawing {
 public:
  Drawing(host::Host& host, int paths) : host_(host) {
    document_->editState().artboards = {{{0, 800, 600, 0}, "1", 0}};
    const host::LayerId layer = document_->insertLayer(0, kPlaceAboveAll);
    document_->editLayer(layer).title = "Art";
    host::ArtId group = 0;
    for (int i = 0; i < paths; ++i) {
      if (i % 10 == 0) group = add(kGroupArt, document_->layer(layer)->root);
      art_.push_back(add(kPathArt, group));
    }
    document_->startRecording();
    host_.documents().open(document_, "drawing");
    select(true);
  }
  Drawing(const Drawing&) = delete;
  Drawing& operator=(const Drawing&) = delete;
  ~Drawing() { host_.documents().close(*document_); }

  void select(bool selected) {
    for (const host::ArtId id : art_) document_->setSelected(id, selected);
  }
  void convert(int number) {
    const qRVADM::AppContext context;
    LineType type = lineType(number);
    EnsureLineTypeSwatch(type, "Cut Line Types");
    ConvertSelection(type);
  }
  void move(int number) {
    const qRVADM::AppContext context;
    MoveSelection({lineTypeName(number)});
  }
  void checkThatAllWentTo(int number) const {
    const host::LayerId top = document_->state().layers.front();
    for (const host::ArtId id : art_) {
      const bool moved =
          document_->layerOfArt(id) == top && document_->layer(top)->title == lineTypeName(number);
      if (!moved) throw std::runtime_error("a path did not move");
    }
  }

 private:
  host::ArtId add(AIArtType type, host::ArtId group) {
    return document_->newArt(type, kPlaceInsideOnTop, group).value();
  }

  host::Host& host_;
  std::shared_ptr<host::Document> document_ = std::make_shared<host::Document>();
  std::vector<host::ArtId> art_;
};

// Panels that are windows of their own.
class WindowView : public host::PanelView {
 public:
  explicit WindowView(const host::PanelRecord& panel) { WindowView::setSize(panel.minimum); }

  NativeView* view() override { return NativeViewOf(&window_); }
  void show(bool show) override { window_.setVisible(show); }
  bool isShown() const override { return window_.isVisible(); }
  AISize size() const override {
    return {static_cast<AIReal>(window_.width()), static_cast<AIReal>(window_.height())};
  }
  void setSize(AISize size) override {
    window_.resize(static_cast<int>(size.width), static_cast<int>(size.height));
  }
  void move(std::int32_t, std::int32_t) override {}
  void recordChanged() override {}

 private:
  QWidget window_;
};

class WindowViews : public host::PanelViews {
 public:
  std::unique_ptr<host::PanelView> make(host::PanelRecord& panel) override {
    return std::make_unique<WindowView>(panel);
  }
};

void checkRows(const CutLayerDialog& palette) {
  const auto* list = palette.findChild<QListWidget*>();
  if (list == nullptr || list->count() != kLineTypes) throw std::runtime_error("the palette lacks rows");
}

double secondsToConvertAndMove(host::Host& host, int paths) {
  std::vector<std::unique_ptr<Drawing>> drawings;
  for (int i = 0; i < kRuns; ++i) drawings.push_back(std::make_unique<Drawing>(host, paths));
  return median(kRuns, [&] {
    Drawing& drawing = *drawings.back();
    drawing.convert(7);
    drawing.move(7);
    drawing.checkThatAllWentTo(7);
    drawings.pop_back();
  });
}

double secondsToFollow(host::Host& host, CutLayerDialog& palette) {
  Drawing drawing(host, kPaths);
  drawing.convert(7);
  bool selected = true;
  return median(2 * kRuns, [&] {
    selected = !selected;
    drawing.select(selected);
    palette.SyncWithSelection();
  });
}

int judge(host::Host& host) {
  const double opening = median(kRuns, [] {
    CutLayerDialog palette;
    palette.Show(true);
    QCoreApplication::processEvents();
    checkRows(palette);
  });
  const double few = secondsToConvertAndMove(host, kPaths / 10);
  const double many = secondsToConvertAndMove(host, kPaths);
  CutLayerDialog palette;
  const double following = secondsToFollow(host, palette);
  bench::GoalTable table;
  table.atMost("10,000 paths painted and moved to their layer, s", many, 2);
  table.atMost("the same, of ten times 1,000 paths", many / (10 * few), 1.5, "linear");
  table.atMost("a selection of 10,000 paths followed, ms", 1000 * following, 50);
  table.atMost("a palette of 1,000 line types, ms", 1000 * opening, 100);
  return table.print();
}

}  // namespace

int main(int count, char** arguments) {
  const ScratchFolder scratch;
  scratch.write("CurveLayerDefinition.json", definitionFile());
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  setenv("LOCALE_PATH", scratch.file("").c_str(), 1);
  setenv("CORVANE_SHARED_DATA", scratch.file("shared").c_str(), 1);
  const QApplication application(count, arguments);
  host::Host host;
  WindowViews views;
  host.panels().views = &views;
  const bench::BenchPlugin plugin(
      host, "/",
      {"AI Art Suite", "AI Color Conversion Suite", "AI Context Suite", "AI Custom Color Suite",
       "AI Document Suite", "AI Layer Suite", "AI Matching Art Suite", "AI Panel Suite",
       "AI Path Style Suite", "AI Preference Suite", "AI Swatch Group Suite", "AI Swatch List Suite",
       "AI Unicode String Suite", "AI User Suite"});
  return judge(host) == 0 ? 0 : 1;
}
