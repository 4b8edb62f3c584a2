// Somebody at the window: a thread of its own that looks at the screen and uses mouse and keyboard.
#pragma once

#include <QAccessible>
#include <QCoreApplication>
#include <QMainWindow>
#include <QPoint>
#include <QRect>
#include <exception>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "InputDevices.h"

// All calls but runUser() are for the user's thread. What does not come about in time throws
// std::runtime_error, which says what stands on the screen instead.
class User {
 public:
  explicit User(QMainWindow& window);

  // The result of `look`, which runs in the thread of the window, within whatever dialog is up.
  template <typename Look>
  auto see(Look look) const -> std::invoke_result_t<Look>;
  // Until it is so.
  void wait(const std::string& what, const std::function<bool()>& isSo) const;
  void waitForDialog(const std::string& title) const;
  void waitForNoDialog() const;
  // Everything done so far has reached the window.
  void settle() const;

  // What has the accessible name `name` in the menu, the dialog or the window that is in front; its place on
  // the screen once it rests there. A button goes before a field, and that before a label. A name that begins
  // with "~" may stand anywhere in the text; "Layers / Cut" is the "Cut" within "Layers".
  QRect find(const std::string& name) const;
  bool isThere(const std::string& name) const;
  bool isEnabled(const std::string& name) const;
  bool isChecked(const std::string& name) const;
  std::string valueOf(const std::string& name) const;
  // All names in what is in front, a line each; "*" has the keyboard.
  std::string texts() const;

  void click(const std::string& name, std::string_view heldKey = {}) const {
    clickAt(find(name).center(), heldKey);
  }
  void doubleClick(const std::string& name) const;
  void clickAt(const QPoint& place, std::string_view heldKey = {}) const;
  void moveTo(const QPoint& place) const;
  void wheel(const QPoint& place, int steps, std::string_view heldKey = {}) const;  // up is positive
  void press(std::string_view keys) const;
  void type(std::string_view text) const;
  // Replaces what the field holds and leaves it by Tab.
  void fill(const std::string& field, std::string_view text) const;
  void choose(const std::string& list, const std::string& entry) const;  // in a drop-down list
  void chooseMenu(const std::vector<std::string>& path) const;

  // The whole screen, under that name, if somebody wants pictures.
  void shoot(const std::string& name) const;

 private:
  struct Item {
    QRect place;
    QAccessible::Role role;
    QAccessible::State state;
    std::string name;
    std::string value;
    std::string owners;  // their names, in lines
  };
  QWidgetList front() const;
  std::vector<Item> items() const;
  std::optional<Item> item(const std::string& name) const;
  Item waitForItem(const std::string& name) const;
  void run(const std::function<void()>& look) const;

  QMainWindow& window_;
  mutable InputDevices devices_;
};

// Lets the user do as told while the window lives, and comes back when that is done. What went wrong fails
// the test; so does a dialog that is left open.
void runUser(QMainWindow& window, const std::function<void(User&)>& story);

template <typename Look>
auto User::see(Look look) const -> std::invoke_result_t<Look> {
  using Result = std::invoke_result_t<Look>;
  if constexpr (std::is_void_v<Result>) {
    run(look);
  } else {
    std::optional<Result> result;
    run([&] { result.emplace(look()); });
    return std::move(*result);
  }
}
