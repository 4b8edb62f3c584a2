// The search for what may go wrong on the table, in drawings that are hard on it.
#include <benchmark/benchmark.h>

#include <cmath>
#include <functional>
#include <string>
#include <variant>

#include "GoalTable.h"
#include "Median.h"
#include "Preflight.h"
#include "SvgDrawing.h"
#include "SvgNumber.h"

namespace {

using bench::median;
using PathData = std::function<std::string(int number, int count)>;

constexpr double kSide = 2000;  // millimetres, of the sheet
constexpr int kCurvesOfShape = 10;

std::string pointText(double x, double y) {
  return " " + host::numberText(x) + "," + host::numberText(y);
}

std::string lineText(double x, double y, double toX, double toY) {
  return "M" + pointText(x, y) + " L" + pointText(toX, toY);
}

std::string identicalLine(int, int) {
  return lineText(100, 100, 110, 103);
}

// All through one point.
std::string rayOfStar(int number, int count) {
  const double angle = M_PI * number / count, x = std::cos(angle) * 10, y = std::sin(angle) * 10;
  return lineText(1000 - x, 1000 - y, 1000 + x, 1000 + y);
}

// Nearer to each other than paper is thick, and not one over another.
std::string lineOfHatch(int number, int count) {
  const double x = 10 + number * 0.15 * 10000 / count;
  return lineText(x, 10, x, 110);
}

// Apart from the others.
std::string curvedShape(int number, int) {
  const double x = number % 100 * 19.0 + 20, y = number / 100 % 100 * 19.0 + 20;
  const auto point = [&](double angle, int i) {
    const double radius = 6 + std::sin(number + i * 2.0);
    return pointText(x + std::cos(angle) * radius, y + std::sin(angle) * radius);
  };
  const double step = 2 * M_PI / kCurvesOfShape;
  std::string data = "M" + point(0, 0);
  for (int i = 1; i <= kCurvesOfShape; ++i) {
    data += " C" + point((i - 0.66) * step, i) + point((i - 0.33) * step, i) +
            point(i * step, i == kCurvesOfShape ? 0 : i);
  }
  return data + " Z";
}

host::SvgDrawing drawingOf(const PathData& data, int count) {
  const std::string side = host::numberText(kSide);
  std::string svg =
      "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:ch=\"urn:x-corvane-host:drawing:1\" "
      "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\" width=\"" +
      side + "mm\" height=\"" + side + "mm\" viewBox=\"0 0 " + side + " " + side +
      "\"><metadata><ch:swatches><ch:color name=\"Cut\" definition=\"rgb(1 0 0)\" spot=\"true\"/>"
      "</ch:swatches></metadata><g inkscape:groupmode=\"layer\" inkscape:label=\"Cut\" fill=\"none\">";
  for (int i = 0; i < count; ++i) {
    svg += "<path stroke=\"#ff0000\" ch:stroke=\"custom('Cut' 0)\" d=\"" + data(i, count) + "\"/>\n";
  }
  return std::get<host::SvgDrawing>(host::readSvg(svg + "</g></svg>", nullptr));
}

double timeOf(const PathData& data, int count) {
  const host::SvgDrawing drawing = drawingOf(data, count);
  return median(3, [&] { benchmark::DoNotOptimize(host::preflight(*drawing.document)); });
}

void BM_SmallDrawing(benchmark::State& state) {
  const host::SvgDrawing drawing = drawingOf(curvedShape, 100);
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(host::preflight(*drawing.document));
}
BENCHMARK(BM_SmallDrawing);

struct Case {
  const char* name;
  PathData data;
  int count;  // of paths
  double goal;
};

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  bench::GoalTable table;
  for (const Case& row : {Case{"100,000 identical lines", identicalLine, 100000, 1},
                          Case{"a star of 100,000 lines", rayOfStar, 100000, 1},
                          Case{"100,000 curves", curvedShape, 100000 / kCurvesOfShape, 1},
                          Case{"a hatch of 10,000 lines, 1 km", lineOfHatch, 10000, 2}}) {
    const double large = timeOf(row.data, row.count), small = timeOf(row.data, row.count / 10);
    table.atMost(std::string(row.name) + ": preflight, s", large, row.goal);
    table.atMost(std::string(row.name) + ": ten times as many, times as long per segment", large / small / 10,
                 1.3, "linear; a tenth takes " + std::to_string(small) + " s");
  }
  return table.print() == 0 ? 0 : 1;
}
