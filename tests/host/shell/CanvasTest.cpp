#include <QCursor>
#include <QGuiApplication>
#include <QImage>
#include <QScreen>
#include <QSemaphore>
#include <QThreadPool>
#include <QWheelEvent>
#include <QtTest/QTest>
#include <cmath>
#include <functional>

#include "CanvasFixture.h"
#include "CanvasPlace.h"

namespace host {
namespace {

constexpr char kHead[] = "<svg xmlns=\"http://www.w3.org/2000/svg\" ";

// Half red, with a gradient and a clip beside it.
std::string smallDrawing() {
  return kHead +
         std::string(
             "width=\"300pt\" height=\"200pt\" viewBox=\"0 0 300 200\"><defs><linearGradient id=\"g\">"
             "<stop stop-color=\"#00f\"/><stop offset=\"1\" stop-color=\"#0f0\"/></linearGradient>"
             "<clipPath id=\"c\"><circle cx=\"220\" cy=\"100\" r=\"60\"/></clipPath></defs>"
             "<rect id=\"red\" width=\"150\" height=\"200\" fill=\"#ff0000\"/>"
             "<rect x=\"160\" width=\"130\" height=\"200\" fill=\"url(#g)\" clip-path=\"url(#c)\"/></svg>");
}

// Takes long enough to draw that it is seen at work, and ends with a red square in the middle.
std::string slowDrawing() {
  std::string svg = kHead + std::string("width=\"600pt\" height=\"600pt\" viewBox=\"0 0 600 600\">");
  for (int i = 0; i < 2000; ++i) {
    const std::string x = std::to_string(i % 100 * 6), y = std::to_string(i / 100 * 6);
    svg += "<path opacity=\"0.5\" fill=\"#0000ff\" stroke=\"#000\" d=\"M" + x + "," + y +
           "c3,0 5,2 5,5s-2,3 -5,-1z\"/>\n";
  }
  return svg + "<rect x=\"200\" y=\"200\" width=\"200\" height=\"200\" fill=\"#ff0000\"/></svg>";
}

QImage drawnDirectly(const OpenDrawing& drawing, const CanvasPlace& place, const QSize& size) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  auto loaded = SvgPicture::load(pictureSource(drawing.drawing, writeSvg(drawing.drawing), {}));
  std::get<SvgPicture>(loaded).draw({image.bits(), image.width(), image.height(), image.bytesPerLine()},
                                    {place.x, place.y, place.width, place.height});
  return image;
}

TEST(Canvas, IsSharpWhateverItShows) {
  OpenCanvas canvas(smallDrawing());
  DrawingView& view = canvas.view();
  const std::function<void()> moves[] = {[] {},
                                         [&] {
                                           view.zoomAround({120.5, 80}, 7.3);
                                         },
                                         [&] {
                                           view.panBy({-33.7, 250.2});
                                         },
                                         [&] { view.zoomTo(0.21); },
                                         [&] { view.resize(500, 180); },
                                         [&] { view.fitArtboards(); }};
  for (const auto& move : moves) {
    SCOPED_TRACE(&move - moves);
    move();
    const QImage shown = view.grab().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    EXPECT_TRUE(view.isSharp());
    const CanvasPlace place(canvas.place(), unionOfArtboards(canvas.drawing.document()), view.size(), 1);
    const QImage direct = drawnDirectly(canvas.drawing, place, view.size());
    const QRect sheet = QRectF(place.x, place.y, place.width, place.height).toRect() & view.rect();
    ASSERT_FALSE(sheet.isEmpty());
    EXPECT_TRUE(shown.copy(sheet) == direct.copy(sheet));
  }
}

// What a user does, and where that which was in the middle of the view goes, in pixels.
class CanvasWay : public testing::Test {
 protected:
  void wheel(const QPointF& at, const QPoint& angle, Qt::KeyboardModifiers held) {
    QWheelEvent event(at, view().mapToGlobal(at.toPoint()), {}, angle, Qt::NoButton, held, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&view(), &event);
  }
  void mouse(QEvent::Type type, const QPoint& at, Qt::MouseButton button, Qt::MouseButtons held) {
    QMouseEvent event(type, at, view().mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(&view(), &event);
  }
  void drag(Qt::MouseButton button) {
    mouse(QEvent::MouseButtonPress, {100, 100}, button, button);
    mouse(QEvent::MouseMove, {130, 90}, Qt::NoButton, button);
    mouse(QEvent::MouseButtonRelease, {130, 90}, button, Qt::NoButton);
  }
  DrawingView& view() { return canvas.view(); }

  OpenCanvas canvas{smallDrawing()};
};

TEST_F(CanvasWay, WheelButtonsAndKeysTakeTheUserAbout) {
  const struct {
    const char* what;
    std::function<void()> act;
    QPointF way;
    const char* reported;
  } table[] = {
      {"wheel",
       [&] {
         wheel({50, 60}, {0, 120}, {});
       },
       {0, 60},
       "moved"},
      {"wheel with Shift",
       [&] {
         wheel({50, 60}, {0, -120}, Qt::ShiftModifier);
       },
       {-60, 0},
       "moved"},
      {"middle button", [&] { drag(Qt::MiddleButton); }, {30, -10}, ""},
      {"left button", [&] { drag(Qt::LeftButton); }, {0, 0}, "pressed dragged released"},
      {"right arrow", [&] { QTest::keyClick(&view(), Qt::Key_Right); }, {-20, 0}, ""},
      {"Shift and up", [&] { QTest::keyClick(&view(), Qt::Key_Up, Qt::ShiftModifier); }, {0, 100}, "key"},
      {"page down", [&] { QTest::keyClick(&view(), Qt::Key_PageDown); }, {0, -270}, ""},
      {"a tool's key", [&] { QTest::keyClick(&view(), Qt::Key_Escape); }, {0, 0}, "key"},
      {"Ctrl and left",
       [&] { QTest::keyClick(&view(), Qt::Key_Left, Qt::ControlModifier); },
       {0, 0},
       "key key"},
      {"tapped Space", [&] { QTest::keyClick(&view(), Qt::Key_Space); }, {0, 0}, "key"},
  };
  for (const auto& row : table) {
    SCOPED_TRACE(row.what);
    const AIRealPoint middle = canvas.place().toDocument({200, 150});
    canvas.events.take();
    row.act();
    const AIRealPoint now = canvas.place().toPixels(middle);
    EXPECT_NEAR(now.x - 200, row.way.x(), 1e-6);
    EXPECT_NEAR(now.y - 150, row.way.y(), 1e-6);
    EXPECT_EQ(canvas.events.take(), row.reported);
  }
  QTest::keyClick(&view(), Qt::Key_Home);
  EXPECT_NEAR(canvas.place().center().x, 150, 1e-6);
}

TEST_F(CanvasWay, SpaceMakesAHand) {
  const AIRealPoint middle = canvas.place().toDocument({200, 150});
  canvas.events.take();
  QTest::keyPress(&view(), Qt::Key_Space);
  EXPECT_EQ(view().cursor().shape(), Qt::OpenHandCursor);
  drag(Qt::LeftButton);
  EXPECT_NEAR(canvas.place().toPixels(middle).x, 230, 1e-6);
  EXPECT_EQ(view().cursor().shape(), Qt::OpenHandCursor);
  QTest::keyRelease(&view(), Qt::Key_Space);
  EXPECT_EQ(view().cursor().shape(), Qt::ArrowCursor);
  EXPECT_EQ(canvas.events.take(), "");
  drag(Qt::LeftButton);
  EXPECT_EQ(canvas.events.take(), "pressed dragged released");
}

TEST_F(CanvasWay, WhatIsUnderThePointerStaysThere) {
  const QPointF pointer(61, 207);
  const AIRealPoint under = canvas.place().toDocument({pointer.x(), pointer.y()});
  double last = canvas.place().zoom();
  for (const int notches : {1, 1, 1, -1, 2, -7}) {
    wheel(pointer, {0, 120 * notches}, Qt::ControlModifier);
    const AIRealPoint now = canvas.place().toPixels(under);
    EXPECT_NEAR(now.x, pointer.x(), 1e-6);
    EXPECT_NEAR(now.y, pointer.y(), 1e-6);
    EXPECT_NEAR(canvas.place().zoom() / last, std::pow(1.2, notches), 1e-6);
    last = canvas.place().zoom();
  }
  for (int i = 0; i < 100; ++i) wheel(pointer, {0, 120}, Qt::ControlModifier);
  EXPECT_EQ(canvas.place().zoom(), View::kMaxZoom);
  EXPECT_NEAR(canvas.place().toPixels(under).x, pointer.x(), 1e-3);
}

TEST(Canvas, TheScreenGetsSharpByItselfAfterAChange) {
  OpenCanvas canvas(slowDrawing(), {300, 300});
  DrawingView& view = canvas.view();
  const auto onScreen = [&] {
    const QWindow& window = *canvas.frame->windowHandle();
    const QImage pixel = window.screen()->grabWindow(window.winId(), 150, 150, 1, 1).toImage();
    return pixel.isNull() ? QColor() : pixel.pixelColor(0, 0);
  };
  const auto becomes = [&](const QColor& colour) {
    return QTest::qWaitFor([&] { return onScreen() == colour; }, 20000);
  };
  EXPECT_TRUE(becomes(Qt::red));
  EXPECT_TRUE(view.isSharp());
  Document& document = canvas.drawing.document();
  document.deleteArt(document.art(document.layer(document.state().layers[0])->root)->lastChild);
  EXPECT_FALSE(view.isSharp());
  const ArtId red = document.art(document.layer(document.state().layers[0])->root)->firstChild;
  document.deleteArt(red);
  view.refresh();
  EXPECT_TRUE(QTest::qWaitFor([&] { return onScreen() != QColor(Qt::red); }, 20000));
  EXPECT_TRUE(view.isSharp());
}

TEST(Canvas, ClosesWhileItIsDrawn) {
  QThreadPool& threads = *QThreadPool::globalInstance();
  const int usual = threads.maxThreadCount();
  for (const bool canBegin : {false, true}) {
    QSemaphore gate;
    if (!canBegin) {
      threads.setMaxThreadCount(1);
      threads.start([&gate] { gate.acquire(); });
    }
    OpenCanvas canvas(slowDrawing());
    QTest::qWait(20);
    canvas.frame.reset();  // would not come back if it waited for the drawing
    gate.release();
    threads.waitForDone();
    threads.setMaxThreadCount(usual);
    QCoreApplication::processEvents();
  }
}

}  // namespace
}  // namespace host
