#include "WindowWorld.h"

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest/QTest>
#include <algorithm>
#include <cstdlib>

#include "DialogTexts.h"
#include "OffscreenApplication.h"
#include "Theme.h"

namespace host {
namespace {

QAction* entryOf(const QWidget& menu, const std::string& text) {
  const QList<QAction*> all = menu.actions();
  const auto found =
      std::find_if(all.begin(), all.end(), [&](const QAction* a) { return shownText(a->text()) == text; });
  return found == all.end() ? nullptr : *found;
}

void waitUntilShown(QMenu& menu) {
  if (!QTest::qWaitFor([&] { return menu.isVisible(); })) ADD_FAILURE() << "a menu did not open";
}

std::string entriesOf(const QMenu& menu) {
  std::string text;
  for (const QAction* action : menu.actions()) {
    if (action->isSeparator() && action == menu.actions().front()) continue;
    if (!text.empty()) text += ", ";
    text += action->isSeparator() ? "---" : shownText(action->text());
    if (action->isChecked()) text += " [x]";
    if (!action->isEnabled() && !action->isSeparator()) text += " (off)";
    if (action->menu() != nullptr) text += " {" + entriesOf(*action->menu()) + "}";
  }
  return text;
}

}  // namespace

BoxAnswer::BoxAnswer(Qt::Key key) : BoxAnswer([key](QDialog& box) { QTest::keyClick(&box, key); }) {}

BoxAnswer::BoxAnswer(QMessageBox::StandardButton button)
    : BoxAnswer([button](QDialog& box) {
        QTest::mouseClick(qobject_cast<QMessageBox*>(&box)->button(button), Qt::LeftButton);
      }) {}

BoxAnswer::BoxAnswer(std::function<void(QDialog&)> answer) {
  QObject::connect(&timer_, &QTimer::timeout, [this, answer = std::move(answer)] { look(answer); });
  timer_.start(5);
}

void BoxAnswer::look(const std::function<void(QDialog&)>& answer) {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || !dialog->isVisible()) return;
  timer_.stop();
  seen_ = Seen{dialog->metaObject()->className(),
               dialog->windowTitle().toStdString(),
               textsOf(*dialog).toStdString(),
               QMessageBox::NoIcon,
               {},
               dialog->findChildren<QPushButton*>().size(),
               qobject_cast<QMainWindow*>(dialog->parentWidget()) != nullptr};
  if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
    seen_->text = box->text().toStdString();
    seen_->icon = box->icon();
  }
  for (const QPushButton* button : dialog->findChildren<QPushButton*>()) {
    if (button->isDefault()) seen_->defaultButton = shownText(button->text());
  }
  answer(*dialog);
}

void settle() {
  for (int pass = 0; pass < 3; ++pass) QTest::qWait(1);
}

std::string shownText(const QString& text) {
  QString plain;
  for (int i = 0; i < text.size(); ++i) {
    if (text[i] == '&' && i + 1 < text.size()) ++i;
    plain += text[i];
  }
  return plain.toStdString();
}

WindowWorld::WindowWorld(const std::vector<std::filesystem::path>& bundles, Folders folders,
                         std::int32_t autosaveSeconds)
    : host({}, std::move(folders)) {
  host.preferences().overlay("corvane-host", "AutosaveSeconds", autosaveSeconds);
  setenv("LANGUAGE", "C", 1);
  ensureApplication();
  setTheme(Theme::Light);
  window.emplace(host, session,
                 FileChooser{[this](QWidget*) { return filesToOpen; },
                             [this](QWidget*, const std::string& proposed) {
                               proposedFile = proposed;
                               return fileToSave;
                             },
                             [this](QWidget*, const std::string& proposed) {
                               proposedFile = proposed;
                               return fileToSave;
                             }});
  for (const std::filesystem::path& bundle : bundles) {
    const std::string complaint = session.loadPlugin(bundle);
    EXPECT_EQ(complaint, "");
  }
  session.start();
  window->refresh();
  window->show();
  activate();
}

std::string WindowWorld::textOf(const std::string& key) {
  for (const MenuItem& item : host.menus().items()) {
    if (item.key == key) return item.text;
  }
  ADD_FAILURE() << "no item " << key;
  return {};
}

void WindowWorld::choose(const std::vector<std::string>& path) {
  QMenuBar& bar = *window->menuBar();
  QMenu* menu = nullptr;
  for (const std::string& text : path) {
    QAction* entry = menu == nullptr ? entryOf(bar, text) : entryOf(*menu, text);
    ASSERT_NE(entry, nullptr) << text;
    QMenu* const inside = entry->menu();  // a command may end its own entry
    if (menu == nullptr) {
      QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(entry).center());
    } else {
      QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
    }
    menu = inside;
    if (menu != nullptr) waitUntilShown(*menu);
  }
  while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
}

QMenu& WindowWorld::menu(const std::vector<std::string>& path) {
  const QWidget* holder = window->menuBar();
  for (const std::string& text : path) {
    const QAction* entry = entryOf(*holder, text);
    if (entry == nullptr || entry->menu() == nullptr) throw std::runtime_error("no menu " + text);
    holder = entry->menu();
  }
  return *static_cast<QMenu*>(const_cast<QWidget*>(holder));
}

void WindowWorld::addMarks() {
  QTimer answering;
  QObject::connect(&answering, &QTimer::timeout, [] {
    if (QWidget* modal = QApplication::activeModalWidget()) QTest::keyClick(modal, Qt::Key_Return);
  });
  answering.start(5);
  choose({"Window", textOf("Vandrell"), textOf("corvane "), textOf(kMarksKey)});
}

void WindowWorld::activate() {
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&*window));
}

void WindowWorld::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  activate();
  QTest::keyClick(&*window, key, modifiers);
}

QWidget& WindowWorld::view() {
  return *window->findChild<QTabWidget*>()->currentWidget()->focusProxy();
}

void WindowWorld::movePointer(const QPoint& to, Qt::MouseButtons held, Qt::KeyboardModifiers modifiers) {
  QMouseEvent event(QEvent::MouseMove, to, Qt::NoButton, held, modifiers);
  QApplication::sendEvent(&view(), &event);
}

std::string WindowWorld::menuTree() {
  std::string text;
  for (const QAction* action : window->menuBar()->actions()) {
    if (!action->isVisible()) continue;
    text += shownText(action->text()) + ": " + entriesOf(*action->menu()) + "\n";
  }
  return text;
}

const std::string WindowTest::kPoster = std::string(CORVANE_EXAMPLES) + "/full-bleed-poster.svg";
const std::string WindowTest::kStickers = std::string(CORVANE_EXAMPLES) + "/sticker-sheet.svg";

WindowTest::WindowTest() = default;

}  // namespace host
