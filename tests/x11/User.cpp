#include "User.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>

#include <xcb/xcb.h>
#include "WindowWorld.h"

namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::seconds kPatience(120);
constexpr std::chrono::milliseconds kGlance(10);
constexpr std::string_view kWithin = " / ";
constexpr char kMark[] = "_CORVANE_TEST_MARK";

class Marks;
Marks* theMarks = nullptr;  // while there is a user

// Counts the marks that have come through the connection of the window.
class Marks : public QAbstractNativeEventFilter {
 public:
  Marks() {
    window_.create();
    qApp->installNativeEventFilter(this);
    theMarks = this;
  }
  bool nativeEventFilter(const QByteArray&, void* message, long*) override {
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE) return false;
    if (reinterpret_cast<const xcb_client_message_event_t*>(event)->window != window_.winId()) return false;
    ++count_;
    return true;
  }
  ~Marks() override { theMarks = nullptr; }
  int count() const { return count_; }
  WId window() const { return window_.winId(); }

 private:
  QWindow window_;
  int count_ = 0;
};

// Gives the keyboard to dialogs that come up and back to what lies below them, as window managers do.
class FocusKeeper : public QObject {
 public:
  explicit FocusKeeper(QMainWindow& window) : window_(window) { qApp->installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool isShown = event->type() == QEvent::Show;
    if (!isShown && event->type() != QEvent::Hide) return false;
    auto* dialog = qobject_cast<QWidget*>(watched);
    if (dialog == nullptr || dialog->windowType() != Qt::Dialog) return false;
    QTimer::singleShot(0, this, [this] {
      QWidget* modal = QApplication::activeModalWidget();
      (modal == nullptr ? &window_ : modal)->activateWindow();
    });
    return false;
  }

 private:
  QMainWindow& window_;
};

// Dialogs that a failed story left open.
void closeAll() {
  if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
  if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) dialog->reject();
}

std::string spoken(const std::string& text) {
  return host::shownText(QString::fromStdString(text));
}

// Without a screen reader, lists never hear that rows they once named are gone.
void forgetRows(const QWidget& window) {
  for (QAbstractItemView* list : window.findChildren<QAbstractItemView*>()) {
    QAccessible::deleteAccessibleInterface(
        QAccessible::uniqueId(QAccessible::queryAccessibleInterface(list)));
  }
}

bool matches(const std::string& text, const std::string& wanted) {
  if (!wanted.empty() && wanted[0] == '~') return text.find(wanted.substr(1)) != std::string::npos;
  return text == wanted;
}

}  // namespace

User::User(QMainWindow& window) : window_(window), devices_(qgetenv("DISPLAY").toStdString()) {}

void User::run(const std::function<void()>& look) const {
  std::exception_ptr failure;
  QMetaObject::invokeMethod(
      qApp,
      [&] {
        try {
          look();
        } catch (...) {
          failure = std::current_exception();
        }
      },
      Qt::BlockingQueuedConnection);
  if (failure) std::rethrow_exception(failure);
}

void User::wait(const std::string& what, const std::function<bool()>& isSo) const {
  const Clock::time_point end = Clock::now() + kPatience;
  while (!see(isSo)) {
    if (Clock::now() > end)
      throw std::runtime_error("waited in vain for " + what + ", but there is\n" + texts());
    std::this_thread::sleep_for(kGlance);
  }
}

void User::waitForDialog(const std::string& title) const {
  wait("the dialog " + title, [&] {
    const QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr && modal->isVisible() && modal->isActiveWindow() &&
           modal->windowTitle().toStdString() == title;
  });
}

void User::waitForNoDialog() const {
  wait("the end of the dialog",
       [&] { return QApplication::activeModalWidget() == nullptr && window_.isActiveWindow(); });
}

void User::settle() const {
  const int before = see([] { return theMarks->count(); });
  devices_.sendMark(see([] { return theMarks->window(); }), kMark);
  wait("the window to listen", [&] { return theMarks->count() > before; });
  run([] {});  // what came with the mark has been delivered
}

// What can be used: a menu, or else a dialog, or else all windows.
QWidgetList User::front() const {
  if (QWidget* popup = QApplication::activePopupWidget()) return {popup};
  if (QWidget* modal = QApplication::activeModalWidget()) return {modal};
  QWidgetList windows{&window_};
  for (QWidget* other : QApplication::topLevelWidgets()) {
    const bool isTip = other->windowType() == Qt::ToolTip || other->windowType() == Qt::Popup;
    if (other != &window_ && other->isVisible() && !isTip) windows += other;
  }
  return windows;
}

std::vector<User::Item> User::items() const {
  std::vector<Item> found;
  const std::function<void(QAccessibleInterface*, const std::string&)> visit =
      [&](QAccessibleInterface* shown, const std::string& owners) {
        if (shown == nullptr || !shown->isValid() || shown->state().invisible) return;
        const std::string name = spoken(shown->text(QAccessible::Name).toStdString());
        found.push_back({shown->rect(), shown->role(), shown->state(), name,
                         shown->text(QAccessible::Value).toStdString(), owners});
        for (int i = 0; i < shown->childCount(); ++i) visit(shown->child(i), owners + name + "\n");
      };
  run([&] {
    for (QWidget* shown : front()) forgetRows(*shown);
    for (QWidget* shown : front()) visit(QAccessible::queryAccessibleInterface(shown), "\n");
  });
  return found;
}

std::optional<User::Item> User::item(const std::string& name) const {
  const std::size_t slash = name.rfind(kWithin);
  const std::string last = slash == std::string::npos ? name : name.substr(slash + kWithin.size());
  const std::string owner = slash == std::string::npos ? "\n" : "\n" + name.substr(0, slash) + "\n";
  const auto rank = [](const Item& shown) {
    return shown.role == QAccessible::StaticText ? 0 : shown.role == QAccessible::Button ? 2 : 1;
  };
  std::optional<Item> best;
  for (const Item& shown : items()) {
    if (!matches(shown.name, last) || !shown.place.isValid()) continue;
    if (shown.owners.find(owner) == std::string::npos) continue;
    if (!best || rank(shown) > rank(*best)) best = shown;
  }
  return best;
}

User::Item User::waitForItem(const std::string& name) const {
  const Clock::time_point end = Clock::now() + kPatience;
  QRect before;
  while (true) {
    const std::optional<Item> shown = item(name);
    if (shown && shown->place == before) return *shown;
    if (Clock::now() > end) throw std::runtime_error("there is no \"" + name + "\" among\n" + texts());
    before = shown ? shown->place : QRect();
    std::this_thread::sleep_for(kGlance);
  }
}

QRect User::find(const std::string& name) const {
  return waitForItem(name).place;
}
bool User::isThere(const std::string& name) const {
  return item(name).has_value();
}
bool User::isEnabled(const std::string& name) const {
  return !waitForItem(name).state.disabled;
}
bool User::isChecked(const std::string& name) const {
  return waitForItem(name).state.checked;
}
std::string User::valueOf(const std::string& name) const {
  return waitForItem(name).value;
}

std::string User::texts() const {
  std::string all;
  for (const Item& shown : items()) {
    if (shown.name.empty()) continue;
    all += (shown.state.focused ? "* " : "  ") + shown.name;
    all += (shown.value.empty() ? "" : " = " + shown.value) + "\n";
  }
  return all;
}

void User::moveTo(const QPoint& place) const {
  devices_.moveTo(place.x() - 1, place.y());
  devices_.moveTo(place.x(), place.y());
  settle();
}

void User::clickAt(const QPoint& place, std::string_view heldKey) const {
  moveTo(place);
  if (!heldKey.empty()) devices_.holdKey(heldKey, true);
  devices_.press(InputDevices::kLeft);
  devices_.release(InputDevices::kLeft);
  if (!heldKey.empty()) devices_.holdKey(heldKey, false);
  settle();
}

void User::doubleClick(const std::string& name) const {
  const QPoint place = find(name).center();
  moveTo(place);
  for (int i = 0; i < 2; ++i) {
    devices_.press(InputDevices::kLeft);
    devices_.release(InputDevices::kLeft);
  }
  settle();
}

void User::wheel(const QPoint& place, int steps, std::string_view heldKey) const {
  const InputDevices::Button button = steps > 0 ? InputDevices::kWheelUp : InputDevices::kWheelDown;
  moveTo(place);
  if (!heldKey.empty()) devices_.holdKey(heldKey, true);
  for (int i = 0; i < std::abs(steps); ++i) {
    devices_.press(button);
    devices_.release(button);
  }
  if (!heldKey.empty()) devices_.holdKey(heldKey, false);
  settle();
}

void User::press(std::string_view keys) const {
  devices_.pressKeys(keys);
  settle();
}

void User::type(std::string_view text) const {
  devices_.type(text);
  settle();
}

void User::fill(const std::string& field, std::string_view text) const {
  click(field);
  press("Ctrl+a");
  type(text);
  press("Tab");
}

void User::choose(const std::string& list, const std::string& entry) const {
  click(list);
  wait("the entries of " + list, [] { return QApplication::activePopupWidget() != nullptr; });
  click(entry);
  wait("the entries to go", [] { return QApplication::activePopupWidget() == nullptr; });
}

void User::chooseMenu(const std::vector<std::string>& path) const {
  const QWidget* menu = window_.menuBar();
  for (const std::string& text : path) {
    QRect place;
    const QWidget* next = nullptr;
    wait(text + " in a menu", [&] {
      for (QAction* action : menu->actions()) {
        if (host::shownText(action->text()) != text || !action->isEnabled() || !menu->isVisible()) continue;
        const auto* popup = qobject_cast<const QMenu*>(menu);
        place = popup != nullptr ? popup->actionGeometry(action) : window_.menuBar()->actionGeometry(action);
        place.moveTopLeft(menu->mapToGlobal(place.topLeft()));
        next = action->menu();
        return place.isValid();
      }
      return false;
    });
    clickAt(place.center());
    menu = next;
  }
}

void User::shoot(const std::string& name) const {
  const QString folder = qEnvironmentVariable("CORVANE_SHOTS");
  if (folder.isEmpty()) return;
  run([&] {
    QGuiApplication::primaryScreen()->grabWindow(0).save(folder + "/" + QString::fromStdString(name) +
                                                         ".png");
  });
}

void runUser(QMainWindow& window, const std::function<void(User&)>& story) {
  const Marks marks;
  const FocusKeeper keeper(window);
  QEventLoop loop;
  std::thread thread([&] {
    User user(window);
    try {
      story(user);
    } catch (const std::exception& failure) {
      user.shoot(std::string("failed-") + testing::UnitTest::GetInstance()->current_test_info()->name());
      ADD_FAILURE() << failure.what();
    }
    EXPECT_TRUE(user.see([] { return QApplication::activeModalWidget() == nullptr; })) << "a dialog is open";
    while (user.see([&] {
      closeAll();
      return QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr;
    })) {
      std::this_thread::sleep_for(kGlance);
    }
    user.see([&] { loop.quit(); });
  });
  loop.exec();
  thread.join();
}
