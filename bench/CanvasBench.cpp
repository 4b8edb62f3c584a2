// Moving about a large drawing in the window's view, against a QGraphicsView of the same paths.
#include <QApplication>
#include <QGraphicsPathItem>
#include <QGraphicsView>
#include <QScrollBar>
#include <QtTest/QTest>
#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <functional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "DrawingView.h"
#include "GoalTable.h"
#include "Host.h"
#include "OpenDrawing.h"
#include "SvgDrawing.h"
#include "ViewEvents.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kSegments = 100'000;
constexpr int kCurves = 10;  // of a shape
constexpr int kColumns = 100;
constexpr double kPage = 1000;       // mm
constexpr double kStep = 40;         // pixels a frame
constexpr double kZoomStep = 1.1;    // a frame
constexpr double kFrameGoal = 33.3;  // ms: 30 frames a second
constexpr int kPanFrames = 120;
constexpr int kZoomFrames = 25;

const QSize kWindow(1280, 800);

double millisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

void append(std::string& text, double value) {
  char buffer[32];
  text.append(buffer, std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, 3).ptr);
  text += ' ';
}

// Round shapes of curves in rows over the page, every other one filled.
std::string largeDrawing() {
  std::string svg =
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1000mm\" height=\"1000mm\" viewBox=\"0 0 1000 "
      "1000\">\n";
  const double pitch = kPage / kColumns;
  for (int shape = 0; shape < kSegments / kCurves; ++shape) {
    const int column = shape % kColumns, row = shape / kColumns;
    const double x = (column + 0.5) * pitch, y = (row + 0.5) * pitch;
    svg += shape % 2 == 0 ? "<path fill=\"none\" stroke=\"#e6007e\" stroke-width=\"0.4\" d=\"M "
                          : "<path fill=\"#3a7bd5\" d=\"M ";
    append(svg, x + 4), append(svg, y);
    for (int i = 1; i <= kCurves; ++i) {
      const double step = 2 * M_PI / kCurves, r = i == kCurves ? 4 : 3 + std::cos(shape + i * 2.0);
      svg += "C ";
      for (const double a : {(i - 0.66) * step, (i - 0.33) * step, i * step}) {
        append(svg, x + std::cos(a) * r), append(svg, y + std::sin(a) * r);
      }
    }
    svg += "Z\"/>\n";
  }
  return svg + "</svg>\n";
}

// Nobody is interested in what goes on in the view.
class NoEvents : public host::ViewEvents {
 public:
  void pointerMoved(host::DrawingView&, const host::PointerEvent&) override {}
  void pointerLeft(host::DrawingView&) override {}
  void pointerPressed(host::DrawingView&, const host::PointerEvent&) override {}
  void pointerDragged(host::DrawingView&, const host::PointerEvent&) override {}
  void pointerReleased(host::DrawingView&, const host::PointerEvent&) override {}
  void keyPressed(host::DrawingView&, QKeyEvent&) override {}
  void paintOver(host::DrawingView&, QPainter&) override {}
  void aboutToMove(host::DrawingView&) override {}
  void moved(host::DrawingView&) override {}
};

struct Mover {
  std::function<void(double dx, double dy)> pan;  // pixels
  std::function<void(double factor)> zoom;        // round the middle
  std::function<void()> repaint;                  // to the backing store, at once
};

struct Frames {
  double mean, late;  // ms; `late`: the 99th percentile
  double work;        // ms a frame that this thread was at work: the rest it waited for a processor
};

double millisecondsOfWork() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

Frames measure(const Mover& mover, int frames, const std::function<void(int)>& step) {
  std::vector<double> took;
  const double before = millisecondsOfWork();
  for (int i = 0; i < frames; ++i) {
    const Clock::time_point start = Clock::now();
    step(i);
    QCoreApplication::processEvents();  // what other threads have brought meanwhile
    mover.repaint();
    took.push_back(millisecondsSince(start));
  }
  const double work = (millisecondsOfWork() - before) / frames;
  std::sort(took.begin(), took.end());
  double sum = 0;
  for (const double time : took) sum += time;
  const auto last = static_cast<std::size_t>(std::ceil(static_cast<double>(frames) * 0.99)) - 1;
  return {sum / frames, took[last], work};
}

struct Figures {
  Frames zoomIn, pan, zoomOut;
};

// In from the whole drawing, along a square there, and out again.
Figures moveAbout(const Mover& mover) {
  Figures figures{};
  figures.zoomIn = measure(mover, kZoomFrames, [&](int) { mover.zoom(kZoomStep); });
  figures.pan = measure(mover, kPanFrames, [&](int i) {
    constexpr double kWays[][2] = {{kStep, 0}, {0, kStep}, {-kStep, 0}, {0, -kStep}};
    const auto& way = kWays[i * 4 / kPanFrames];
    mover.pan(way[0], way[1]);
  });
  figures.zoomOut = measure(mover, kZoomFrames, [&](int) { mover.zoom(1 / kZoomStep); });
  return figures;
}

double untilSharp(host::DrawingView& view) {
  const Clock::time_point start = Clock::now();
  view.waitUntilSharp(std::chrono::seconds(60));
  view.repaint();
  return millisecondsSince(start);
}

struct ViewFigures {
  double opened, changed;  // ms until the picture is sharp: after opening, after a change of the drawing
  Figures moves;
  double moved;
};

ViewFigures measureView(host::OpenDrawing& drawing) {
  NoEvents events;
  host::DrawingView view(drawing, events);
  view.resize(kWindow);
  const Clock::time_point start = Clock::now();
  view.show();
  view.waitUntilSharp(std::chrono::minutes(1));
  ViewFigures figures{millisecondsSince(start), 0, {}, 0};
  QTest::qWait(1500);  // a user looks at it first; meanwhile the overview is drawn
  const QPointF middle(view.width() / 2.0, view.height() / 2.0);
  figures.moves = moveAbout({[&](double dx, double dy) {
                               view.panBy({dx, dy});
                             },
                             [&](double factor) { view.zoomAround(middle, view.zoom() * factor); },
                             [&] { view.repaint(); }});
  figures.moved = untilSharp(view);
  host::Document& document = drawing.document();
  document.setName(
      document.art(document.state().layers.empty() ? 0 : document.layer(document.state().layers[0])->root)
          ->lastChild,
      "changed");
  figures.changed = untilSharp(view);
  return figures;
}

QPainterPath pathOf(const host::PathGeometry& geometry) {
  const auto point = [](const AIRealPoint& p) { return QPointF(p.x, -p.y); };
  const std::vector<AIPathSegment>& all = geometry.segments;
  QPainterPath path(point(all.front().p));
  for (std::size_t i = 1; i < all.size() + (geometry.closed ? 1 : 0); ++i) {
    const AIPathSegment& to = all[i % all.size()];
    path.cubicTo(point(all[i - 1].out), point(to.in), point(to.p));
  }
  return path;
}

int addPaths(QGraphicsScene& scene, const host::Document& document) {
  int segments = 0;
  for (host::ArtId id = 1; id <= document.artSlots(); ++id) {
    const host::Art* art = document.art(id);
    if (art == nullptr || art->type != kPathArt) continue;
    const AIPathStyle& style = *document.styleOf(id);
    const QPen pen(QColor(0xe6, 0x00, 0x7e), style.stroke.width);
    scene.addPath(pathOf(*art->path), style.strokePaint != 0 ? pen : QPen(Qt::NoPen),
                  style.fillPaint != 0 ? QBrush(QColor(0x3a, 0x7b, 0xd5)) : QBrush(Qt::NoBrush));
    segments += static_cast<int>(art->path->segments.size());
  }
  return segments;
}

Figures measurePeer(const host::Document& document, int& segments) {
  QGraphicsScene scene;
  segments = addPaths(scene, document);
  QGraphicsView view(&scene);
  view.setRenderHint(QPainter::Antialiasing);
  view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view.resize(kWindow);
  view.show();
  view.fitInView(scene.sceneRect(), Qt::KeepAspectRatio);
  QTest::qWait(100);
  const auto scroll = [](QScrollBar& bar, double by) { bar.setValue(bar.value() + static_cast<int>(by)); };
  return moveAbout({[&](double dx, double dy) {
                      scroll(*view.horizontalScrollBar(), dx);
                      scroll(*view.verticalScrollBar(), dy);
                    },
                    [&](double factor) { view.scale(factor, factor); }, [&] { view.viewport()->repaint(); }});
}

std::string beside(const Frames& own, const Frames& peer) {
  char text[120];
  std::snprintf(text, sizeof text, "at work %.1f; QGraphicsView: %.1f, 99 within %.1f, at work %.1f",
                own.work, peer.mean, peer.late, peer.work);
  return text;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  auto read = host::readSvg(largeDrawing(), nullptr);
  host::OpenDrawing drawing{std::move(std::get<host::SvgDrawing>(read)), nullptr, 0};
  host::Documents documents;
  drawing.shown = &documents.open(drawing.drawing.document, "large");

  const ViewFigures figures = measureView(drawing);
  int segments = 0;
  const Figures peer = measurePeer(drawing.document(), segments);
  std::printf("%d segments, %d by %d pixels\n", segments, kWindow.width(), kWindow.height());
  bench::GoalTable table;
  const auto rows = [&](const std::string& what, const Frames& own, const Frames& other) {
    table.atMost(what + ": mean of a frame, ms", own.mean, kFrameGoal, beside(own, other));
    table.atMost(what + ": 99 of 100 frames within, ms", own.late, kFrameGoal);
  };
  rows("zooming in", figures.moves.zoomIn, peer.zoomIn);
  rows("panning", figures.moves.pan, peer.pan);
  rows("zooming out", figures.moves.zoomOut, peer.zoomOut);
  table.atMost("sharp after opening, ms", figures.opened, 2000);
  table.atMost("sharp after moving, ms", figures.moved, 1000);
  table.atMost("sharp after a change, ms", figures.changed, 2000);
  return table.print() == 0 ? 0 : 1;
}
