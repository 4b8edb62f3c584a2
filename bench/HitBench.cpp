// Point tests, against the ways that are at hand without an index of our own.
//
// The points lie in rows two units apart over the page, and are asked for row by row, as a placement of marks
// does. Figures are medians over interleaved runs of one program, so that their ratios mean something even on
// a busy machine.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QGraphicsPathItem>
#include <QGraphicsScene>
#include <cstdio>
#include <ctime>
#include <map>
#include <memory>
#include <string>

#include "AIHitTest.h"
#include "Cubic.h"
#include "GoalTable.h"
#include "HitIndex.h"
#include "Shapes.h"

namespace {

constexpr double kWidth = 600;
constexpr double kHeight = 800;
constexpr double kStep = 2;
constexpr int kRows = static_cast<int>(kHeight / kStep);
constexpr int kColumns = static_cast<int>(kWidth / kStep);

AIRealPoint samplePoint(int column, int row) {
  return {(column + 0.37) * kStep, (row + 0.61) * kStep};
}

// Over rows `first`, `first` + `every`, ...: slow peers get fewer.
template <typename AnyTest>
std::size_t countHits(const AnyTest& test, int every) {
  std::size_t hits = 0;
  for (int row = every / 2; row < kRows; row += every) {
    for (int column = 0; column < kColumns; ++column) hits += test(samplePoint(column, row)) ? 1U : 0U;
  }
  return hits;
}

// Unlike the clock on the wall, the same on a busy machine.
template <typename Work>
double processorSeconds(const Work& work) {
  const std::clock_t start = std::clock();
  work();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

QPainterPath painterPath(const host::PathGeometry& shape) {
  QPainterPath path;
  path.moveTo(shape.segments.front().p.x, shape.segments.front().p.y);
  for (std::size_t i = 0; i < host::curveCount(shape); ++i) {
    const host::Cubic c = host::curveAt(shape, i);
    path.cubicTo(c.p1.x, c.p1.y, c.p2.x, c.p2.y, c.p3.x, c.p3.y);
  }
  path.setFillRule(Qt::WindingFill);
  return path;
}

// Everything that answers for one drawing.
class Drawing {
 public:
  enum Kind { Apart, Compound, Strokes };

  Drawing(std::size_t count, Kind kind) : shapes_(bench::curvedShapes(count, kWidth, kHeight)) {
    host::Document document;
    if (kind == Compound) {
      bench::addAsCompound(document, shapes_, bench::filled());
    } else {
      bench::addApart(document, shapes_, kind == Strokes ? bench::stroked(0.5) : bench::filled());
    }
    buildSeconds_ = processorSeconds([&] { index_ = std::make_unique<host::HitIndex>(document); });
  }

  const host::HitIndex& index() const { return *index_; }
  double buildSeconds() const { return buildSeconds_; }

  const std::vector<QPainterPath>& painterPaths() {
    if (paths_.empty()) {
      for (const host::PathGeometry& shape : shapes_) paths_.push_back(painterPath(shape));
    }
    return paths_;
  }

  QGraphicsScene& scene() {
    if (!scene_) {
      scene_ = std::make_unique<QGraphicsScene>(0, 0, kWidth, kHeight);
      for (const QPainterPath& path : painterPaths()) {
        scene_->addPath(path, Qt::NoPen, QBrush(Qt::black));
      }
    }
    return *scene_;
  }

  // 4,096 by 4,096 bytes over the page.
  const std::vector<unsigned char>& bitmap() {
    if (!bitmap_.empty()) return bitmap_;
    bitmap_.resize(kBitmapSide * kBitmapSide);
    for (std::size_t y = 0; y < kBitmapSide; ++y) {
      for (std::size_t x = 0; x < kBitmapSide; ++x) {
        const AIRealPoint middle{(static_cast<double>(x) + 0.5) * kWidth / kBitmapSide,
                                 (static_cast<double>(y) + 0.5) * kHeight / kBitmapSide};
        bitmap_[y * kBitmapSide + x] = index().any(middle, kAllHitRequest);
      }
    }
    return bitmap_;
  }

  static constexpr std::size_t kBitmapSide = 4096;

 private:
  std::vector<host::PathGeometry> shapes_;
  std::unique_ptr<host::HitIndex> index_;
  double buildSeconds_ = 0;
  std::vector<QPainterPath> paths_;
  std::unique_ptr<QGraphicsScene> scene_;
  std::vector<unsigned char> bitmap_;
};

Drawing& drawing(std::size_t count, Drawing::Kind kind) {
  static std::map<std::pair<std::size_t, Drawing::Kind>, std::unique_ptr<Drawing>> made;
  std::unique_ptr<Drawing>& place = made[{count, kind}];
  if (!place) place = std::make_unique<Drawing>(count, kind);
  return *place;
}

// Behind a call, like the tests it is held against.
[[gnu::noinline]] bool lookUp(const std::vector<unsigned char>& bitmap, AIRealPoint point) {
  constexpr double kAcross = Drawing::kBitmapSide / kWidth;
  constexpr double kUp = Drawing::kBitmapSide / kHeight;
  const auto x = static_cast<std::size_t>(point.x * kAcross);
  const auto y = static_cast<std::size_t>(point.y * kUp);
  return bitmap[y * Drawing::kBitmapSide + x] != 0;
}

template <typename AnyTest>
void scan(benchmark::State& state, int every, const AnyTest& test) {
  countHits(test, every);  // warm
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(countHits(test, every));
  const int rows = (kRows - every / 2 + every - 1) / every;
  state.SetItemsProcessed(state.iterations() * rows * kColumns);
}

void registerAll() {
  const auto add = [](const std::string& name, int every, std::size_t count, Drawing::Kind kind,
                      auto makeTest) {
    benchmark::RegisterBenchmark(
        name.c_str(), [=](benchmark::State& state) { scan(state, every, makeTest(drawing(count, kind))); })
        ->Repetitions(7)
        ->MinTime(0.05);
  };
  const auto any = [](Drawing& d) {
    return [&index = d.index()](AIRealPoint p) { return index.any(p, kAllHitRequest); };
  };
  for (const std::size_t count : {100U, 1000U, 10000U, 100000U}) {
    add("any/" + std::to_string(count), 1, count, Drawing::Apart, any);
  }
  add("any/compound", 1, 10000, Drawing::Compound, any);
  add("any/strokes", 1, 10000, Drawing::Strokes, any);
  add("topmost/10000", 1, 10000, Drawing::Apart, [](Drawing& d) {
    return [&index = d.index()](AIRealPoint p) { return index.topmost(p, kAllHitRequest) != 0; };
  });
  add("bitmap", 1, 10000, Drawing::Apart,
      [](Drawing& d) { return [&bitmap = d.bitmap()](AIRealPoint p) { return lookUp(bitmap, p); }; });
  add("scene", 10, 10000, Drawing::Apart, [](Drawing& d) {
    return [&scene = d.scene()](AIRealPoint p) { return !scene.items(QPointF(p.x, p.y)).isEmpty(); };
  });
  add("paths", 80, 10000, Drawing::Apart, [](Drawing& d) {
    return [&paths = d.painterPaths()](AIRealPoint p) {
      for (const QPainterPath& path : paths) {
        if (path.contains(QPointF(p.x, p.y))) return true;
      }
      return false;
    };
  });
}

// Nanoseconds a test, the median of the repetitions, by name.
class Medians : public benchmark::ConsoleReporter {
 public:
  Medians() : ConsoleReporter(OO_None) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.aggregate_name != "median") continue;
      const auto rate = run.counters.find("items_per_second");
      if (rate != run.counters.end()) nanoseconds_[run.run_name.function_name] = 1e9 / rate->second;
    }
  }

  double operator[](const std::string& name) const {
    const auto found = nanoseconds_.find(name);
    return found == nanoseconds_.end() ? 0 : found->second;
  }

 private:
  std::map<std::string, double> nanoseconds_;
};

double secondsToStack(std::size_t count) {
  host::Document document;
  bench::addApart(document, std::vector<host::PathGeometry>(count, bench::rectangle(0, 0, kWidth, kHeight)),
                  bench::filled());
  return processorSeconds([&] { const host::HitIndex index(document); });
}

// The share of sample points at which index and scene disagree.
double disagreement() {
  Drawing& d = drawing(10000, Drawing::Apart);
  std::size_t differ = 0;
  const auto compare = [&](AIRealPoint p) {
    const bool hit = d.index().any(p, kAllHitRequest);
    differ += hit == d.scene().items(QPointF(p.x, p.y)).isEmpty() ? 1U : 0U;
    return hit;
  };
  const std::size_t hits = countHits(compare, 4);
  std::printf("%zu of %d points hit; index and scene disagree about %zu\n", hits, kRows / 4 * kColumns,
              differ);
  return static_cast<double>(differ) / (kRows / 4.0 * kColumns);
}

int judge(const Medians& ns) {
  const auto note = [&](const std::string& a, const std::string& b) {
    char text[96];
    std::snprintf(text, sizeof text, "%s %.4g ns, %s %.4g ns", a.c_str(), ns[a], b.c_str(), ns[b]);
    return std::string(text);
  };
  bench::GoalTable table;
  const auto faster = [&](const std::string& peer, double goal) {
    table.atLeast("times faster than " + peer, ns[peer] / ns["any/10000"], goal, note("any/10000", peer));
  };
  const auto slower = [&](const std::string& what, const std::string& peer, double goal) {
    table.atMost(what + " / " + peer, ns[what] / ns[peer], goal, note(what, peer));
  };
  faster("scene", 15);
  faster("paths", 1000);
  slower("any/10000", "bitmap", 10);
  slower("any/compound", "any/10000", 1.5);
  slower("any/100000", "any/100", 12);
  slower("any/strokes", "any/10000", 10);
  slower("topmost/10000", "scene", 1);
  for (const std::size_t count : {10000U, 100000U}) {
    table.atMost("seconds to index " + std::to_string(count), drawing(count, Drawing::Apart).buildSeconds(),
                 2);
  }
  table.atMost("seconds to index a stack of 100000", secondsToStack(100000), 2);
  table.atMost("answers in 10000 unlike scene's", 10000 * disagreement(), 10,
               "both flatten curves, each its own way");
  return table.print();
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  std::vector<char*> arguments(argv, argv + argc);
  char interleave[] = "--benchmark_enable_random_interleaving=true";
  arguments.insert(arguments.begin() + 1, interleave);
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  registerAll();
  Medians medians;
  benchmark::RunSpecifiedBenchmarks(&medians);
  return judge(medians) == 0 ? 0 : 1;
}
