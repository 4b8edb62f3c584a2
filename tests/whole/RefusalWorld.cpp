#include "RefusalWorld.h"

#include <QApplication>
#include <QDockWidget>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QtTest/QTest>
#include <cstdlib>
#include <utility>

#include "HostObjects.h"
#include "HostWindow.h"

namespace host {
namespace {

QDockWidget* paletteOf(const QMainWindow& window) {
  return window.findChild<QDockWidget*>(kPaletteKey);
}

}  // namespace

RefusalWorld::RefusalWorld(const std::string& svg) : drawing(drawingOf(svg)) {
  setenv("CORVANE_SHARED_DATA", scratch.file("shared").c_str(), 1);
  setHostWindow(&window);
  window.show();
  QCoreApplication::instance()->installEventFilter(this);
}

RefusalWorld::~RefusalWorld() {
  setHostWindow(nullptr);
}

void RefusalWorld::writeCustomFile() const {
  scratch.write(kCustomFile, R"({"Version":1,"Groups":{"Custom":[{"name":"Mine","isCustomDataModel":true,)"
                             R"("customColor":{"kind":1,"flag":1,"rgb":[1,0,0.5]}}]}})");
}

std::string RefusalWorld::load() {
  std::string complaint = session.loadPlugin(corvaneBundle());
  session.start();
  tools.emplace(host, session);
  return complaint;
}

void RefusalWorld::open() {
  session.openDocument(drawing.document, "drawing", {});
}

void RefusalWorld::showPalette(bool show) {
  const QDockWidget* palette = paletteOf(window);
  if (palette != nullptr && palette->isHidden() == show) choose(kPaletteKey);
  settle();
}

QListWidget* RefusalWorld::paletteRows() {
  const QDockWidget* palette = paletteOf(window);
  return palette == nullptr ? nullptr : palette->findChild<QListWidget*>();
}

void RefusalWorld::clickRow(int row) {
  const QListWidget* rows = paletteRows();
  if (rows == nullptr || row >= rows->count()) return;
  QTest::mouseClick(rows->viewport(), Qt::LeftButton, {}, rows->visualItemRect(rows->item(row)).center());
}

void RefusalWorld::pressPaletteButton() {
  const QDockWidget* palette = paletteOf(window);
  if (palette == nullptr) return;
  for (QPushButton* button : palette->widget()->findChildren<QPushButton*>()) {
    if (!button->isHidden()) QTest::mouseClick(button, Qt::LeftButton);
  }
}

void RefusalWorld::select(const std::vector<std::string>& names) {
  Document& document = *drawing.document;
  document.deselectAll();
  for (const std::string& name : names) document.setSelected(artNamed(document, name), true);
}

void RefusalWorld::setOptions(std::int32_t shape, std::int32_t action, double size, double weight) {
  Preferences& preferences = host.preferences();
  preferences.put("Corvane", "Shape", shape + 1);
  preferences.put("Corvane", "Action", action + 1);
  preferences.put("Corvane", "Size", size);
  preferences.put("Corvane", "StrokeWeight", weight);
}

void RefusalWorld::settle() {
  QCoreApplication::processEvents();
  session.tellChanges();
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::vector<std::string> RefusalWorld::said() const {
  std::vector<std::string> texts;
  for (const Alert& alert : host.alerts()) texts.push_back(alert.text);
  return texts;
}

std::size_t RefusalWorld::ownedObjects() {
  const HostObjects& objects = host.objects();
  return objects.strings.size() + objects.filePaths.size() + objects.artboardLists.size() +
         objects.artboardProperties.size() + objects.cursorResources.size() + objects.dataFilters.size() +
         objects.drawers.size() + objects.flyoutMenus.size();
}

// The hands come before the answer that any dialog gets in the end.
bool RefusalWorld::eventFilter(QObject* watched, QEvent* event) {
  auto* dialog = qobject_cast<QDialog*>(watched);
  if (event->type() != QEvent::Show || dialog == nullptr || !dialog->isModal() || !hands) return false;
  QTimer::singleShot(0, dialog, [dialog, act = std::exchange(hands, nullptr)] { act(*dialog); });
  return false;
}

}  // namespace host
