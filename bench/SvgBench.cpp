// Opening and saving large drawings, against reading and writing the same bytes and against a bare parse.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
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
using Clock = std::chrono::steady_clock;

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

struct Figures {
  double bytesAlone, openAndSave, parseAlone;
};

Figures measure(std::size_t megabytes, const std::string& folder, double* memory) {
  const std::string from = folder + "/in.svg", to = folder + "/out.svg";
  { std::ofstream(from, std::ios::binary) << drawingOfSize(megabytes * 1000000); }
  if (memory != nullptr) *memory = peakMemory(from, to) / static_cast<double>(megabytes * 1000000);
  Figures figures{};
  figures.bytesAlone = median(5, [&] { host::replaceFile(to, readBytes(from)); });
  figures.openAndSave = median(5, [&] { openAndSave(from, to); });
  figures.parseAlone = median(5, [&] { host::SvgSource::parse(readBytes(from)); });
  return figures;
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
  // In a process that has not grown yet, so that the peak is that of the drawing.
  const ScratchFolder scratch;
  const std::string folder = scratch.path.string();
  double memory = 0;
  const Figures large = measure(50, folder, &memory);
  const Figures small = measure(10, folder, nullptr);
  benchmark::RunSpecifiedBenchmarks();

  bench::GoalTable table;
  table.atMost("50 MB: open and save beyond reading and writing the bytes, s",
               large.openAndSave - large.bytesAlone, 1,
               "bytes alone " + std::to_string(large.bytesAlone) + " s");
  table.atMost("50 MB: open and save / parse into elements alone", large.openAndSave / large.parseAlone, 10);
  table.atMost("50 MB / 10 MB: time per byte", large.openAndSave / small.openAndSave / 5, 1.3, "linear");
  table.atMost("50 MB: peak memory / size of the file", memory, 8);
  return table.print() == 0 ? 0 : 1;
}
