#include "WindowStory.h"

#include <QApplication>
#include <QPixmap>
#include <QScreen>

#include "DrawingTabs.h"
#include "DrawingView.h"
#include "PreferredLanguages.h"
#include "QtLanguage.h"

namespace host {

WindowStory::~WindowStory() {
  preferSystemLanguages();
  speakPreferredLanguage(*qApp);
}

void WindowStory::open(const User& user, const std::string& file) {
  user.see([&] { world.filesToOpen = {file}; });
  user.press("Ctrl+o");
  user.wait("the drawing", [&] {
    const OpenDocument* current = world.host.documents().current();
    return current != nullptr && current->title == std::filesystem::path(file).filename();
  });
}

void WindowStory::save(const User& user) {
  user.press("Ctrl+s");
  user.wait("the drawing to be saved", [&] { return !window.isWindowModified(); });
}

QPoint WindowStory::placeOf(const User& user, const AIRealPoint& point) {
  return user.see([&] {
    const AIRealPoint pixel = world.host.documents().current()->view.toPixels(point);
    const DrawingTabs& tabs = *window.findChild<DrawingTabs*>();
    return tabs.viewAt(tabs.current()).mapToGlobal(QPointF(pixel.x, pixel.y).toPoint());
  });
}

QRgb WindowStory::colourOfPixel(const QPoint& place) {
  const QPixmap pixel = QGuiApplication::primaryScreen()->grabWindow(0, place.x(), place.y(), 1, 1);
  return pixel.toImage().pixel(0, 0);
}

QRgb WindowStory::colourAt(const User& user, const AIRealPoint& point) {
  const QPoint place = placeOf(user, point);
  return user.see([&] { return colourOfPixel(place); });
}

void WindowStory::waitForColour(const User& user, const AIRealPoint& point, QRgb colour) {
  const QPoint place = placeOf(user, point);
  user.wait("the colour " + QColor(colour).name().toStdString(),
            [&] { return colourOfPixel(place) == colour; });
}

std::vector<AIRealPoint> WindowStory::centresOn(const User& user, const std::string& layer) {
  return user.see([&] { return host::centresOn(world.document(), layer); });
}

void WindowStory::waitForArt(const User& user, const std::string& layer, std::size_t count) {
  user.wait(std::to_string(count) + " pieces of art on " + layer,
            [&] { return artOn(world.document(), layer).size() == count; });
}

std::vector<std::string> WindowStory::layers(const User& user) {
  return user.see([&] {
    std::vector<std::string> titles;
    for (const LayerId id : world.document().state().layers) {
      titles.push_back(world.document().layer(id)->title);
    }
    return titles;
  });
}

std::vector<std::string> WindowStory::productMenu(const User& user, const std::string& key) {
  return user.see([&] {
    return std::vector<std::string>{"Window", world.textOf("Vandrell"), world.textOf("corvane "),
                                    world.textOf(key)};
  });
}

}  // namespace host
