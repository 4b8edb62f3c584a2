// Export of large drawings for the cutting table, against what librsvg and cairo make of them, which has
// neither layers nor spot colours.
#include <benchmark/benchmark.h>
#include <cairo-pdf.h>

#include <cmath>
#include <string>
#include <variant>

#include "GoalTable.h"
#include "Median.h"
#include "PdfExport.h"
#include "PdfProof.h"
#include "RsvgLoading.h"
#include "SvgNumber.h"

namespace {

using bench::median;

constexpr int kCurvesOfShape = 12;

// A closed shape of twelve curves, none quite like another.
std::string shapeData(int number) {
  const double x = number % 100 * 10.0 + 5, y = number / 100 % 100 * 10.0 + 5;
  const auto point = [&](double angle, int i) {
    const double radius = 3 + 0.6 * std::sin(number + i * 2.0);
    return " " + host::numberText(x + std::cos(angle) * radius) + "," +
           host::numberText(y + std::sin(angle) * radius);
  };
  std::string data = "M" + point(0, 0);
  for (int i = 1; i <= kCurvesOfShape; ++i) {
    const double angle = i * M_PI / 6;
    data +=
        " C" + point(angle - 0.35, i) + point(angle - 0.17, i) + point(angle, i == kCurvesOfShape ? 0 : i);
  }
  return data + " Z";
}

// Stickers, each printed and with its contour in a spot colour on a layer of its own.
std::string stickers(int segments) {
  std::string print, cut;
  for (int shape = 0; shape < segments / kCurvesOfShape / 2; ++shape) {
    const std::string data = shapeData(shape);
    print += "<path fill=\"#2a7fb8\" d=\"" + data + "\"/>\n";
    cut += "<path ch:stroke=\"custom('Cut' 0)\" ch:stroke-overprint=\"true\" d=\"" + data + "\"/>\n";
  }
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:ch=\"urn:x-corvane-host:drawing:1\" "
         "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\" width=\"1000pt\" height=\"1000pt\" "
         "viewBox=\"0 0 1000 1000\"><metadata><ch:swatches><ch:color name=\"Cut\" definition=\"rgb(1 0 0)\" "
         "spot=\"true\"/></ch:swatches></metadata><g inkscape:groupmode=\"layer\" inkscape:label=\"Print\">" +
         print +
         "</g><g inkscape:groupmode=\"layer\" inkscape:label=\"Cut\" fill=\"none\" "
         "stroke=\"#ff0000\">" +
         cut + "</g></svg>";
}

std::size_t drawnBy(const std::string& svg) {
  std::string reason;
  const host::RsvgPointer handle = host::loadRsvg(svg, {}, reason);
  std::size_t bytes = 0;
  const auto count = [](void* closure, const unsigned char*, unsigned int length) {
    *static_cast<std::size_t*>(closure) += length;
    return CAIRO_STATUS_SUCCESS;
  };
  const host::SurfacePointer surface(cairo_pdf_surface_create_for_stream(count, &bytes, 1000, 1000));
  const host::ContextPointer context(cairo_create(surface.get()));
  const RsvgRectangle page{0, 0, 1000, 1000};
  if (!rsvg_handle_render_document(handle.get(), context.get(), &page, nullptr)) return 0;
  cairo_surface_finish(surface.get());
  return bytes;
}

struct Figures {
  double whole, reading, proof, peer;
};

Figures measure(int segments) {
  const std::string svg = stickers(segments);
  const auto read = host::readSvg(svg, nullptr);
  const auto& drawing = std::get<host::SvgDrawing>(read);
  const auto file = host::exportPdf(svg, nullptr, {});
  const std::string& bytes = std::get<host::PdfFile>(file).bytes;
  Figures figures{};
  figures.whole = median(5, [&] { host::exportPdf(svg, nullptr, {}); });
  figures.reading = median(5, [&] { host::readSvg(svg, nullptr); });
  figures.proof = median(5, [&] { host::proofOf(bytes, drawing, {}); });
  figures.peer = median(5, [&] { drawnBy(svg); });
  return figures;
}

void BM_ExportSmallDrawing(benchmark::State& state) {
  const std::string svg = stickers(1200);
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(host::exportPdf(svg, nullptr, {}));
}
BENCHMARK(BM_ExportSmallDrawing);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  const Figures large = measure(100000), small = measure(10000);
  const double writing = large.whole - large.reading - large.proof;

  bench::GoalTable table;
  table.atMost("100,000 segments: export with its proof, s", large.whole, 1,
               "reading the drawing " + std::to_string(large.reading) + " s");
  table.atMost("100,000 / 10,000 segments: time per segment", large.whole / small.whole / 10, 1.3, "linear");
  table.atMost("100,000 segments: proof / writing", large.proof / writing, 1,
               "writing " + std::to_string(writing) + " s");
  table.atMost("100,000 segments: export / librsvg and cairo", large.whole / large.peer, 1,
               "theirs " + std::to_string(large.peer) + " s, without layers and spot colours");
  return table.print() == 0 ? 0 : 1;
}
