#include "WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include "WindowSettings.h"

namespace host {
namespace {

// In pixels of the interface.
constexpr QSize kUsual(1100, 720);
constexpr QSize kSmallestScreen(1024, 720);  // on one that is smaller still the window is not squeezed

// Null if it is on none.
const QScreen* screenOf(const QRect& place) {
  for (const QScreen* screen : QGuiApplication::screens()) {
    if (screen->availableGeometry().contains(place.center())) return screen;
  }
  return nullptr;
}

}  // namespace

void takePlace(QWidget& window, const WindowSettings& settings) {
  const auto place = settings.place();
  const QScreen* known = place ? screenOf(*place) : nullptr;
  const QScreen* screen = known != nullptr ? known : QGuiApplication::primaryScreen();
  const QSize room = screen == nullptr ? kUsual : screen->availableGeometry().size();
  window.resize((place ? place->size() : kUsual).boundedTo(room.expandedTo(kSmallestScreen)));
  if (known != nullptr) window.move(place->topLeft());
  if (settings.isMaximized()) window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

void rememberPlace(const QWidget& window, WindowSettings& settings) {
  const bool isMaximized = window.isMaximized();
  settings.setMaximized(isMaximized);
  const QRect normal = isMaximized ? window.normalGeometry() : QRect(window.pos(), window.size());
  if (normal.isValid()) settings.setPlace(normal);
}

}  // namespace host
