// Opening and saving large drawings, against reading and writing the same bytes and against a bare parse.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "AtomicFile.h"
#include "GoalTable.h"
#include "Median.h"
#include "ScratchFolder.h"
#include "SvgDrawing.h"

namespace {

using bench::median;
using bench::medianRatio;
using bench::seconds;

constexpr int kRounds = 5;

// Closed shapes of twelve cubics each, as drawing programs write them, until the text is long enough.
std::string drawingOfSize(std::size_t bytes) {
  std::string svg =
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1000mm\" height=\"1000mm\" viewBox=\"0 0 1000 "
      "1000\">\n";
  svg.reserve(bytes + 2000);
  char piece[160];
  for (int shape = 0; svg.size() < bytes; ++shape) {
    const double x = shape % 331 * 3.0, y = shape / 331 % 331 * 3.0;
    svg += "  <path style=\"fill:none;stroke:#e6007e;stroke-width:0.25\" d=\"";
    std::snprintf(piece, sizeof piece, "M %.3f,%.3f", x + 2.0, y + 1.0);
    svg += piece;
    for (int i = 1; i <= 12; ++i) {
      const double a = i * M_PI / 6, r = 1.0 + 0.2 * std::sin(shape + i * 2.0);
      std::snprintf(piece, sizeof piece, " C %.3f,%.3f %.3f,%.3f %.3f,%.3f", x + 1 + std::cos(a - 0.35) * r,
                    y + 1 + std::sin(a - 0.35) * r, x + 1 + std::cos(a - 0.17) * r,
                    y + 1 + std::sin(a - 0.17) * r, x + 1 + std::cos(a) * r, y + 1 + std::sin(a) * r);
      svg += piece;
    }
    svg += " Z\"/>\n";
  }
  return svg + "</svg>\n";
}

std::string readBytes(const std::string& file) {
  std::string bytes(std::filesystem::file_size(file), '\0');
  std::ifstream(file, std::ios::binary).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

void openAndSave(const std::string& from, const std::string& to) {
  auto read = host::readSvg(readBytes(from), nullptr);
  const auto& drawing = std::get<host::SvgDrawing>(read);
  host::replaceFile(to, host::writeSvg(drawing));
}

// Peak memory of opening and saving in a process of its own, in bytes.
double peakMemory(const std::string& from, const std::string& to) {
  const pid_t child = fork();
  if (child == 0) {
    openAndSave(from, to);
    _exit(0);
  }
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  return static_cast<double>(usage.ru_maxrss) * 1024;
}

// A drawing with the seconds that each round took for it.
struct Drawing {
  double megabytes;
  std::string file;
  std::vector<double> bytesAlone, openAndSave, parseAlone;
};

Drawing drawing(std::size_t megabytes, const std::string& folder) {
  Drawing made{static_cast<double>(megabytes), folder + "/" + std::to_string(megabytes) + ".svg", {}, {}, {}};
  std::ofstream(made.file, std::ios::binary) << drawingOfSize(megabytes * 1000000);
  return made;
}

void measure(Drawing& drawing, const std::string& to) {
  const std::string& from = drawing.file;
  drawing.bytesAlone.push_back(seconds([&] { host::replaceFile(to, readBytes(from)); }));
  drawing.openAndSave.push_back(seconds([&] { openAndSave(from, to); }));
  drawing.parseAlone.push_back(seconds([&] { host::SvgSource::parse(readBytes(from)); }));
}

void BM_OpenSmallDrawing(benchmark::State& state) {
  const std::string svg = drawingOfSize(100000);
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(host::readSvg(svg, nullptr));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(svg.size()));
}
BENCHMARK(BM_OpenSmallDrawing);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const ScratchFolder scratch;
  const std::string folder = scratch.path.string(), saved = folder + "/saved.svg";
  Drawing large = drawing(50, folder), small = drawing(10, folder);
  // In a process that has not grown yet, so that the peak is that of the drawing.
  const double memory = peakMemory(large.file, saved) / (large.megabytes * 1e6);
  for (int round = 0; round < kRounds; ++round) {
    for (Drawing* const each : {&large, &small}) measure(*each, saved);
  }
  benchmark::RunSpecifiedBenchmarks();

  bench::GoalTable table;
  const double bytesAlone = median(large.bytesAlone);
  table.atMost("50 MB: open and save beyond reading and writing the bytes, s",
               median(large.openAndSave) - bytesAlone, 1, "bytes alone " + std::to_string(bytesAlone) + " s");
  table.atMost("50 MB: open and save / parse into elements alone",
               medianRatio(large.openAndSave, large.parseAlone), 10);
  table.atMost("50 MB / 10 MB: time per byte",
               medianRatio(large.openAndSave, small.openAndSave) * small.megabytes / large.megabytes, 1.3,
               "linear");
  table.atMost("50 MB: peak memory / size of the file", memory, 8);
  return table.print() == 0 ? 0 : 1;
}
