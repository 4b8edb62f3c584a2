// Writing and reading dimensions through the host's suites, with the host's own part counted apart.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "AIUser.h"
#include "BenchPlugin.h"
#include "DecimalText.h"
#include "EvaluateExpression.h"
#include "FormatDimension.h"
#include "GoalTable.h"
#include "Host.h"
#include "Median.h"
#include "ParseDimension.h"
#include "SPBasic.h"

namespace {

using qRVADM::ADMUnits;
using qRVADM::Dimension;

constexpr ADMUnits kUnits[] = {qRVADM::kMillimeterUnits, qRVADM::kPointUnits, qRVADM::kInchUnits,
                               qRVADM::kPicaUnits};
constexpr int kCount = 4000;
constexpr int kRuns = 51;

struct Sample {
  Dimension dimension;
  QString text;
  std::string utf8;
};

std::vector<Sample> samples() {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> values(-1000, 1000);
  std::vector<Sample> made;
  for (int i = 0; i < kCount; ++i) {
    const Dimension dimension{values(random), kUnits[i % 4]};
    const QString text = qRVADM::FormatDimension(dimension, -1);
    const Dimension read = qRVADM::ParseDimension(text, dimension.unit, 0);
    if (read.unit != dimension.unit) throw std::runtime_error("not read back: " + text.toStdString());
    made.push_back({dimension, text, text.toStdString()});
  }
  return made;
}

// Microseconds for one of the samples.
template <typename Work>
double each(const std::vector<Sample>& all, const Work& work) {
  const auto round = [&] {
    for (const Sample& one : all) work(one);
  };
  return bench::median(kRuns, round) * 1e6 / kCount;
}

int judge() {
  const std::vector<Sample> all = samples();
  const double format = each(
      all, [](const Sample& one) { benchmark::DoNotOptimize(qRVADM::FormatDimension(one.dimension, -1)); });
  const double parse = each(all, [](const Sample& one) {
    benchmark::DoNotOptimize(qRVADM::ParseDimension(one.text, one.dimension.unit, 0));
  });
  const double write = each(all, [](const Sample& one) {
    benchmark::DoNotOptimize(host::decimalText(one.dimension.value, 3, true));
  });
  const double evaluate = each(all, [](const Sample& one) {
    benchmark::DoNotOptimize(host::evaluateExpression(one.utf8, host::unitOfField(one.dimension.unit), 0));
  });
  std::printf("the host's part, us: number to text %.3f, evaluator %.3f\n\n", write, evaluate);
  bench::GoalTable table;
  table.atMost("writing a dimension, us", format, 2, "all of it; picas call the host twice");
  table.atMost("reading a dimension without the evaluator, us", parse - evaluate, 2);
  table.atMost("the host's evaluator, us", evaluate, 2, "of texts as they are written");
  return table.print();
}

}  // namespace

int main() {
  try {
    host::Host host;
    const bench::BenchPlugin plugin(host, "/", {kAIUserSuite});
    return judge() == 0 ? 0 : 1;
  } catch (const std::exception& problem) {
    std::fprintf(stderr, "bench-numbers: %s\n", problem.what());
    return 1;
  }
}
