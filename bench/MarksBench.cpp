// The automatic placement against its own point tests, and a message that belongs to nobody.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <stdexcept>
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
#include "ScratchFolder.h"
#include "Session.h"
#include "Shapes.h"

namespace {

using bench::median;
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

// Hit tests as they were asked and answered once.
struct Tests {
  std::vector<AIRealPoint> points;
  std::vector<AIBoolean> answers;
};

Tests sTests;
std::size_t sAsked = 0;  // while the answers are given again
const AIHitTestSuite* sRealHitTest = nullptr;

AIErr rememberPoint(AIArtHandle art, const AIRealPoint* point, std::int32_t request, AIHitRef* hit) {
  sTests.points.push_back(*point);
  return sRealHitTest->HitTest(art, point, request, hit);
}

AIErr rememberAnswer(AIHitRef hit, AIHitData* data) {
  const AIErr error = sRealHitTest->GetHitData(hit, data);
  sTests.answers.push_back(data->hit);
  return error;
}

AIErr countTest(AIArtHandle, const AIRealPoint*, std::int32_t, AIHitRef* hit) {
  *hit = nullptr;
  ++sAsked;
  return kNoErr;
}

AIErr giveAnswerAgain(AIHitRef, AIHitData* data) {
  data->hit = sTests.answers.at(sAsked - 1);
  return kNoErr;
}

void place(const CutOption& option) {
  std::int32_t failures = 0;
  if (PlaceRegmarks(option, failures) != kNoErr) throw std::runtime_error("no marks could be placed");
}

void rememberTests(const CutOption& option) {
  const AIHitTestSuite remembering{&rememberPoint, &rememberAnswer, sRealHitTest->GetHitArt};
  sTests = {};
  sAIHitTest = &remembering;
  place(option);
  sAIHitTest = sRealHitTest;
}

// The placement where a hit test costs next to nothing.
void placeWithAnswers(const CutOption& option) {
  const AIHitTestSuite answering{&countTest, &giveAnswerAgain, sRealHitTest->GetHitArt};
  sAsked = 0;
  sAIHitTest = &answering;
  place(option);
  sAIHitTest = sRealHitTest;
  if (sAsked != sTests.answers.size())
    throw std::runtime_error("the placement asks for other tests each time");
}

void test(const std::vector<AIRealPoint>& points) {
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
  sRealHitTest = sAIHitTest;
  CutOption option;
  option.action = Vandrell::Corvane::kAutoMarks;
  option.size = size;
  option.strokeWeight = 0;
  rememberTests(option);
  // Both begin with a document that has just changed, so both make their index.
  const double tests = median(7, [&] {
    document->editState();
    test(sTests.points);
  });
  const double placement = median(7, [&] {
    document->editState();
    place(option);
  });
  const double answered = median(7, [&] { placeWithAnswers(option); });
  char note[160];
  std::snprintf(note, sizeof note, "%zu tests %.1f ms, placement %.1f ms, placement without them %.2f ms",
                sTests.points.size(), tests * 1e3, placement * 1e3, answered * 1e3);
  const std::string figure =
      "10,000 shapes, marks of " + std::to_string(static_cast<int>(size)) + " pt: placement ";
  table.atMost(figure + "/ its tests", placement / tests, 2, note);
  table.atMost(figure + "with known answers / its tests", answered / tests, 0.1);
  HMX_AISuiteManager::Instance().Release();
}

double nobodysMessage(const std::string& bundle) {
  host::Host host;
  host::Session session(host);
  if (const std::string reason = session.loadPlugin(bundle); !reason.empty())
    throw std::runtime_error(reason);
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
  for ([[maybe_unused]] auto _ : state) {
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

int judge() {
  const auto folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
  bench::GoalTable table;
  benchPlacement(table, 2);
  benchPlacement(table, 17);
  table.atMost("a message that is nobody's, us", nobodysMessage((folder / "corvane.bundle").string()), 1);
  return table.print();
}

}  // namespace

int main(int argc, char** argv) {
  const ScratchFolder scratch;
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  setenv("CORVANE_SHARED_DATA", scratch.file("shared").c_str(), 1);
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  try {
    return judge() == 0 ? 0 : 1;
  } catch (const std::exception& problem) {
    std::fprintf(stderr, "bench-marks: %s\n", problem.what());
    return 1;
  }
}
