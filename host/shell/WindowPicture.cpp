#include "WindowPicture.h"

#include <QApplication>
#include <QDialog>
#include <QPainter>
#include <QWidget>
#include <QWindow>
#include <algorithm>

namespace host {
namespace {

constexpr int kStep = 20;                    // ms
constexpr int kQuietSteps = 5;               // with everything on the screen
constexpr int kMillisecondsToAppear = 5000;  // and then as it is
constexpr int kMostCancels = 20;

int depth(const QWidget* widget) {
  int parents = 0;
  while ((widget = widget->parentWidget()) != nullptr) ++parents;
  return parents;
}

// What is on the screen, the window first and everything else in front of what it belongs to.
QList<QWidget*> shownWindows(QWidget& window) {
  QList<QWidget*> shown;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget != &window && widget->isVisible() && widget->windowType() != Qt::ToolTip) shown += widget;
  }
  std::stable_sort(shown.begin(), shown.end(), [](const QWidget* a, const QWidget* b) {
    if (a->isModal() != b->isModal()) return b->isModal();
    return depth(a) < depth(b);
  });
  shown.prepend(&window);
  return shown;
}

QImage pictureOf(QWidget& window) {
  const QList<QWidget*> shown = shownWindows(window);
  QRect room;
  for (const QWidget* widget : shown) room |= widget->geometry();
  const double ratio = window.devicePixelRatioF();
  QImage image((QSizeF(room.size()) * ratio).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  image.fill(window.palette().color(QPalette::Shadow));
  QPainter painter(&image);
  for (QWidget* widget : shown) {
    const QRect place = widget->geometry().translated(-room.topLeft());
    painter.drawPixmap(place.topLeft(), widget->grab());
    if (widget == &window) continue;
    painter.setPen(widget->palette().color(QPalette::Shadow));
    painter.drawRect(place.adjusted(-1, -1, 0, 0));  // what the frame of the screen would do
  }
  painter.end();
  image.setDevicePixelRatio(1);
  return image;
}

}  // namespace

WindowPicture::WindowPicture(QWidget& window) : window_(window) {
  connect(&timer_, &QTimer::timeout, this, [this] { step(); });
  sinceStart_.start();
  timer_.start(kStep);
}

bool WindowPicture::isShown() {
  const QList<QWidget*> shown = shownWindows(window_);
  return std::all_of(shown.begin(), shown.end(), [](const QWidget* widget) {
    return widget->windowHandle() != nullptr && widget->windowHandle()->isExposed();
  });
}

void WindowPicture::step() {
  if (image_.isNull()) {
    quietSteps_ = isShown() ? quietSteps_ + 1 : 0;
    if (quietSteps_ < kQuietSteps && sinceStart_.elapsed() < kMillisecondsToAppear) return;
    image_ = pictureOf(window_);
  }
  if (QApplication::activeModalWidget() != nullptr && cancels_++ < kMostCancels) {
    cancelDialog();
  } else {
    QCoreApplication::quit();
  }
}

void WindowPicture::cancelDialog() {
  QWidget* const modal = QApplication::activeModalWidget();
  if (auto* const dialog = qobject_cast<QDialog*>(modal)) {
    dialog->reject();
  } else {
    modal->close();
  }
}

}  // namespace host
