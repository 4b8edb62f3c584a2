// The automatic placement against its own point tests, and a message that belongs to nobody.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "AIArtboard.h"
#include "AIDocument.h"
#include "AIDocumentView.h"
#include "AIHitTest.h"
#include "AILayer.h"
#include "AIMenu.h"
#include "AIPath.h"
#include "AIPathStyle.h"
#include "AIPreference.h"
#include "AIRealMath.h"
#include "AIUnicodeString.h"
#include "CutOption.h"
#include "GoalTable.h"
#include "HMX_AISuiteManager.h"
#include "Median.h"
#include "PlaceRegmarks.h"
#include "Session.h"
#include "Shapes.h"

namespace {

using bench::median;
using Clock = std::chrono::steady_clock;
using Vandrell::Corvane::CutOption;

constexpr double kWidth = 600;
constexpr double kHeight = 800;

void holdSuites(host::Host& host) {
  HMX_AISuiteManager& suites = HMX_AISuiteManager::Instance();
  suites.Reset();
  suites.SetBasicSuite(host.basic());
  for (const char* name :
       {kAIArtboardSuite, kAIArtSuite, kAIDocumentSuite, kAIDocumentViewSuite, kAIHitTestSuite, kAILayerSuite,
        kAIPathSuite, kAIPathStyleSuite, kAIPreferenceSuite, kAIRealMathSuite, kAIUnicodeStringSuite}) {
    suites.Request(name);
  }
  suites.Acquire();
}

std::shared_ptr<host::Document> drawing(std::size_t shapes) {
  auto document = std::make_shared<host::Document>();
  document->editState().artboards = {{{-100, kHeight + 100, kWidth + 100, -100}, "1", 0}};
  bench::addApart(*document, bench::curvedShapes(shapes, kWidth, kHeight), bench::filled());
  document->startRecording();
  return document;
}

// A hit test table that remembers each point and passes it on.
std::vector<AIRealPoint> sPoints;
const AIHitTestSuite* sRealHitTest = nullptr;

AIErr rememberPoint(AIArtHandle art, const AIRealPoint* point, std::int32_t request, AIHitRef* hit) {
  sPoints.push_back(*point);
  return sRealHitTest->HitTest(art, point, request, hit);
}

std::vector<AIRealPoint> pointsOf(const CutOption& option) {
  sRealHitTest = sAIHitTest;
  const AIHitTestSuite remembering{&rememberPoint, sRealHitTest->GetHitData, sRealHitTest->GetHitArt};
  sPoints.clear();
  sAIHitTest = &remembering;
  std::int32_t failures = 0;
  PlaceRegmarks(option, failures);
  sAIHitTest = sRealHitTest;
  return sPoints;
}

void testPoints(const std::vector<AIRealPoint>& points) {
  std::size_t hits = 0;
  for (const AIRealPoint& point : points) {
    AIHitRef hit = nullptr;
    AIHitData data{};
    sAIHitTest->HitTest(nullptr, &point, kAllHitRequest, &hit);
    sAIHitTest->GetHitData(hit, &data);
    hits += data.hit;
  }
  benchmark::DoNotOptimize(hits);
}

void benchPlacement(bench::GoalTable& table, double size) {
  host::Host host;
  const auto document = drawing(10000);
  host.documents().open(document, "drawing");
  holdSuites(host);
  CutOption option;
  option.action = Vandrell::Corvane::kAutoMarks;
  option.size = size;
  option.strokeWeight = 0;
  const std::vector<AIRealPoint> points = pointsOf(option);
  // Both begin with a document that has just changed, so both make their index.
  const double tests = median(7, [&] {
    document->editState();
    testPoints(points);
  });
  const double placement = median(7, [&] {
    document->editState();
    std::int32_t failures = 0;
    PlaceRegmarks(option, failures);
  });
  const double index = median(7, [&] {
    document->editState();
    testPoints({points.front()});
  });
  char note[160];
  std::snprintf(note, sizeof note,
                "%zu tests; index %.1f ms, with all tests %.1f ms, with the placement %.1f ms", points.size(),
                index * 1e3, tests * 1e3, placement * 1e3);
  const std::string figure =
      "10,000 shapes, marks of " + std::to_string(static_cast<int>(size)) + " pt: placement / ";
  table.atMost(figure + "its tests", placement / tests, 2, note);
  table.atMost(figure + "its tests, the index left out of both", (placement - index) / (tests - index), 2);
  HMX_AISuiteManager::Instance().Release();
}

double nobodysMessage(const std::string& bundle) {
  host::Host host;
  host::Session session(host);
  if (const std::string reason = session.loadPlugin(bundle); !reason.empty()) {
    std::fprintf(stderr, "%s\n", reason.c_str());
    return 1e9;
  }
  session.start();
  constexpr int kMessages = 200000;
  const double seconds = median(5, [&] {
    for (int i = 0; i < kMessages; ++i) {
      AIMenuMessage message{};
      session.send(host.plugins()[0].handle, kCallerAIMenu, kSelectorAIGoMenuItem, message.d);
    }
  });
  return seconds / kMessages * 1e6;
}

void BM_HitTestThroughTheSuite(benchmark::State& state) {
  host::Host host;
  host.documents().open(drawing(static_cast<std::size_t>(state.range(0))), "drawing");
  holdSuites(host);
  double x = 0;
  for (auto _ : state) {
    const AIRealPoint point{x, 400.5};
    AIHitRef hit = nullptr;
    AIHitData data{};
    sAIHitTest->HitTest(nullptr, &point, kAllHitRequest, &hit);
    sAIHitTest->GetHitData(hit, &data);
    benchmark::DoNotOptimize(data);
    x = x > kWidth ? 0 : x + 2;
  }
  HMX_AISuiteManager::Instance().Release();
}
BENCHMARK(BM_HitTestThroughTheSuite)->Arg(100)->Arg(10000);

}  // namespace

int main(int argc, char** argv) {
  const auto folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  bench::GoalTable table;
  benchPlacement(table, 2);
  benchPlacement(table, 17);
  table.atMost("a message that is nobody's, us", nobodysMessage((folder / "corvane.bundle").string()), 1);
  return table.print() == 0 ? 0 : 1;
}
