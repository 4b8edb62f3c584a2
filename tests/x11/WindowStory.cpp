#include "WindowStory.h"

#include <QAction>
#include <QApplication>
#include <QPixmap>
#include <QScreen>

#include "Bounds.h"
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

std::vector<AIRealPoint> WindowStory::centres(const std::string& layer) {
  std::vector<AIRealPoint> found;
  const Document& document = world.document();
  for (const LayerId id : document.state().layers) {
    if (document.layer(id)->title != layer) continue;
    ArtId art = document.art(document.layer(id)->root)->lastChild;
    for (; art != 0; art = document.art(art)->above) {
      const AIRealRect box = artBounds(document, art, nullptr, 0);
      found.push_back({(box.left + box.right) / 2, (box.bottom + box.top) / 2});
    }
  }
  return found;
}

std::vector<AIRealPoint> WindowStory::centresOn(const User& user, const std::string& layer) {
  return user.see([&] { return centres(layer); });
}

void WindowStory::waitForArt(const User& user, const std::string& layer, std::size_t count) {
  user.wait(std::to_string(count) + " pieces of art on " + layer,
            [&] { return centres(layer).size() == count; });
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

void WindowStory::answerMessage(const User& user, const std::string& text) {
  user.wait("a message", [] {
    const QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr && modal->isActiveWindow();
  });
  EXPECT_TRUE(user.isThere(text)) << user.texts();
  user.shoot("message");
  user.press("Return");
}

void WindowStory::trigger(const User& user, const std::string& entry) {
  user.see([&] {
    for (QAction* action : window.findChildren<QAction*>()) {
      if (shownText(action->text()) == entry) return action->trigger();
    }
    throw std::runtime_error("no entry " + entry);
  });
}

std::vector<std::string> WindowStory::productMenu(const User& user, const std::string& key) {
  return user.see([&] {
    return std::vector<std::string>{"Window", world.textOf("Vandrell"), world.textOf("corvane "),
                                    world.textOf(key)};
  });
}

}  // namespace host
